// The status window as the tray opens, refreshes and closes it.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "shared/keys.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using ::testing::Contains;
using testing::Effects;
using testing::InstalledAgent;

constexpr std::string_view kWindow = "frmStatus";

class StatusWindowTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  bool IsOpen() {
    const auto* form = agent_.host.Find(kWindow);
    return form != nullptr && form->Visible();
  }
  void OpenFromMenu() {
    agent_.host.ChooseFromMenu("mnuStatus");
    agent_.RightClick();
  }
  void EndJob() {
    agent_.SetStatus(status::kStatusWindow, "1");
    agent_.Tick();
  }

  InstalledAgent agent_;
};

TEST_F(StatusWindowTest, TheMenuOpensItOnce) {
  Start();
  OpenFromMenu();
  EXPECT_TRUE(IsOpen());
  OpenFromMenu();
  EXPECT_THAT(agent_.host.OpenForms(), ::testing::ElementsAre(kWindow));
  EXPECT_EQ(agent_.host.Read(kWindow, "lblUserName"), "ann");
}

TEST_F(StatusWindowTest, TheEndOfAJobOpensItWithTheOutcome) {
  agent_.PutUserFile(status::kScheduleDataFile,
                     "0\r\n1\b\btventbkupjob\b\b03-02-2024 02:00:00\b\b\r\n");
  agent_.PutUserFile(status::kOutcomeFile, "12 files were backed up.\r\n");
  agent_.SetStatus(status::kScheduleEndTime, "03-01-2024 09:58:00");
  Start();
  EndJob();
  EXPECT_TRUE(IsOpen());
  EXPECT_EQ(agent_.host.Read(kWindow, "lblHoursInfo"), "12 files were backed up.");
  EXPECT_FALSE(agent_.state().ForceStatusRefresh);
  EXPECT_EQ(agent_.Status(status::kStatusWindow), "0");
}

TEST_F(StatusWindowTest, TheEndOfAJobRefreshesAnOpenOne) {
  Start();
  OpenFromMenu();
  EndJob();
  EXPECT_TRUE(agent_.state().ForceStatusRefresh);
}

TEST_F(StatusWindowTest, ALogoutByTheMenuClosesIt) {
  Start();
  OpenFromMenu();
  agent_.host.AnswerWith("Continue");
  agent_.agent().form().commands().MnuLoginClick();
  EXPECT_FALSE(IsOpen());
}

TEST_F(StatusWindowTest, TheStopOfAJobShowsInAnOpenOne) {
  agent_.SetProgress(status::kProgWndSection, status::kProgWndJob, "2");
  agent_.PutUserFile(status::kScheduleDataFile, "1\r\n");
  Start();
  OpenFromMenu();
  agent_.agent().form().commands().StopClick();
  EXPECT_EQ(agent_.host.Read(kWindow, "lblHoursInfo"),
            "All your files/folders could not be backed up as the scheduled job was manually "
            "canceled.");
  EXPECT_TRUE(IsOpen());
}

TEST_F(StatusWindowTest, WithoutOneTheStopOfAJobShowsNothing) {
  agent_.PutUserFile(status::kScheduleDataFile, "1\r\n");
  Start();
  agent_.agent().form().commands().StopClick();
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(agent_.HasUserFile(status::kOutcomeFile));
}

TEST_F(StatusWindowTest, ATransferIsSeenPausedAndResumed) {
  agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
  agent_.SetProgress(status::kBackupProgressSection, status::kFileCount, "12 of 40");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndStatus, "0");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndValue, "7");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndJob, "2");
  Start();
  OpenFromMenu();
  agent_.machine.Run(2000);
  EXPECT_EQ(agent_.host.Read(kWindow, "lblFileCountBkup"), "Backedup files: 12 of 40");
  agent_.host.Click(kWindow, "cmd_ProgPause");
  EXPECT_EQ(agent_.Status(status::kPaused), "1");
  EXPECT_EQ(agent_.Tip(), "Sorvane - The scheduled backup job has been paused.");
  EXPECT_EQ(agent_.host.Read(kWindow, "cmd_ProgPause"), "Resume");
  agent_.host.Click(kWindow, "cmd_ProgPause");
  EXPECT_EQ(agent_.Status(status::kPaused), "0");
  EXPECT_EQ(agent_.host.Read(kWindow, "cmd_ProgPause"), "Pause");
}

