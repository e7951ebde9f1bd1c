#include "shared/configuration.h"

#include "shared/configuration_keys.h"
#include "shared/deployment.h"
#include "tests/shared/installed_product.h"

namespace shared {
namespace {

class ConfigurationTest : public InstalledProduct {
 protected:
  void PutStored(std::string_view stored) {
    machine_.files().PutIni(InInstall("Configuration.ini"), config::kProductInfo,
                            ScrambleConfigKey(config::kLanguage), stored);
  }
  std::string Language() {
    return ReadConfigValue(platform(), state_, config::kProductInfo, config::kLanguage);
  }
};

TEST_F(ConfigurationTest, ScramblesKeysByBothShiftsAndValuesByOne) {
  EXPECT_EQ(ScrambleConfigKey("Port"), "`\x7F\x82\x84");
  EXPECT_EQ(ScrambleConfigValue("11905"), "33;27");
}

TEST_F(ConfigurationTest, ReadsAScrambledValue) {
  PutStored(ScrambleConfigValue("Spanish"));
  EXPECT_EQ(Language(), "Spanish");
}

TEST_F(ConfigurationTest, DoesNotFindAReadableKey) {
  machine_.files().PutIni(InInstall("Configuration.ini"), config::kProductInfo, config::kLanguage,
                          ScrambleConfigValue("Spanish"));
  EXPECT_EQ(Language(), "");
}

TEST_F(ConfigurationTest, TrimsAndCutsWhatUnscramblingLaidBare) {
  PutStored(ScrambleConfigValue(std::string_view(" German \0x", 10)));
  EXPECT_EQ(Language(), "German ");
  PutStored(ScrambleConfigValue("  German  "));
  EXPECT_EQ(Language(), "German");
}

TEST_F(ConfigurationTest, EndsAValueAtACodeThatIsTooSmall) {
  PutStored("I\x01x");
  EXPECT_EQ(Language(), "G");
}

TEST_F(ConfigurationTest, ReadsEmptyForAnythingThatIsNotThere) {
  EXPECT_EQ(Language(), "");
  PutStored("");
  EXPECT_EQ(Language(), "");
  machine_.LockFile(InInstall("Configuration.ini"));
  EXPECT_EQ(Language(), "");
  machine_.UnlockFile(InInstall("Configuration.ini"));
  machine_.files().Delete(InInstall("Configuration.ini"));
  machine_.files().PutFolder(InInstall("Configuration.ini"));
  EXPECT_EQ(Language(), "");
}

TEST_F(ConfigurationTest, CarriesEveryPageOfTheDeploymentThroughTheFile) {
  for (const deployment::WebLink& link : deployment::kWebLinks) {
    machine_.files().PutIni(InInstall("Configuration.ini"), config::kWebLink,
                            ScrambleConfigKey(link.key), ScrambleConfigValue(link.page));
  }
  for (const deployment::WebLink& link : deployment::kWebLinks) {
    EXPECT_EQ(ReadConfigValue(platform(), state_, config::kWebLink, link.key), link.page);
  }
}

}  // namespace
}  // namespace shared
