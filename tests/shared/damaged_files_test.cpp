// Files of the shared state that are not what they should be: every read gives "not set", every
// write is lost, and nothing is half written.
#include "shared/profile_store.h"
#include "shared/text_file.h"
#include "shared/transfer.h"
#include "tests/shared/installed_product.h"

namespace shared {
namespace {

class DamagedFilesTest : public InstalledProduct {
 protected:
  DamagedFilesTest() {
    machine_.files().PutIni(kAnnasProfile, sections::kTolvex, keys::kMailId, "a@bc.d");
  }
  std::string MailId() { return store_.ReadProfileKey(sections::kTolvex, keys::kMailId); }
  void WriteMailId(std::string_view value) {
    transfer_.Trf_WriteUserProfileDefault(sections::kTolvex, keys::kMailId, value);
  }

  ProfileStore store_{platform(), state_};
  clsTransfer transfer_{platform(), state_};
};

TEST_F(DamagedFilesTest, MakesAMissingProfileAtTheFirstWrite) {
  machine_.files().Delete(kAnnasProfile);
  EXPECT_EQ(MailId(), "");
  WriteMailId("b@cd.e");
  EXPECT_EQ(MailId(), "b@cd.e");
}

TEST_F(DamagedFilesTest, LosesAWriteWithoutAFolder) {
  state_.CurrentUser = "nobody";
  WriteMailId("b@cd.e");
  EXPECT_EQ(MailId(), "");
  EXPECT_FALSE(machine_.files().Has("C:\\Sorvane\\SorvaneEnobody"));
}

TEST_F(DamagedFilesTest, ReadsEmptyFromALockedProfileAndKeepsItWhole) {
  const std::string before = machine_.files().Content(kAnnasProfile);
  machine_.LockFile(kAnnasProfile);
  EXPECT_EQ(MailId(), "");
  WriteMailId("b@cd.e");
  machine_.UnlockFile(kAnnasProfile);
  EXPECT_EQ(machine_.files().Content(kAnnasProfile), before);
}

TEST_F(DamagedFilesTest, ReadsAReadOnlyProfileAndKeepsItWhole) {
  machine_.MakeReadOnly(kAnnasProfile);
  WriteMailId("b@cd.e");
  EXPECT_EQ(MailId(), "a@bc.d");
}

TEST_F(DamagedFilesTest, LeavesAFolderInPlaceOfTheProfileAlone) {
  machine_.files().Delete(kAnnasProfile);
  machine_.files().PutFolder(kAnnasProfile);
  WriteMailId("b@cd.e");
  EXPECT_EQ(MailId(), "");
  EXPECT_TRUE(platform().files.FolderExists(kAnnasProfile));
}

TEST_F(DamagedFilesTest, FindsItsKeysBehindFiftyMegabytesOfOtherText) {
  std::string text;
  text.reserve(52'000'000);
  while (text.size() < 50'000'000) text += "[Other]\r\nMail-ID=no\r\n;Mail-ID\r\n";
  machine_.files().Put(kAnnasProfile, text + "[Tolvex]\r\nMail-ID=far@be.hind\r\n");
  EXPECT_EQ(MailId(), "far@be.hind");
}

TEST_F(DamagedFilesTest, ReadsEmptyFromBinaryBytes) {
  std::string bytes;
  for (int at = 0; at < 100'000; ++at) bytes.push_back(static_cast<char>(at * 7919 >> 3));
  machine_.files().Put(kAnnasProfile, bytes);
  machine_.files().Put(kUserNameIniPath, bytes);
  EXPECT_EQ(MailId(), "");
  EXPECT_EQ(store_.RefreshCurrentUser(), "");
  EXPECT_EQ(store_.ReadProfileInt(sections::kBackupStatus, keys::kStatusWindow), 0);
  EXPECT_EQ(store_.ReadQuotaStatus().used, -1.0);
}

TEST_F(DamagedFilesTest, ReadsAProfileThatIsCutInTheMiddleOfALine) {
  machine_.files().Put(kAnnasProfile, "[Tolvex]\r\nMail-ID=a@bc");
  EXPECT_EQ(MailId(), "a@bc");
  machine_.files().Put(kAnnasProfile, "[Tolvex]\r\nMail-");
  EXPECT_EQ(MailId(), "");
  machine_.files().Put(kAnnasProfile, "[Tol");
  EXPECT_EQ(MailId(), "");
}

TEST_F(DamagedFilesTest, KeepsTheProfileWhenTheDiskIsFull) {
  machine_.FillDisk();
  WriteMailId("b@cd.e");
  EXPECT_EQ(MailId(), "a@bc.d");
}

TEST_F(DamagedFilesTest, TakesOnlyTheBeginningOfARunawayTextFile) {
  const std::string path = InAnnasFolder("DLLOutput1.txt");
  machine_.files().Put(path, std::string(1'000'000, '7'));
  EXPECT_EQ(ReadFirstLine(platform().files, path).size(), kTextFileLimit);
  EXPECT_EQ(ReadLine(platform().files, path, 1), "");
}

TEST_F(DamagedFilesTest, ReadsNoLineOfATextFileThatCannotBeRead) {
  const std::string path = InAnnasFolder("DLLOutput1.txt");
  EXPECT_EQ(ReadFirstLine(platform().files, path), "");
  machine_.files().Put(path, "");
  EXPECT_EQ(ReadFirstLine(platform().files, path), "");
  machine_.files().Put(path, "700\r\n");
  machine_.LockFile(path);
  EXPECT_EQ(ReadFirstLine(platform().files, path), "");
  EXPECT_FALSE(WriteOneLine(platform().files, path, "0"));
  machine_.UnlockFile(path);
  EXPECT_EQ(ReadFirstLine(platform().files, path), "700");
}

}  // namespace
}  // namespace shared
