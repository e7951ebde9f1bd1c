#include "agent/product_config.h"

#include <gtest/gtest.h>

#include <string>

#include "agent/executable_names.h"
#include "agent/partner_edition.h"
#include "shared/configuration_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace config = shared::config;

class ProductConfigTest : public ::testing::Test {
 protected:
  ProductConfigTest() { state_.InstallFolder = testing::kFolder; }
  platform::Platform& platform() { return agent_.machine.platform(); }
  bool Load() { return LoadProductConfig(platform(), state_); }
  // As start-up does it, up to the names.
  void LoadEdition() {
    ASSERT_TRUE(Load());
    ApplyPartnerEdition(platform().files, state_);
    NameBlankProduct(state_);
    shared::Texts texts(platform(), state_);
    SetExecutableNames(state_, texts);
  }
  void PutMarker(std::string_view text) {
    agent_.machine.files().Put(agent_.Path("images\\Config.txt"), text);
  }

  InstalledAgent agent_;
  shared::AgentState state_;
};

TEST_F(ProductConfigTest, KeepsTheIdentityWhateverTheFileSays) {
  agent_.PutConfigValue(config::kProductInfo, config::kProductNumber, "1");
  agent_.PutConfigValue(config::kProductInfo, config::kProductName, "Other");
  agent_.PutConfigValue(config::kProductInfo, config::kProductInstallationName, "OtherFolder");
  agent_.PutConfigValue(config::kProductInfo, config::kProductTreeViewName, "Other Tree");
  agent_.PutConfigValue(config::kProductInfo, config::kProductCaption, "Other Caption");
  agent_.PutConfigValue(config::kProductInfo, config::kExeGroup, "Oth");
  agent_.PutConfigValue(config::kConnectionInfo, config::kPort, "1");
  agent_.PutConfigValue(config::kConnectionInfo, config::kIPAddress1, "1.1.1.1");
  EXPECT_TRUE(Load());
  EXPECT_EQ(state_.ProductNumber, 2);
  EXPECT_EQ(state_.ProductName, "Sorvane");
  EXPECT_EQ(state_.ProductFolder, "SorvaneE");
  EXPECT_EQ(state_.ProductTreeViewName, "My Sorvane");
  EXPECT_EQ(state_.ProductCaption, "Sorvane Classic");
  EXPECT_EQ(state_.ExeGroup, "SorvaneE");
  EXPECT_EQ(state_.DefaultPort, "11905");
  EXPECT_EQ(state_.PrimaryServerAddress, "192.0.2.10");
  EXPECT_EQ(state_.SecondaryServerAddress, "192.0.2.20");
  EXPECT_EQ(state_.DomainName, "backup.sorvane.example");
}

TEST_F(ProductConfigTest, TakesTheLanguageAndTheLinksFromTheFile) {
  agent_.PutConfigValue(config::kProductInfo, config::kLanguage, "Spanish");
  agent_.PutConfigValue(config::kWebLink, config::kWebsiteLink, "https://one.example");
  agent_.PutConfigValue(config::kWebLink, config::kSetupLink, "https://two.example/setup");
  EXPECT_TRUE(Load());
  EXPECT_EQ(state_.Language, "Spanish");
  EXPECT_EQ(state_.links.website, "https://one.example");
  EXPECT_EQ(state_.links.setup, "https://two.example/setup");
}

TEST_F(ProductConfigTest, GivesAnEmptyLinkTheDeploymentsPage) {
  EXPECT_TRUE(Load());
  EXPECT_EQ(state_.links.login, "https://backup.sorvane.example/login");
  EXPECT_EQ(state_.links.website, "https://backup.sorvane.example/");
}

TEST_F(ProductConfigTest, FailsWithoutTheFileAndWithAFolderInItsPlace) {
  const std::string file = agent_.Path("Configuration.ini");
  agent_.machine.files().Delete(file);
  EXPECT_FALSE(Load());
  agent_.machine.files().PutFolder(file);
  EXPECT_FALSE(Load());
}

TEST_F(ProductConfigTest, StandsAnyContentOfTheFile) {
  const std::string bytes(std::string("[ProductInfo]\r\n\0\xff=\x01\r\n", 21));
  for (const std::string& content :
       {std::string(), bytes, std::string(300000, '['), std::string(1000, '\xff')}) {
    agent_.machine.files().Put(agent_.Path("Configuration.ini"), content);
    EXPECT_TRUE(Load());
    EXPECT_EQ(state_.ProductFolder, "SorvaneE");
    EXPECT_EQ(state_.Language, "");
  }
}

