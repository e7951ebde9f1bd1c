#include "shared/transfer.h"

#include "tests/shared/installed_product.h"

namespace shared {
namespace {

class TransferTest : public InstalledProduct {
 protected:
  clsTransfer transfer_{platform(), state_};
};

TEST_F(TransferTest, NeverShowsAShiftedKeyOrValueInTheFile) {
  transfer_.Trf_WriteUserProfile("password", "secret");
  EXPECT_EQ(machine_.files().Content(kAnnasProfile).find("password"), std::string::npos);
  EXPECT_EQ(machine_.files().Content(kAnnasProfile).find("secret"), std::string::npos);
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "teww{svh"), "wigvix");
  EXPECT_EQ(transfer_.Trf_ReadUserProfile("password"), "secret");
}

TEST_F(TransferTest, ReturnsEmptyForAReadablePassword) {
  machine_.files().PutIni(kAnnasProfile, sections::kTolvex, "password", "secret");
  EXPECT_EQ(transfer_.Trf_ReadUserProfile("password"), "");
}

TEST_F(TransferTest, WritesForTheInteractiveUserAndLeavesItCurrent) {
  machine_.files().PutIni(kUserNameIniPath, sections::kTolvex, keys::kInteractive, "ben");
  transfer_.Trf_WriteUserProfile(keys::kPort, "700");
  EXPECT_EQ(state_.CurrentUser, "ben");
  EXPECT_EQ(Ini(kBensProfile, "Tolvex", Shifted("port")), Shifted("700"));
  EXPECT_FALSE(machine_.files().Has(kAnnasProfile));
}

TEST_F(TransferTest, ShiftsOnlyTheKeyWithoutEncrypt) {
  transfer_.Trf_WriteUserProfileWithoutEncrypt("BackupIdle", "1");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", Shifted("BackupIdle")), "1");
}

TEST_F(TransferTest, LeavesKeyAndValuePlainForIdleAndEmail) {
  transfer_.Trf_WriteUserProfileWithoutEncryptIdle("a", "1");
  transfer_.Trf_WriteUserNameProfileEmail("b", "2");
  transfer_.Trf_WriteUserProfileDefault("Web", "c", "3");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "a"), "1");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "b"), "2");
  EXPECT_EQ(Ini(kAnnasProfile, "Web", "c"), "3");
  EXPECT_EQ(transfer_.Trf_ReadUserProfileIdle("a"), "1");
  EXPECT_EQ(transfer_.Trf_ReadUserProfileWithoutDecrypt("b"), "2");
  EXPECT_EQ(transfer_.Trf_ReadOutputValue("Web", "c"), "3");
}

TEST_F(TransferTest, KeepsTheProxyShiftedInASectionOfItsOwn) {
  transfer_.Trf_WriteProxyProfile("ProxyPass", "secret");
  EXPECT_EQ(Ini(kAnnasProfile, "Proxy", Shifted("ProxyPass")), Shifted("secret"));
  EXPECT_EQ(transfer_.Trf_ReadProxyProfile("ProxyPass"), "secret");
  EXPECT_EQ(transfer_.Trf_ReadProxyProfile("ProxyUser"), "");
}

TEST_F(TransferTest, FindsTheProxyFromTheCurrentFolderOnly) {
  transfer_.Trf_WriteProxyProfile("ProxyPass", "secret");
  platform().files.ChangeDirectory("C:\\Windows");
  EXPECT_EQ(transfer_.Trf_ReadProxyProfile("ProxyPass"), "");
}

TEST_F(TransferTest, NeverReadsBackTheDateFormatThatItWrote) {
  transfer_.Trf_WriteDateFormatProfile("Format", "dd");
  EXPECT_EQ(Ini(kAnnasProfile, "DateFormat", Shifted("Format")), Shifted("dd"));
  EXPECT_EQ(transfer_.Trf_ReadDateFormatProfile("Format"), "");
  machine_.files().PutIni(kAnnasProfile, "Tolvex", "Format", Shifted("mm"));
  EXPECT_EQ(transfer_.Trf_ReadDateFormatProfile("Format"), "mm");
}

