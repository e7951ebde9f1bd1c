#include "agent/continuous_backup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using ::testing::Contains;
using testing::Effects;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::InstalledAgent;
using ::testing::IsEmpty;
using ::testing::Not;
namespace files = shared::files;
namespace keys = shared::keys;
namespace sections = shared::sections;

class ContinuousBackupTest : public ::testing::Test {
 protected:
  ContinuousBackupTest() {
    agent_.machine.libraries().PutFunction(agent_.Path("SorvaneERealTime.dll"), "PostCDPStatusMsg",
                                           [this](std::int32_t order) {
                                             orders_.push_back(order);
                                             return 0;
                                           });
    agent_.machine.files().Put(agent_.Path("SorvaneEClsClient.exe"), "");
    agent_.machine.processes().Install(
        "SorvaneEClsClient.exe",
        [this](const platform::memory::Launch& launch) { Answer(launch); });
    agent_.SetShifted(keys::kServerIp, "192.0.2.77");
    agent_.SetShifted(keys::kPort, "4000");
    agent_.SetShifted(keys::kRandom, "12345");
  }
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  // The engine client: the next scripted result, 402 when the script is over.
  void Answer(const platform::memory::Launch& launch) {
    asked_.push_back(launch.arguments);
    const std::string result = script_.empty() ? "402" : script_.front();
    if (!script_.empty()) script_.erase(script_.begin());
    agent_.machine.processes().After(launch.id, 500, [this, result, id = launch.id] {
      agent_.SetStatus(status::kRetValue, result);
      if (when_answered_) when_answered_();
      agent_.machine.processes().End(id);
    });
  }
  void Click(const char* answer) {
    agent_.host.AnswerWith(answer);
    agent_.agent().form().commands().MnuCdpClick();
  }
  void SwitchOn() {
    Click("Continue");
    agent_.machine.Run(100);
  }
  void SwitchOff() {
    Item().SetChecked(true);
    Click("Continue");
    agent_.machine.journal().Clear();
    agent_.machine.Run(100);
  }
  std::string Profile(std::string_view key) {
    return agent_.machine.files().IniValue(agent_.UserPath("SorvaneE.ini"), sections::kTolvex, key);
  }
  forms::MenuItem& Item() { return agent_.Item("mnuCDP"); }
  forms::Timer& Timer() { return agent_.agent().form().CDPTimer; }

  InstalledAgent agent_;
  std::vector<std::int32_t> orders_;
  std::vector<std::string> script_;
  std::vector<std::string> asked_;
  std::function<void()> when_answered_;
};

TEST_F(ContinuousBackupTest, AsksBeforeItSwitchesEitherWay) {
  Start();
  Click("IDCancel");
  Item().SetChecked(true);
  Click("IDCancel");
  EXPECT_THAT(Effects(agent_),
              ElementsAre("ask On enabling this option, files and folders selected for backup will "
                          "be backed up in real time on detecting changes.",
                          "ask On disabling this option, your files and folders will be backed up "
                          "only at the next scheduled time."));
  EXPECT_FALSE(Timer().Enabled());
}

TEST_F(ContinuousBackupTest, WithNobodyLoggedInLeadsToTheLogin) {
  agent_.ForgetUser();
  Start();
  Click("Continue");
  EXPECT_THAT(Effects(agent_),
              ElementsAre("ask To enable continuous backup login to your Sorvane account.",
                          "start C:\\Sorvane\\SorvaneEClassic.exe"));
  EXPECT_FALSE(Timer().Enabled());
}

TEST_F(ContinuousBackupTest, EnablesInItsOrder) {
  Start();
  SwitchOn();
  EXPECT_EQ(asked_, (std::vector<std::string>{" 23< >", " 9< >"}));
  EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
  const std::vector<std::string> effects = Effects(agent_);
  const std::vector<std::string> tail(effects.end() - 5, effects.end());
  EXPECT_THAT(tail, ElementsAre("write Registry.CurrentUser=ann", "write Tolvex.RealTimeBackup=1",
                                "write Tolvex.RealTimeBackup=1", "write Tolvex.RTBPausedBySch=0",
                                "call SorvaneERealTime.dll.PostCDPStatusMsg(1)"));
  EXPECT_THAT(effects, Contains("tip Enabling the Continuous Data Backup operation."));
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "1");
  EXPECT_EQ(Profile(keys::kRealTimeBackup), "1");
  EXPECT_FALSE(Item().Checked());
  EXPECT_FALSE(Timer().Enabled());
  EXPECT_EQ(agent_.agent().form().MousePointer(), forms::Pointer::kDefault);
  agent_.RightClick();
  EXPECT_TRUE(Item().Checked());
}