TEST_F(ProductConfigTest, NamesTheProgramsOfBothEditions) {
  struct Row {
    std::string shared::ExecutableNames::*field;
    std::string_view sorvane;
    std::string_view partner;
  };
  using shared::ExecutableNames;
  constexpr Row kRows[] = {
      {&ExecutableNames::realtime_module, "SorvaneERealTime.dll", "TVPROFRealTime.dll"},
      {&ExecutableNames::registry_converter, "SorvaneEReg2ini.exe", "RegistryToIni.exe"},
      {&ExecutableNames::background, "SorvaneEBackground.exe", "TVProfBackground.exe"},
      {&ExecutableNames::tray, "SorvaneETray.exe", "TVPMonitor.exe"},
      {&ExecutableNames::main_program, "SorvaneEClassic.exe", "TolvexProf.exe"},
      {&ExecutableNames::service, "SorvaneE Service.exe", "TVPService.exe"},
      {&ExecutableNames::set_size_helper, "SorvaneEBckupsetSize.exe", "TVProfBckupsetSize.exe"},
      {&ExecutableNames::context_menu, "SorvaneEContextMenu.exe", "TVPROFContextMenu.exe"},
      {&ExecutableNames::view_module, "SorvaneEView.dll", ""},
      {&ExecutableNames::explorer_extension, "SorvaneEContextMenuExt.dll", ""},
      {&ExecutableNames::drive_launcher, "SorvaneELaunchDrive.exe", ""},
      {&ExecutableNames::web_plugin, "SorvanePlugin.exe", "TVPRDPlugin.exe"},
      {&ExecutableNames::service_batch_base, "SorvaneE", "TolvexProfessional"},
  };
  LoadEdition();
  for (const Row& row : kRows) EXPECT_EQ(state_.executables.*row.field, row.sorvane);
  EXPECT_EQ(state_.ClientProgram, "SorvaneEClsClient.exe");
  EXPECT_EQ(state_.MutexName, "SorvaneETrayexe");
  EXPECT_EQ(state_.DisplayName, "Sorvane");
  EXPECT_EQ(state_.FailureCaption, "Sorvane Classic  failure");
  EXPECT_EQ(state_.LogonFailureCaption, "Sorvane Classic  Logon failure");

  PutMarker("Acme\r\nTwo\r\nacme.ico\r\n");
  LoadEdition();
  for (const Row& row : kRows) EXPECT_EQ(state_.executables.*row.field, row.partner);
  EXPECT_EQ(state_.ClientProgram, "TolvexProfClient.exe");
  EXPECT_EQ(state_.MutexName, "TVPMonitorexe");
}

TEST_F(ProductConfigTest, TurnsIntoThePartnerEditionByThreeLines) {
  PutMarker("Acme\r\nTwo\r\nacme.ico\r\n");
  LoadEdition();
  EXPECT_EQ(state_.ProductNumber, 1);
  EXPECT_EQ(state_.ProductName, "Acme");
  EXPECT_EQ(state_.ProductCaption, "Acme");
  EXPECT_EQ(state_.DisplayName, "Acme");
  EXPECT_EQ(state_.ProductFolder, "Tolvex Professional");
  EXPECT_EQ(state_.BrandIconFile, "acme.ico");
}

TEST_F(ProductConfigTest, ReadsMarkersOfAnyShape) {
  struct Row {
    std::string_view text, name, icon;
  };
  const std::string large(200000, 'x');
  const Row rows[] = {
      {"A\nB\nC", "A", "C"},
      {"A\rB\rC\r", "A", "C"},
      {"A\r\nB\r\n", "A", ""},
      {"A", "A", ""},
      {"", "Sorvane", ""},
      {"\r\nB\r\nC\r\n", "Tolvex Professional", "C"},
      {"   \r\nB\r\nC\r\nD\r\n", "Tolvex Professional", "C"},
      {large, std::string_view(large).substr(0, 4096), ""},
  };
  for (const Row& row : rows) {
    state_ = {};
    state_.InstallFolder = testing::kFolder;
    PutMarker(row.text);
    LoadEdition();
    EXPECT_EQ(state_.ProductName, row.name);
    EXPECT_EQ(state_.ProductCaption, row.name);
    EXPECT_EQ(state_.BrandIconFile, row.icon);
    EXPECT_EQ(state_.ProductFolder, "Tolvex Professional");
    EXPECT_EQ(state_.ProductNumber, 1);
  }
}

TEST_F(ProductConfigTest, StaysAPartnerWhileTheMarkerCannotBeRead) {
  PutMarker("Acme\r\nTwo\r\nacme.ico\r\n");
  agent_.machine.LockFile(agent_.Path("images\\Config.txt"));
  LoadEdition();
  EXPECT_EQ(state_.ProductNumber, 1);
  EXPECT_EQ(state_.ProductName, "Sorvane");
  EXPECT_EQ(state_.executables.web_plugin, "TVPRDPlugin.exe");
}

TEST_F(ProductConfigTest, NamesAFormsPicture) {
  LoadEdition();
  EXPECT_EQ(FormPicture(platform().files, state_), StatePicture::kNormal);
  PutMarker("Acme\r\nTwo\r\nacme.ico\r\n");
  LoadEdition();
  EXPECT_EQ(FormPicture(platform().files, state_), StatePicture::kNormal);
  agent_.machine.files().PutPicture(agent_.Path("Images\\acme.ico"));
  EXPECT_EQ(FormPicture(platform().files, state_), StatePicture::kBrand);
}

TEST_F(ProductConfigTest, TakesTextsFromTheLibraryAndElseTheLiteral) {
  agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), 463, "Cuota excedida");
  shared::Texts texts(platform(), state_);
  SharedTexts shared_texts;
  LoadTexts(texts, shared_texts);
  EXPECT_EQ(shared_texts.quota_exceeded, "Cuota excedida");
  EXPECT_EQ(shared_texts.no_schedule, "No backup has been scheduled.");
  EXPECT_EQ(shared_texts.disable_automatic_backup, "Disable Automatic Backup");
}

}  // namespace
}  // namespace agent
