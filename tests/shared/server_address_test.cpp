#include "shared/server_address.h"

#include "tests/shared/installed_product.h"

namespace shared {
namespace {

class ServerAddressTest : public InstalledProduct {
 protected:
  void Switch(int attempt = 5) { SwitchServerAddress(platform().files, state_, attempt); }
  std::string Pair() { return state_.ServerAddress + ":" + state_.ServerPort; }
};

TEST_F(ServerAddressTest, FallsBackToThePrimaryServer) {
  Switch();
  EXPECT_EQ(Pair(), "192.0.2.10:11905");
}

TEST_F(ServerAddressTest, ChangesOnlyThePortOfTheSecondaryServer) {
  state_.ServerAddress = state_.SecondaryServerAddress;
  Switch();
  EXPECT_EQ(Pair(), "192.0.2.20:11905");
}

TEST_F(ServerAddressTest, ChangesOnlyThePortInThePartnerEdition) {
  state_.ProductNumber = 1;
  Switch();
  EXPECT_EQ(Pair(), "192.0.2.99:11905");
}

TEST_F(ServerAddressTest, TakesTheLocalPortAndKeepsTheAddressWithALocalServer) {
  machine_.files().Put(InInstall("localhost.txt"), "");
  for (const int attempt : {5, 10}) {
    Switch(attempt);
    EXPECT_EQ(Pair(), "192.0.2.99:700");
  }
  state_.ProductNumber = 1;
  Switch();
  EXPECT_EQ(Pair(), "192.0.2.99:700");
}

TEST_F(ServerAddressTest, ChangesNothingBetweenFifthAttempts) {
  for (const int attempt : {1, 2, 3, 4, 6, 7, 8, 9}) Switch(attempt);
  EXPECT_EQ(Pair(), "192.0.2.99:4000");
  FallBackAfterAttempt(platform(), state_, 4);
  EXPECT_EQ(machine_.journal().Count("profile"), 0u);
}

TEST_F(ServerAddressTest, WritesTheFourKeysInTheirOrder) {
  FallBackAfterAttempt(platform(), state_, 10);
  const std::string profile = std::string(kAnnasProfile) + " [Tolvex] ";
  EXPECT_EQ(machine_.journal().Excerpt("profile"),
            (std::vector<std::string>{profile + "IPAddres=192.0.2.10", profile + "OutPort=11905",
                                      profile + Shifted("serverip") + "=" + Shifted("192.0.2.10"),
                                      profile + Shifted("port") + "=" + Shifted("11905")}));
}

TEST_F(ServerAddressTest, WritesTheShiftedTwinsForTheInteractiveUser) {
  machine_.files().PutIni(kUserNameIniPath, sections::kTolvex, keys::kInteractive, "ben");
  WriteServerKeys(platform(), state_);
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "IPAddres"), "192.0.2.99");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", Shifted("serverip")), "");
  EXPECT_EQ(Ini(kBensProfile, "Tolvex", Shifted("serverip")), Shifted("192.0.2.99"));
  EXPECT_EQ(Ini(kBensProfile, "Tolvex", Shifted("port")), Shifted("4000"));
  EXPECT_EQ(state_.CurrentUser, "ben");
}

}  // namespace
}  // namespace shared