TEST_F(ContinuousBackupTest, ARunningTransferThatIsKeptLeavesAllValuesAndTheTimerOff) {
  agent_.SetStatus(status::kStatus, "1");
  Start();
  Click("Continue");
  agent_.host.AnswerWith("IDCancel");
  const std::string before = agent_.machine.files().Dump();
  agent_.machine.journal().Clear();
  agent_.machine.Run(100);
  EXPECT_THAT(Effects(agent_),
              ElementsAre("ask A backup/restore job is in progress. Do you want to cancel it?"));
  EXPECT_EQ(agent_.machine.files().Dump(), before);
  EXPECT_FALSE(Timer().Enabled());
  EXPECT_THAT(orders_, IsEmpty());
}

TEST_F(ContinuousBackupTest, ARunningTransferIsEndedFirst) {
  auto& processes = agent_.machine.processes();
  const auto backup = processes.Start("C:\\Sorvane\\client.exe");
  const auto restore = processes.Start("C:\\Sorvane\\client.exe");
  processes.Start("C:\\Sorvane\\SorvaneEContextMenu.exe");
  agent_.SetStatus(status::kStatus, "2");
  agent_.SetShifted(keys::kClientPid, std::to_string(backup));
  agent_.SetShifted(keys::kClientPidRestore, std::to_string(restore));
  agent_.PutUserFile(files::kContextMenuRun);
  Start();
  Click("Continue");
  agent_.host.AnswerWith("Continue");
  agent_.machine.journal().Clear();
  agent_.machine.Run(100);
  const std::vector<std::string> effects = Effects(agent_);
  const std::vector<std::string> head(effects.begin(), effects.begin() + 10);
  EXPECT_THAT(head,
              ElementsAre("ask A backup/restore job is in progress. Do you want to cancel it?",
                          "end client.exe", "end client.exe", "write BackupStatus.Status=5",
                          "write BackupStatus.DLLStatus=3", "end SorvaneEContextMenu.exe",
                          "remove ContextMenuRun.txt", "write BackupStatus.Status=5",
                          "write ProgressInfo.Cancel=1",
                          "tip Enabling the Continuous Data Backup operation."));
  EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
}

TEST_F(ContinuousBackupTest, ARefusedLoginTakesTheChoiceBack) {
  script_ = {"-40"};
  Start();
  SwitchOn();
  EXPECT_EQ(asked_, std::vector<std::string>{" 23< >"});
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_EQ(Profile(keys::kRealTimeBackup), "0");
  EXPECT_THAT(orders_, IsEmpty());
  EXPECT_FALSE(Timer().Enabled());
}

TEST_F(ContinuousBackupTest, AServerThatCannotBeReachedIsLeftForTheOtherOnce) {
  script_ = {"-12010", "-12010", "-416"};
  Start();
  SwitchOn();
  EXPECT_EQ(asked_, (std::vector<std::string>{" 23< >", " 23< >", " 23< >", " 23< >", " 9< >"}));
  EXPECT_EQ(agent_.machine.journal().Count("profile", "[Tolvex] IPAddres="), 1u);
  EXPECT_EQ(Profile(keys::kPlainAddress), "192.0.2.10");
  EXPECT_EQ(Profile(keys::kPlainPort), "11905");
}

TEST_F(ContinuousBackupTest, TheAccountIsAskedTenTimesWithOneFallback) {
  script_ = std::vector<std::string>(11, "-416");
  script_[0] = "402";
  Start();
  SwitchOn();
  EXPECT_EQ(asked_.size(), 11u);
  EXPECT_EQ(agent_.machine.journal().Count("profile", "[Tolvex] IPAddres="), 1u);
  EXPECT_THAT(orders_, IsEmpty());
}

TEST_F(ContinuousBackupTest, ARedirectionIsFollowed) {
  when_answered_ = [this] { agent_.PutUserFile(files::kDllOutput1, "5000\r\n192.0.2.99\r\n"); };
  Start();
  SwitchOn();
  EXPECT_EQ(Profile(keys::kPlainAddress), "192.0.2.99");
  EXPECT_EQ(Profile(keys::kPlainPort), "5000");
}

