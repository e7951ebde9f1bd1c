#include "agent/continuous_backup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/continuous_fixture.h"
#include "tests/agent/effects.h"

namespace agent {
namespace {

using ::testing::Contains;
using testing::Effects;
using ::testing::ElementsAre;
using ::testing::ElementsAreArray;
using ::testing::HasSubstr;
using ::testing::IsEmpty;
using ::testing::Not;
namespace files = shared::files;
namespace keys = shared::keys;
namespace sections = shared::sections;

// Milliseconds: until the one-shot timer ticks, and of each look at the module.
constexpr std::uint64_t kTimer = 100;
constexpr std::uint64_t kRound = 100;

class ContinuousBackupTest : public testing::ContinuousFixture {};

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

// Everything between the click and the module's order, when no transfer runs.
std::vector<std::string> Enabling() {
  return {"tip Enabling the Continuous Data Backup operation.",
          "write Tolvex.RealTimeBackup=1",
          "write Tolvex.RealTimeBackup=1",
          "write Tolvex.Interactive=ann",
          "start C:\\Sorvane\\SorvaneEClsClient.exe  23< >",
          "start C:\\Sorvane\\SorvaneEClsClient.exe  9< >",
          "write Tolvex.Interactive=ann",
          "tip No backup has been scheduled.",
          "write Registry.CurrentUser=ann",
          "write Tolvex.RealTimeBackup=1",
          "write Tolvex.RealTimeBackup=1",
          "write Tolvex.RTBPausedBySch=0",
          "call SorvaneERealTime.dll.PostCDPStatusMsg(1)"};
}

TEST_F(ContinuousBackupTest, EnablesInItsOrder) {
  Start();
  Click("Continue");
  agent_.machine.journal().Clear();
  agent_.machine.Run(100);
  EXPECT_THAT(Effects(agent_), ElementsAreArray(Enabling()));
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "1");
  EXPECT_EQ(Profile(keys::kRealTimeBackup), "1");
  EXPECT_FALSE(Item().Checked());
  EXPECT_FALSE(Timer().Enabled());
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
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
  std::vector<std::string> expected = {
      "ask A backup/restore job is in progress. Do you want to cancel it?",
      "end client.exe",
      "end client.exe",
      "write BackupStatus.Status=5",
      "write BackupStatus.DLLStatus=3",
      "end SorvaneEContextMenu.exe",
      "remove ContextMenuRun.txt",
      "write BackupStatus.Status=5",
      "write ProgressInfo.Cancel=1"};
  for (std::string& line : Enabling()) expected.push_back(line);
  EXPECT_THAT(Effects(agent_), ElementsAreArray(expected));
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
  EXPECT_EQ(agent_.machine.now() - before, kTimer + 20 * kRound);
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
  EXPECT_EQ(agent_.machine.now() - before, kTimer + 70 * kRound);
}

TEST_F(ContinuousBackupTest, AModuleThatStopsInTheSecondWaitIsStillWaitedForToItsEnd) {
  agent_.SetShared(keys::kRtBackup, "1");
  Start();
  const auto before = agent_.machine.now();
  agent_.machine.At(before + 4000, [this] { agent_.SetShared(keys::kRtBackup, "0"); });
  SwitchOff();
  EXPECT_EQ(agent_.machine.now() - before, kTimer + 70 * kRound);
  EXPECT_EQ(agent_.machine.journal().Count("profile", "DLLStatus=3"), 2u);
  EXPECT_EQ(orders_, std::vector<std::int32_t>{0});
}

TEST_F(ContinuousBackupTest, AModuleThatStopsInTheFirstWaitIsAskedOnlyOnce) {
  agent_.SetShared(keys::kRtBackup, "1");
  Start();
  const auto before = agent_.machine.now();
  agent_.machine.At(before + 1500, [this] { agent_.SetShared(keys::kRtBackup, "0"); });
  SwitchOff();
  EXPECT_EQ(agent_.machine.now() - before, kTimer + 20 * kRound);
  EXPECT_EQ(agent_.machine.journal().Count("profile", "DLLStatus=3"), 1u);
}

TEST_F(ContinuousBackupTest, DisablingTellsTheUsersFileAndTheProfile) {
  agent_.SetShared(keys::kRealTimeBackup, "1");
  agent_.SetProfile(sections::kTolvex, keys::kRealTimeBackup, "1");
  agent_.SetShared(keys::kRtPausedBySchedule, "2");
  agent_.SetShared(keys::kRtBackup, "5");
  Start();
  SwitchOff();
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_EQ(Profile(keys::kRealTimeBackup), "0");
  EXPECT_EQ(agent_.Shared(keys::kRtPausedBySchedule), "0");
  EXPECT_EQ(agent_.Shared(keys::kRtBackup), "0");
}

TEST_F(ContinuousBackupTest, TwoJobsThatHoldTheModulePausedNeedTwoEnds) {
  agent_.SetShared(keys::kRtPausedBySchedule, "2");
  Start();
  auto& continuous = Commands().continuous_backup();
  continuous.RestartRealtimeSystem();
  EXPECT_THAT(orders_, IsEmpty());
  EXPECT_EQ(agent_.Shared(keys::kRtPausedBySchedule), "1");
  continuous.RestartRealtimeSystem();
  EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
  EXPECT_EQ(agent_.Shared(keys::kRtPausedBySchedule), "0");
}

TEST_F(ContinuousBackupTest, ACountOfPausesThatIsNoPausedJobNeverStartsTheModule) {
  struct Row {
    const char* before;
    const char* after;
  };
  constexpr Row kRows[] = {{"", "-1"},   {"0", "-1"},        {"many", "-1"},
                           {"-1", "-2"}, {"32767", "32766"}, {"3", "2"}};
  Start();
  for (const Row& row : kRows) {
    agent_.SetShared(keys::kRtPausedBySchedule, row.before);
    Commands().continuous_backup().RestartRealtimeSystem();
    EXPECT_EQ(agent_.Shared(keys::kRtPausedBySchedule), row.after) << row.before;
  }
  EXPECT_THAT(orders_, IsEmpty());
}

TEST_F(ContinuousBackupTest, TheLastJobsEndStartsTheModuleAndGivesItASecond) {
  agent_.SetShared(keys::kRtPausedBySchedule, "1");
  Start();
  const auto before = agent_.machine.now();
  Commands().continuous_backup().RestartRealtimeSystem();
  EXPECT_THAT(Effects(agent_), ElementsAre("write Tolvex.RTBPausedBySch=0",
                                           "call SorvaneERealTime.dll.PostCDPStatusMsg(1)"));
  EXPECT_EQ(agent_.machine.now() - before, 1000u);
}

TEST_F(ContinuousBackupTest, ProcessIdsThatAreStaleOrAnotherProgramsEndNothing) {
  auto& processes = agent_.machine.processes();
  const auto stranger = processes.Start("C:\\Windows\\notepad.exe");
  struct Row {
    std::string backup, restore;
  };
  const Row rows[] = {
      {"99999", "no number"},
      {std::to_string(stranger), std::to_string(processes.own_id())},
      {std::to_string(processes.RunningId("SorvaneEBackground.exe")), ""},
  };
  Start();
  for (const Row& row : rows) {
    orders_.clear();
    agent_.SetStatus(status::kStatus, "1");
    agent_.SetShifted(keys::kClientPid, row.backup);
    agent_.SetShifted(keys::kClientPidRestore, row.restore);
    Click("Continue");
    agent_.host.AnswerWith("Continue");
    agent_.machine.Run(100);
    EXPECT_EQ(agent_.machine.journal().Count("process", "terminate"), 0u) << row.backup;
    EXPECT_EQ(agent_.Status(status::kStatus), "5") << row.backup;
    EXPECT_EQ(orders_, std::vector<std::int32_t>{1}) << row.backup;
  }
}

TEST_F(ContinuousBackupTest, AMissingModuleIsASilentFailure) {
  agent_.machine.files().Delete(agent_.Path("SorvaneERealTime.dll"));
  agent_.SetShared(keys::kRtBackup, "0");
  Start();
  SwitchOff();
  EXPECT_THAT(orders_, IsEmpty());
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
}

TEST_F(ContinuousBackupTest, ALogoutDuringTheLoginTakesTheChoiceBack) {
  when_answered_ = [this] {
    when_answered_ = nullptr;
    agent_.machine.AtAgent(agent_.machine.now(), [this] { Commands().ExplorerLogout(); });
  };
  Start();
  SwitchOn();
  EXPECT_EQ(orders_, std::vector<std::int32_t>{0});
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_EQ(agent_.ConnectionStatus(), 0u);
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
    Commands().MnuExitClick();
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
  agent_.machine.AtAgent(agent_.machine.now() + 1000, [this] { Commands().MnuCdpClick(); });
  SwitchOff();
  EXPECT_THAT(Effects(agent_), Not(Contains(HasSubstr("ask "))));
}

TEST_F(ContinuousBackupTest, AnAnswerThatComesAfterAnotherSwitchTurnsNothingBack) {
  agent_.SetShared(keys::kRtBackup, "0");
  Start();
  Item().SetChecked(true);
  // The second question is answered once the switch of the first has ended.
  agent_.host.AnswerWith("Continue");
  agent_.host.Answer([this](forms::Form& box) {
    agent_.machine.Run(3000);
    box.PressKey(box.Find("TextCont"), forms::Key::kEnter);
  });
  Commands().MnuCdpClick();
  Commands().MnuCdpClick();
  agent_.machine.Run(3000);
  EXPECT_EQ(orders_, std::vector<std::int32_t>{0});
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
}

TEST_F(ContinuousBackupTest, ALogoutOverTheQuestionAboutTheTransferEndsTheSwitch) {
  agent_.SetStatus(status::kStatus, "1");
  Start();
  Click("Continue");
  agent_.host.Answer([this](forms::Form& box) {
    Commands().ExplorerLogout();
    box.PressKey(box.Find("TextCont"), forms::Key::kEnter);
  });
  agent_.machine.Run(100);
  EXPECT_THAT(asked_, IsEmpty());
  EXPECT_EQ(orders_, std::vector<std::int32_t>{0});
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "");
}

TEST_F(ContinuousBackupTest, APasswordThatIsChangedDuringTheLoginTakesTheChoiceBack) {
  when_answered_ = [this] {
    when_answered_ = nullptr;
    agent_.machine.AtAgent(agent_.machine.now(),
                           [this] { Commands().HandleWebManagerError(kWebPasswordChanged); });
  };
  Start();
  SwitchOn();
  EXPECT_THAT(orders_, IsEmpty());
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
}

TEST_F(ContinuousBackupTest, TheProgramCanEndDuringTheWait) {
  agent_.SetShared(keys::kRtBackup, "1");
  Start();
  agent_.machine.AtAgent(agent_.machine.now() + 1000, [this] { Commands().MnuExitClick(); });
  SwitchOff();
  EXPECT_TRUE(agent_.machine.exited());
}

}  // namespace
}  // namespace agent
