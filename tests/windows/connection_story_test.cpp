// The engine client as the agent's way to the server, seen through the switch of continuous backup:
// fallback, redirection, and answers that never come.
#include <gtest/gtest.h>

#include "tests/windows/story.h"

namespace {

constexpr std::string_view kCheckServer = "SorvaneEClsClient.exe [ 23< >]";
constexpr std::string_view kCheckAccount = "SorvaneEClsClient.exe [ 9< >]";
constexpr std::string_view kModuleStarts = "[PostCDPStatusMsg 1]";

class ConnectionStory : public testing::Test {
 protected:
  // The user's server before anything happens.
  static constexpr std::string_view kAddress = "192.0.2.77";
  static constexpr std::string_view kPort = "4434";

  ConnectionStory() {
    story.SetSetting(shared::keys::kServerIp, kAddress);
    story.SetSetting(shared::keys::kPort, kPort);
  }

  // The engine answers the two checks of the login so; the person switches continuous backup on.
  bool SwitchOn(std::string_view server_answers, std::string_view account_answers) {
    story.Script("Commands", "23", server_answers);
    story.Script("Commands", "9", account_answers);
    return story.StartAgent() && story.ChooseAndAnswer("Continuous Backup", "Proceed");
  }

  bool ModuleStarts() {
    return WaitUntil([&] { return story.Calls(kModuleStarts) == 1; });
  }

  // Both places of the server pair, where agent and engine look.
  void ExpectServer(std::string_view address, std::string_view port) {
    EXPECT_EQ(address, story.Setting(shared::keys::kServerIp));
    EXPECT_EQ(port, story.Setting(shared::keys::kPort));
    EXPECT_EQ(address, story.PlainSetting(shared::keys::kPlainAddress));
    EXPECT_EQ(port, story.PlainSetting(shared::keys::kPlainPort));
  }

  Story story;
};

TEST_F(ConnectionStory, TenFailuresLeadToTheAccountCheckWhichMaySucceed) {
  ASSERT_TRUE(SwitchOn("-416", "402"));
  ASSERT_TRUE(ModuleStarts());
  EXPECT_EQ(10, story.Calls(kCheckServer));
  EXPECT_EQ(1, story.Calls(kCheckAccount));
  EXPECT_EQ("1", story.Shared(shared::keys::kRealTimeBackup));
}

TEST_F(ConnectionStory, ARedirectionMovesPortAndAddress) {
  ASSERT_TRUE(SwitchOn("redirect 5555 192.0.2.99 402", "402"));
  ASSERT_TRUE(ModuleStarts());
  EXPECT_EQ(1, story.Calls(kCheckServer));
  ExpectServer("192.0.2.99", "5555");
}

TEST_F(ConnectionStory, ARedirectionOfOneLineMovesThePortAlone) {
  ASSERT_TRUE(SwitchOn("402 redirect 5555", "402"));
  ASSERT_TRUE(ModuleStarts());
  ExpectServer(kAddress, "5555");
}

TEST_F(ConnectionStory, AnEngineThatBreaksDownIsAskedAgain) {
  ASSERT_TRUE(SwitchOn("crash,none,slow 700 402", "402"));
  ASSERT_TRUE(ModuleStarts());
  EXPECT_EQ(3, story.Calls(kCheckServer));
}

TEST_F(ConnectionStory, MenuAndTicksLiveWhileTheEngineTakesItsTime) {
  ASSERT_TRUE(SwitchOn("slow 6000 402", "402"));
  ASSERT_TRUE(WaitUntil([&] { return story.Calls(kCheckServer) == 1; }));
  ASSERT_TRUE(story.WaitForTick());
  ASSERT_TRUE(story.OpenStatus());
  ASSERT_TRUE(ModuleStarts());
  EXPECT_TRUE(story.AgentRuns());
}

}  // namespace