TEST_F(TransferTest, ReadsAndWritesTheMachinesOwnKeysPlain) {
  transfer_.Trf_WriteUserNameProfile(keys::kStarted, "1");
  EXPECT_EQ(Ini(kUserNameIniPath, "Tolvex", "Started"), "1");
  EXPECT_EQ(transfer_.Trf_ReadUserNameProfile(keys::kStarted), "1");
  machine_.files().PutIni(kUserNameIniPath, "PCInfo", "MACAddress", "00-11");
  EXPECT_EQ(transfer_.Trf_ReadUserNamePCInfo(keys::kMacAddress), "00-11");
}

TEST_F(TransferTest, CutsAnOutputValueAtItsNul) {
  machine_.files().Put(kAnnasProfile, std::string_view("[Web]\r\nc=ab\0cd\r\n", 16));
  EXPECT_EQ(transfer_.Trf_ReadOutputValue("Web", "c"), "ab");
}

TEST_F(TransferTest, TrimsTheAutomaticPaths) {
  machine_.files().PutIni(InAnnasFolder("SimpleAutoPath.ini"), "AUTOFILEPATHS", "Path",
                          "\"  C:\\x \"");
  EXPECT_EQ(transfer_.ReadSimpleAutofileProfile("Path"), "C:\\x");
}

TEST_F(TransferTest, MakesEveryMissingFolderOfAPath) {
  transfer_.Trf_CreateLocalDir("C:\\Sorvane\\a\\b\\c");
  EXPECT_TRUE(platform().files.FolderExists("C:\\Sorvane\\a\\b\\c"));
  EXPECT_EQ(machine_.journal().Count("file", "failed"), 0u);
  EXPECT_EQ(machine_.journal().Count("file"), 3u);
}

TEST_F(TransferTest, ReportsNothingWhenAFolderCannotBeMade) {
  machine_.files().Put("C:\\Sorvane\\a", "a file in the way");
  transfer_.Trf_CreateLocalDir("C:\\Sorvane\\a\\b");
  transfer_.Trf_CreateLocalDir("");
  transfer_.Trf_CreateLocalDir("\\\\");
  EXPECT_FALSE(platform().files.FolderExists("C:\\Sorvane\\a\\b"));
}

TEST_F(TransferTest, NamesTheSearchFileByTheBrand) {
  transfer_.Trf_WriteSearchProfile("Search", "1");
  transfer_.Trf_WritePluginUserProfile("Plugin", "2");
  transfer_.Trf_WriteSearchUserNameProfile("StartMissedJob", "1");
  const std::string file = InInstall("SorvaneSearch.ini");
  EXPECT_EQ(Ini(file, "SearchEnable", "Search"), "1");
  EXPECT_EQ(Ini(file, "Tolvex", "Plugin"), "2");
  EXPECT_EQ(Ini(file, "Tolvex", "StartMissedJob"), "%");
  EXPECT_EQ(transfer_.Trf_ReadPluginUserProfile("Plugin"), "2");
}

TEST_F(TransferTest, NamesTheSearchFileOfThePartnerEditionInTwoWays) {
  state_.DisplayName = "Partner";
  machine_.files().Put(InInstall("images\\Config.txt"), "Partner\r\n");
  transfer_.Trf_WriteSearchProfile("Search", "1");
  transfer_.Trf_WritePluginUserProfile("Plugin", "2");
  transfer_.Trf_WriteSearchUserNameProfile("StartMissedJob", "1");
  EXPECT_EQ(Ini(InInstall("PartnerSearch.ini"), "SearchEnable", "Search"), "1");
  EXPECT_EQ(Ini(InInstall("PartnerTolvex ProfessionalSearch.ini"), "Tolvex", "Plugin"), "2");
  EXPECT_EQ(Ini(InInstall("Tolvex ProfessionalSearch.ini"), "Tolvex", "StartMissedJob"), "%");
  EXPECT_EQ(transfer_.Trf_ReadPluginUserProfile("Plugin"), "2");
}

}  // namespace
}  // namespace shared