TEST_F(ContinuousBackupTest, UnknownRandomDigitsThatAreNotRenewedRefuse) {
  script_ = {"402", "-505"};
  Start();
  SwitchOn();
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_THAT(orders_, IsEmpty());
}

TEST_F(ContinuousBackupTest, TheUserOfTheClientIsPutBack) {
  agent_.SetShared(keys::kInteractive, "bob");
  script_ = {"-12010"};
  Start();
  SwitchOn();
  EXPECT_EQ(agent_.Shared(keys::kInteractive), "bob");
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
}

TEST_F(ContinuousBackupTest, DisablesWithinTwoSecondsWhenTheModuleStops) {
  agent_.SetShared(keys::kRtBackup, "0");
  Start();
  const auto before = agent_.machine.now();
  SwitchOff();
  EXPECT_THAT(
      Effects(agent_),
      ElementsAre("tip Disabling Continuous Backup.", "write Tolvex.RealTimeBackup=0",
                  "write Tolvex.RealTimeBackup=0", "write Tolvex.RealTimeBackup=0",
                  "write Tolvex.RealTimeBackup=0", "write Tolvex.RTBPausedBySch=0",
                  "call SorvaneERealTime.dll.PostCDPStatusMsg(0)", "write Tolvex.RTBackup=0"));
  EXPECT_GE(agent_.machine.now() - before, 2000u);
  EXPECT_LT(agent_.machine.now() - before, 2500u);
  EXPECT_FALSE(Item().Checked());
  EXPECT_FALSE(Timer().Enabled());
}

TEST_F(ContinuousBackupTest, DisablesWithinSevenSecondsWhenTheModuleStaysOn) {
  agent_.SetShared(keys::kRtBackup, "1");
  Start();
  const auto before = agent_.machine.now();
  SwitchOff();
  EXPECT_THAT(
      Effects(agent_),
      ElementsAre("tip Disabling Continuous Backup.", "write BackupStatus.Status=5",
                  "write BackupStatus.DLLStatus=3", "write Tolvex.RealTimeBackup=0",
                  "write Tolvex.RealTimeBackup=0", "write BackupStatus.Status=5",
                  "write BackupStatus.DLLStatus=3", "write Tolvex.RealTimeBackup=0",
                  "write Tolvex.RealTimeBackup=0", "write Tolvex.RTBPausedBySch=0",
                  "call SorvaneERealTime.dll.PostCDPStatusMsg(0)", "write Tolvex.RTBackup=0"));
  EXPECT_GE(agent_.machine.now() - before, 7000u);
}

TEST_F(ContinuousBackupTest, TwoJobsThatHoldTheModulePausedNeedTwoEnds) {
  agent_.SetShared(keys::kRtPausedBySchedule, "2");
  Start();
  auto& continuous = agent_.agent().form().commands().continuous_backup();
  continuous.RestartRealtimeSystem();
  EXPECT_THAT(orders_, IsEmpty());
  EXPECT_EQ(agent_.Shared(keys::kRtPausedBySchedule), "1");
  continuous.RestartRealtimeSystem();
  EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
  EXPECT_EQ(agent_.Shared(keys::kRtPausedBySchedule), "0");
}

TEST_F(ContinuousBackupTest, AMissingModuleIsASilentFailure) {
  agent_.machine.files().Delete(agent_.Path("SorvaneERealTime.dll"));
  agent_.SetShared(keys::kRtBackup, "0");
  Start();
  SwitchOff();
  EXPECT_THAT(orders_, IsEmpty());
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
}

// Opens the menu for each of its items, one after another, while a handler waits.
int OpenEveryItem(InstalledAgent& agent) {
  int popups = 0;
  for (const auto& item : agent.agent().form().menu().Popup().Items()) {
    if (item.Name() == "MnuExit" || item.Separator()) continue;
    agent.machine.AtAgent(agent.machine.now() + 300 + 150 * static_cast<unsigned>(popups++),
                          [&agent, name = item.Name()] {
                            auto& form = agent.agent().form();
                            agent.host.ChooseFromMenu(name);
                            form.PopUp(form.menu().Popup());
                          });
  }
  return popups;
}

