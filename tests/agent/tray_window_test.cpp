#include "agent/tray_window.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "agent/tray_icon.h"
#include "agent/window_messages.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::Effects;
using ::testing::ElementsAre;
using testing::InstalledAgent;
namespace keys = shared::keys;

constexpr std::string_view kClient = "SorvaneEClsClient.exe";

class TrayWindowTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  std::uint32_t Number(std::string_view name) {
    return agent_.machine.windows().MessageNumber(name);
  }
  void RunClient() { agent_.machine.processes().Start(agent_.Path(kClient)); }
  bool ClientRuns() { return agent_.machine.processes().IsRunning(kClient); }

  InstalledAgent agent_;
};

TEST_F(TrayWindowTest, PutsTheIconInOnceWithTheOldTipWhenTheShellRestarts) {
  Start();
  agent_.PutUserFile(status::kQuotaExceededFile);
  agent_.Touch(0x200);
  agent_.Tick();
  const std::string tip = agent_.Tip();
  const std::string picture = agent_.Picture();
  agent_.machine.journal().Clear();
  agent_.machine.RestartShell();
  agent_.machine.Run(10);
  EXPECT_EQ(agent_.machine.journal().Count("icon", "add"), 1u);
  EXPECT_EQ(agent_.Picture(), picture);
  EXPECT_FALSE(tip.empty());
}

TEST_F(TrayWindowTest, ListensOnAfterManyRestartsOfTheShell) {
  Start();
  for (int i = 0; i < 20; ++i) agent_.Send(Number("TaskbarCreated"));
  ASSERT_TRUE(agent_.machine.shell().icon());
  agent_.RightClick();
  EXPECT_EQ(agent_.host.MenusShown(), 1);
}

TEST_F(TrayWindowTest, LogsOutWhenTheExplorerExtensionSaysSo) {
  Start();
  agent_.Send(Number("CloseInteractiveWindow"));
  EXPECT_EQ(agent_.Traced("Calling logou t from explorer"), 1u);
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
}

TEST_F(TrayWindowTest, NamedMessagesWithoutANumberMatchNothing) {
  agent_.machine.gate().FailAll("other_windows.RegisterMessage");
  Start();
  agent_.Send(0);
  EXPECT_EQ(agent_.Traced("Calling logou t"), 0u);
  EXPECT_EQ(agent_.machine.journal().Count("icon"), 0u);
}

TEST_F(TrayWindowTest, EndsTheInteractiveClientAtTheEndOfTheSession) {
  for (const std::string_view first_line : {"0\r\n", ""}) {
    InstalledAgent agent;
    ASSERT_TRUE(agent.Start());
    agent.machine.processes().Start(agent.Path(kClient));
    agent.PutUserFile(status::kScheduleDataFile, first_line);
    agent.Send(kWmEndSession, 1);
    EXPECT_FALSE(agent.machine.processes().IsRunning(kClient)) << first_line;
    EXPECT_EQ(agent.Traced("Closing Client"), 1u);
  }
}

TEST_F(TrayWindowTest, LeavesTheClientOfAScheduledJobAliveAtTheEndOfTheSession) {
  Start();
  RunClient();
  agent_.PutUserFile(status::kScheduleDataFile, "2\r\n");
  agent_.Send(kWmEndSession, 1);
  EXPECT_TRUE(ClientRuns());
  EXPECT_EQ(agent_.Traced("Closing Client"), 0u);
}

TEST_F(TrayWindowTest, EndsTheSessionInItsOrder) {
  Start();
  RunClient();
  agent_.machine.processes().Start(agent_.Path("SorvaneEClassic.exe"));
  agent_.machine.windows().Add({.class_name = "#32770", .title = "SorvaneEHiddenWindow"});
  agent_.machine.windows().Add({.class_name = "ThunderForm", .title = "Sorvane Classic (ann)"});
  agent_.Send(kWmEndSession, 1);
  EXPECT_THAT(Effects(agent_),
              ElementsAre("trace Inside End_Session", "post SorvaneEHiddenWindow 1034 0 0",
                          "trace WM_ENDSESSION , setting Connection parameter to 0",
                          "trace Closing Client", "end SorvaneEClsClient.exe",
                          "send Sorvane Classic (ann) 16 0 0", "end SorvaneEClassic.exe"));
  EXPECT_EQ(agent_.ConnectionStatus(), 1u);
}