TEST_F(StatusWindowTest, AChangeOfUserIsSeenWithinOneFastTick) {
  Start();
  OpenFromMenu();
  agent_.ForgetUser();
  agent_.machine.Run(2000);
  EXPECT_EQ(agent_.host.Read(kWindow, "lblHoursInfo"),
            "Login to the account for which you want to see the status.");
  EXPECT_TRUE(IsOpen());
}

TEST_F(StatusWindowTest, TheEnginesOwnWindowMakesItGiveWay) {
  Start();
  OpenFromMenu();
  agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndStatus, "1");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndValue, "7");
  agent_.machine.Run(2000);
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(agent_.Item("mnuStatus").Enabled());
}

struct CancelCase {
  std::string_view job;
  std::string_view question;
  std::string_view outcome;
};

constexpr CancelCase kCancels[] = {
    {"1", "ask Are you sure you want to cancel the backup operation ?", "\r\n"},
    {"2", "ask Are you sure you want to cancel the backup operation ?",
     "All your files/folders could not be backed up as the scheduled job was manually "
     "canceled.\r\n"},
    {"3", "ask Are you sure you want to cancel the restore operation ?", "\r\n"},
};

TEST(StatusWindowCancel, OfEachJobEndsTheEngineAndLeavesItsOutcome) {
  for (const CancelCase& one : kCancels) {
    SCOPED_TRACE(one.job);
    InstalledAgent agent;
    agent.machine.processes().Start(agent.Path("SorvaneEClsClient.exe"));
    agent.PutUserFile(status::kScheduleDataFile, one.job == "2" ? "1\r\n" : "0\r\n");
    const bool restore = one.job == "3";
    agent.SetProgress(restore ? status::kRestoreProgressSection : status::kBackupProgressSection,
                      restore ? status::kRestoreInProgress : status::kBackupInProgress, "1");
    agent.SetProgress(status::kProgWndSection, status::kProgWndStatus, "0");
    agent.SetProgress(status::kProgWndSection, status::kProgWndValue, "7");
    agent.SetProgress(status::kProgWndSection, status::kProgWndJob, one.job);
    ASSERT_TRUE(agent.Start());
    agent.StopTimers();
    agent.host.ChooseFromMenu("mnuStatus");
    agent.RightClick();
    agent.host.AnswerWith("Continue");
    agent.machine.journal().Clear();
    agent.host.Click(kWindow, "cmd_ProgCancel");
    EXPECT_THAT(Effects(agent), Contains(std::string(one.question)));
    EXPECT_EQ(agent.host.Find(kWindow), nullptr);
    EXPECT_FALSE(agent.machine.processes().IsRunning("SorvaneEClsClient.exe"));
    EXPECT_EQ(agent.Status(status::kCancel), "1");
    EXPECT_EQ(agent.Status(status::kPaused), "0");
    EXPECT_EQ(agent.machine.files().Content(agent.UserPath(status::kOutcomeFile)), one.outcome);
    EXPECT_FALSE(
        status::ProgressChannel(agent.machine.platform(), agent.state()).IsTransferInProgress());
  }
}

TEST_F(StatusWindowTest, ACancelledInteractiveBackupLeavesACleanChannel) {
  agent_.machine.processes().Start(agent_.Path("SorvaneEClsClient.exe"));
  agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress, "1");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndStatus, "0");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndValue, "7");
  agent_.SetProgress(status::kProgWndSection, status::kProgWndJob, "1");
  Start();
  OpenFromMenu();
  agent_.machine.Run(2000);
  agent_.host.AnswerWith("Continue");
  agent_.machine.journal().Clear();
  agent_.host.Click(kWindow, "cmd_ProgCancel");
  EXPECT_THAT(Effects(agent_),
              Contains("ask Are you sure you want to cancel the backup operation ?"));
  EXPECT_FALSE(IsOpen());
  EXPECT_FALSE(agent_.machine.processes().IsRunning("SorvaneEClsClient.exe"));
  EXPECT_EQ(agent_.Status(status::kCancel), "1");
  const std::string progress = agent_.UserPath(status::kProgressFile);
  EXPECT_EQ(
      agent_.machine.files().IniValue(progress, status::kProgWndSection, status::kProgWndValue),
      "0");
}

}  // namespace
}  // namespace agent