TEST_F(ContinuousBackupTest, TicksAndEveryMenuItemRunThroughTheWaitForTheModule) {
  agent_.SetShared(keys::kRtBackup, "1");
  ASSERT_TRUE(agent_.Start());
  const int popups = OpenEveryItem(agent_);
  Item().SetChecked(true);
  Click("Continue");
  agent_.machine.Run(8000);
  EXPECT_FALSE(agent_.machine.ran_away());
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_FALSE(agent_.state().ContinuousSwitchUnderWay);
  EXPECT_GE(agent_.host.MenusShown(), popups);
}

TEST_F(ContinuousBackupTest, TicksAndEveryMenuItemRunThroughTheWaitForTheEngine) {
  script_ = std::vector<std::string>(8, "-1");
  ASSERT_TRUE(agent_.Start());
  const int popups = OpenEveryItem(agent_);
  Click("Continue");
  agent_.machine.Run(30000);
  EXPECT_FALSE(agent_.machine.ran_away());
  EXPECT_FALSE(agent_.state().ContinuousSwitchUnderWay);
  EXPECT_FALSE(Timer().Enabled());
  EXPECT_GE(agent_.host.MenusShown(), popups);
}

TEST_F(ContinuousBackupTest, TheQuestionCarriesTheNoteOnFileSizes) {
  Start();
  bool noted = false;
  agent_.host.Answer([&](forms::Form& box) {
    noted = box.Find("lblnote")->Visible() && box.Find("lblcdp")->Visible();
    box.Unload();
  });
  agent_.agent().form().commands().MnuCdpClick();
  EXPECT_TRUE(noted);
}

TEST_F(ContinuousBackupTest, ALogoutDuringTheLoginTakesTheChoiceBack) {
  when_answered_ = [this] {
    when_answered_ = nullptr;
    agent_.machine.AtAgent(agent_.machine.now(),
                           [this] { agent_.agent().form().commands().ExplorerLogout(); });
  };
  Start();
  SwitchOn();
  EXPECT_EQ(orders_, std::vector<std::int32_t>{0});
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
}

TEST_F(ContinuousBackupTest, TheEngineActsForTheUserWhoSwitches) {
  agent_.SetShared(keys::kInteractive, "");
  std::string acted_for;
  when_answered_ = [&] { acted_for = agent_.Shared(keys::kInteractive); };
  Start();
  SwitchOn();
  EXPECT_EQ(acted_for, "ann");
  EXPECT_EQ(agent_.Shared(keys::kInteractive), "");
  EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
}

TEST_F(ContinuousBackupTest, WithoutAClientTheAgentStaysAliveInTheWait) {
  agent_.machine.files().Delete(agent_.Path("SorvaneEClsClient.exe"));
  ASSERT_TRUE(agent_.Start());
  bool ticked = false;
  bool answered = false;
  agent_.machine.AtAgent(agent_.machine.now() + 30000,
                         [&] { agent_.SetShared(keys::kRtBackup, "4"); });
  agent_.machine.AtAgent(agent_.machine.now() + 40000, [&] {
    ticked = agent_.Picture() == "tvlogred.ico";
    agent_.host.ChooseFromMenu("mnuStatus");
    agent_.RightClick();
    answered = agent_.host.Find("frmStatus") != nullptr;
    agent_.agent().form().commands().MnuExitClick();
  });
  Click("Continue");
  agent_.machine.Run(60000);
  EXPECT_TRUE(ticked);
  EXPECT_TRUE(answered);
  EXPECT_TRUE(agent_.machine.exited());
}

TEST_F(ContinuousBackupTest, ASecondClickDuringTheSwitchAsksNothing) {
  agent_.SetShared(keys::kRtBackup, "0");
  Start();
  agent_.machine.AtAgent(agent_.machine.now() + 1000,
                         [this] { agent_.agent().form().commands().MnuCdpClick(); });
  SwitchOff();
  EXPECT_THAT(Effects(agent_), Not(Contains(HasSubstr("ask "))));
}

TEST_F(ContinuousBackupTest, TheProgramCanEndDuringTheWait) {
  agent_.SetShared(keys::kRtBackup, "1");
  Start();
  agent_.machine.AtAgent(agent_.machine.now() + 1000,
                         [this] { agent_.agent().form().commands().MnuExitClick(); });
  SwitchOff();
  EXPECT_TRUE(agent_.machine.exited());
}

}  // namespace
}  // namespace agent