TEST_F(TrayWindowTest, TracesASuspendAndAnswersItOnlyForTwoOfItsKinds) {
  const std::string trace = agent_.Path("TrayTraceFile.txt");
  const auto lines = [&] {
    const std::string text = agent_.machine.files().Utf16Content(trace);
    std::size_t count = 0;
    for (std::size_t at = text.find("Hibernation Message Arrived"); at != std::string::npos;
         at = text.find("Hibernation Message Arrived", at + 1)) {
      ++count;
    }
    return count;
  };
  Start();
  const std::size_t before = lines();
  agent_.Send(kWmPowerBroadcast, 0);
  agent_.Send(kWmPowerBroadcast, 4);
  EXPECT_EQ(lines() - before, 2u);
  for (const std::uintptr_t kind : {1u, 2u, 3u, 5u, 7u, 18u}) agent_.Send(kWmPowerBroadcast, kind);
  EXPECT_EQ(lines() - before, 2u);
  agent_.SetRegistry(keys::kStandbyBackup, "0");
  agent_.Send(kWmPowerBroadcast, 4);
  EXPECT_EQ(lines() - before, 3u);
}

TEST_F(TrayWindowTest, ShowsTheMenuWhenAnotherProgramAsksForIt) {
  Start();
  agent_.PutUserFile(status::kScheduleInfoFile);
  agent_.SetStatus(status::kStatus, "1");
  agent_.Send(kOutsideIconEvent, 0, kRightButtonUp);
  EXPECT_EQ(agent_.host.MenusShown(), 1);
  EXPECT_TRUE(agent_.Item("mnuStop").Enabled());
}

TEST_F(TrayWindowTest, ReadsTheUserAfreshForEveryMessage) {
  agent_.ForgetUser();
  Start();
  EXPECT_EQ(agent_.state().CurrentUser, "");
  agent_.SetRegistry(keys::kDefaultUserName, "err");  // "ann", shifted
  agent_.Send(0x400);
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
}

TEST_F(TrayWindowTest, LeavesEveryOtherMessageToTheWindow) {
  Start();
  const auto& answer = agent_.agent().form().on_message;
  for (const std::uint32_t message : {0u, 1u, 0x10u, 0x16u, 0x1Au, 0x200u, 0x400u, 0xC123u}) {
    EXPECT_FALSE(answer(message, 0, 0).has_value()) << message;
  }
  EXPECT_TRUE(answer(kWmPowerBroadcast, 4, 0).has_value());
  EXPECT_TRUE(answer(kOutsideIconEvent, 0, kLeftDoubleClick).has_value());
  EXPECT_FALSE(answer(kOutsideIconEvent, 0, 0x200).has_value());
}

TEST_F(TrayWindowTest, AFloodOfMessagesDoesNotPileUp) {
  Start();
  const auto window = agent_.agent().form().Window();
  for (int i = 0; i < 20000; ++i) agent_.machine.PostToAgent(window, kIconMessage, 0, 0x200);
  agent_.machine.Run(1000);
  EXPECT_FALSE(agent_.machine.ran_away());
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
}

TEST_F(TrayWindowTest, RightClicksOfAnImpatientUserAreOneMenu) {
  Start();
  const auto window = agent_.agent().form().Window();
  for (int i = 0; i < 5; ++i) agent_.machine.PostToAgent(window, kIconMessage, 0, kRightButtonUp);
  agent_.machine.Run(1000);
  EXPECT_EQ(agent_.host.MenusShown(), 1);
  agent_.RightClick();
  EXPECT_EQ(agent_.host.MenusShown(), 2);
}

}  // namespace
}  // namespace agent
