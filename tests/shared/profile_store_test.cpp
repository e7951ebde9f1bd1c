#include "shared/profile_store.h"

#include "tests/shared/installed_product.h"

namespace shared {
namespace {

class ProfileStoreTest : public InstalledProduct {
 protected:
  ProfileStore store_{platform(), state_};
};

TEST_F(ProfileStoreTest, DecodesTheDefaultUser) {
  EXPECT_EQ(store_.ReadUserNameIni(keys::kDefaultUserName), "anna");
  EXPECT_EQ(store_.ReadUserNameIniPlain(keys::kDefaultUserName), "erre");
}

TEST_F(ProfileStoreTest, KeepsTheDefaultUserAsTheCurrentOne) {
  state_.CurrentUser = "ben";
  EXPECT_EQ(store_.RefreshCurrentUser(), "anna");
  EXPECT_EQ(state_.CurrentUser, "anna");
  machine_.files().Delete(kUserNameIniPath);
  EXPECT_EQ(store_.RefreshCurrentUser(), "");
}

TEST_F(ProfileStoreTest, ReadsFromTheCommonFolderWithNobodyLoggedIn) {
  state_.CurrentUser = "";
  EXPECT_EQ(store_.ReadProfileKey(sections::kTolvex, keys::kMailId), "");
  machine_.files().PutIni("C:\\Sorvane\\SorvaneE\\SorvaneE.ini", sections::kTolvex, keys::kMailId,
                          "a@bc.d");
  EXPECT_EQ(store_.ReadProfileKey(sections::kTolvex, keys::kMailId), "a@bc.d");
}

TEST_F(ProfileStoreTest, SeesWhatAnotherProgramWroteAMomentAgo) {
  for (const std::string_view value : {"1", "0", "1"}) {
    machine_.files().PutIni(kAnnasProfile, sections::kTolvex, keys::kRealTimeBackup, value);
    EXPECT_EQ(store_.ReadProfileKey(sections::kTolvex, keys::kRealTimeBackup), value);
  }
}

TEST_F(ProfileStoreTest, WritesPlainValuesIntoTheSectionsOfTheMachine) {
  store_.WriteUserNameIni(keys::kTray, "3");
  store_.WriteUserNameProfile(keys::kStarted, "1");
  EXPECT_EQ(Ini(kUserNameIniPath, "Registry", "Tray"), "3");
  EXPECT_EQ(Ini(kUserNameIniPath, "Tolvex", "Started"), "1");
  EXPECT_EQ(store_.ReadUserNameProfile(keys::kStarted), "1");
}

TEST_F(ProfileStoreTest, CutsAValueOfThreeHundredCharacters) {
  machine_.files().PutIni(kAnnasProfile, sections::kTolvex, keys::kMailId, std::string(300, 'x'));
  EXPECT_EQ(store_.ReadProfileKey(sections::kTolvex, keys::kMailId), std::string(255, 'x'));
  machine_.files().PutIni(kUserNameIniPath, sections::kRegistry, keys::kNextTransfer,
                          std::string(300, 'y'));
  EXPECT_EQ(store_.ReadUserNameIniPlain(keys::kNextTransfer), std::string(255, 'y'));
}

TEST_F(ProfileStoreTest, TrimsAndCutsWhatDecodingLaidBare) {
  // Shifted: a blank, "ben", a NUL, "x".
  machine_.files().PutIni(kUserNameIniPath, sections::kRegistry, keys::kDefaultUserName,
                          Shifted(std::string_view(" ben\0x", 6)));
  EXPECT_EQ(store_.ReadUserNameIni(keys::kDefaultUserName), "ben");
}

TEST_F(ProfileStoreTest, DecodesAValueUnderAPlainKey) {
  machine_.files().PutIni(kAnnasProfile, sections::kTolvex, keys::kEncPasswordNew,
                          Shifted("secret"));
  EXPECT_EQ(store_.ReadProfileKeyDecrypted(keys::kEncPasswordNew), "secret");
  EXPECT_EQ(store_.ReadProfileKeyDecrypted("nothing"), "");
}

TEST_F(ProfileStoreTest, NarrowsWholeNumbersToSixteenBits) {
  const std::pair<std::string_view, int> cases[] = {
      {"", 0},          {"7", 7},           {"-3", -3},   {"12x", 12},  {"x", 0},
      {"32767", 32767}, {"-32768", -32768}, {"32768", 0}, {"70000", 0},
  };
  for (const auto& [text, number] : cases) {
    machine_.files().PutIni(kAnnasProfile, sections::kBackupStatus, keys::kStatusWindow, text);
    EXPECT_EQ(store_.ReadProfileInt(sections::kBackupStatus, keys::kStatusWindow), number) << text;
  }
  machine_.files().PutIni(kUserNameIniPath, sections::kRdPlugin, keys::kPluginAuth, "2");
  EXPECT_EQ(store_.ReadUserNameInt(sections::kRdPlugin, keys::kPluginAuth), 2);
}

TEST_F(ProfileStoreTest, TellsAnUnknownQuotaFromNone) {
  EXPECT_EQ(store_.ReadQuotaStatus().used, -1.0);
  EXPECT_EQ(store_.ReadQuotaStatus().max, 0.0);
  machine_.files().PutIni(kAnnasProfile, "QuotaStatus", "Used", "5368709120");
  machine_.files().PutIni(kAnnasProfile, "QuotaStatus", "Max", "10737418240");
  EXPECT_EQ(store_.ReadQuotaStatus().used, 5368709120.0);
  EXPECT_EQ(store_.ReadQuotaStatus().max, 10737418240.0);
}

TEST_F(ProfileStoreTest, TakesAMaxOfOneAsAGibibyteAboveWhatIsUsed) {
  machine_.files().PutIni(kAnnasProfile, "QuotaStatus", "Max", "1");
  EXPECT_EQ(store_.ReadQuotaStatus().max, 1073741823.0);
  machine_.files().PutIni(kAnnasProfile, "QuotaStatus", "Used", "1000");
  EXPECT_EQ(store_.ReadQuotaStatus().max, 1073742824.0);
}

TEST_F(ProfileStoreTest, KeepsTheUnknownQuotaForTextsThatAreNoNumbers) {
  machine_.files().PutIni(kAnnasProfile, "QuotaStatus", "Used", "lots");
  machine_.files().PutIni(kAnnasProfile, "QuotaStatus", "Max", "1GB");
  EXPECT_EQ(store_.ReadQuotaStatus().used, -1.0);
  EXPECT_EQ(store_.ReadQuotaStatus().max, 0.0);
}

TEST_F(ProfileStoreTest, PumpsMessagesAfterEachDecodedCharacter) {
  int pumped = 0;
  for (std::uint32_t nth = 1; nth <= 6; ++nth) machine_.WhenPumped([&] { ++pumped; }, nth);
  EXPECT_EQ(store_.DecryptProfileText("erre"), "anna");
  EXPECT_EQ(pumped, 4);
}

TEST_F(ProfileStoreTest, DecodesShareTextsWithoutPumping) {
  int pumped = 0;
  machine_.WhenPumped([&] { ++pumped; });
  EXPECT_EQ(store_.DecryptShareText(store_.EncryptShareText("\\\\nas\\b")), "\\\\nas\\b");
  EXPECT_EQ(store_.EncryptShareText("a"), "m");
  EXPECT_EQ(pumped, 0);
}

TEST_F(ProfileStoreTest, TracesACharacterThatCannotBeShiftedAndGivesWhatCameBefore) {
  EXPECT_EQ(store_.EncryptProfileText("ab\xFF"
                                      "c"),
            "ef");
  EXPECT_EQ(TraceOfAnna(),
            "Error encrypting of monitor Reason: Invalid procedure call or argument  5\r\n");
}

TEST_F(ProfileStoreTest, LeavesTheOtherShiftsUntracedWhenTheyFail) {
  EXPECT_EQ(store_.DecryptProfileText("e\x01"
                                      "e"),
            "a");
  EXPECT_EQ(store_.EncryptShareText("a\xFF"
                                    "a"),
            "m");
  EXPECT_EQ(store_.DecryptShareText("m\x01m"), "a");
  EXPECT_EQ(TraceOfAnna(), "");
}

TEST_F(ProfileStoreTest, ShiftsNothingForAnEmptyText) {
  EXPECT_EQ(store_.EncryptProfileText(""), "");
  EXPECT_EQ(store_.DecryptProfileText(""), "");
  EXPECT_EQ(store_.EncryptShareText(""), "");
  EXPECT_EQ(store_.DecryptShareText(""), "");
}

TEST_F(ProfileStoreTest, TakesADecodedNameWholeWhenATickRunsInside) {
  state_.CurrentUser = "ben";
  std::string seen;
  machine_.WhenPumped([&] { seen = state_.CurrentUser; }, 2);
  store_.RefreshCurrentUser();
  EXPECT_EQ(seen, "ben");
  EXPECT_EQ(state_.CurrentUser, "anna");
}

}  // namespace
}  // namespace shared
