// The switches of continuous backup, its failures, and a logout that the explorer asks for.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/windows/story.h"

namespace {

TEST(ContinuousBackupStory, IsSwitchedOnAndOffWithTheProductsOwnQuestions) {
  Story story;
  story.Script("RealTime", "1", "1");
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.Choose("Continuous Backup"));
  ASSERT_TRUE(Press(kQuestionClass, "Proceed"));
  ASSERT_TRUE(WaitUntil([&] { return story.Calls("[PostCDPStatusMsg 1]") == 1; }));
  EXPECT_EQ("1", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ(1, story.Calls("SorvaneEClsClient.exe [ 23< >]"));
  EXPECT_EQ(1, story.Calls("SorvaneEClsClient.exe [ 9< >]"));
  EXPECT_TRUE(story.WaitForPicture("CDPBlue1.ico"));
  EXPECT_TRUE(story.WaitForPicture("CDPBlue2.ico"));

  ASSERT_TRUE(story.Choose("Continuous Backup"));
  ASSERT_TRUE(WaitForText(kQuestionClass, "On disabling this option"));
  ASSERT_TRUE(Press(kQuestionClass, "Proceed"));
  ASSERT_TRUE(WaitUntil([&] { return story.Calls("[PostCDPStatusMsg 0]") == 1; }));
  EXPECT_EQ("0", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_TRUE(WaitUntil([&] { return story.Shared(shared::keys::kRtBackup) == "0"; }));
  // The work that was stopped stays to be seen.
  EXPECT_EQ("3", story.Status(status::kDllStatus));
  EXPECT_TRUE(story.WaitForPicture("tvlogred.ico"));
}

TEST(ContinuousBackupStory, ACancelledQuestionChangesNothing) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.Choose("Continuous Backup"));
  ASSERT_TRUE(Press(kQuestionClass, "Cancel"));
  ASSERT_TRUE(WaitUntilClosed(kQuestionClass));
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_EQ("", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ(0, story.Calls("PostCDPStatusMsg"));
}

TEST(ContinuousBackupStory, ATransferThatTheUserKeepsHoldsTheSwitchBack) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  story.SetStatus(status::kStatus, "1");
  ASSERT_TRUE(story.Choose("Continuous Backup"));
  ASSERT_TRUE(Press(kQuestionClass, "Proceed"));
  ASSERT_TRUE(WaitForText(kQuestionClass, "A backup/restore job is in progress."));
  ASSERT_TRUE(Press(kQuestionClass, "No"));
  ASSERT_TRUE(WaitUntilClosed(kQuestionClass));
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_EQ("", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ(0, story.Calls("PostCDPStatusMsg"));
}

TEST(ContinuousBackupStory, AnEngineThatGivesUpSwitchesItOffAgain) {
  Story story;
  story.Script("Commands", "23", "-40");
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.Choose("Continuous Backup"));
  ASSERT_TRUE(Press(kQuestionClass, "Proceed"));
  ASSERT_TRUE(WaitUntil([&] { return story.Calls("[ 23< >]") == 1; }));
  EXPECT_TRUE(WaitUntil([&] { return story.Shared(shared::keys::kRealTimeBackup) == "0"; }));
  EXPECT_EQ(0, story.Calls("[ 9< >]"));
  EXPECT_EQ(0, story.Calls("PostCDPStatusMsg"));
}

TEST(ContinuousBackupStory, AFailureIsToldByADoubleClickAndCleared) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  story.SetShared(shared::keys::kRtBackup, "3");
  ASSERT_TRUE(story.WaitForPicture("tvlogred.ico"));
  story.DoubleClickIcon();
  ASSERT_TRUE(WaitForText(kQuestionClass,
                          "The Continuous Data Backup operation has failed as the password was "
                          "changed from the website."));
  ASSERT_TRUE(Press(kQuestionClass, "OK"));
  EXPECT_TRUE(WaitUntil([&] { return story.Shared(shared::keys::kRtBackup) == "0"; }));
  EXPECT_TRUE(story.WaitForPicture("tvlog.ico"));
  EXPECT_FALSE(story.IsRunning(lab::kMainProgram));
}

TEST(LogoutStory, TheExplorerEndsEverythingThatRunsForTheUser) {
  Story story;
  story.SetShared(shared::keys::kRealTimeBackup, "1");
  story.SetShared(shared::keys::kRtBackup, "1");
  ASSERT_TRUE(story.StartAgent());
  story.Start(lab::kMainProgram);
  ASSERT_TRUE(WaitForWindow("LabMainProgram"));
  story.Start(lab::kEngineClient, "backup");
  ASSERT_TRUE(WaitUntil([&] { return !story.Setting(shared::keys::kClientPid).empty(); }));
  story.SetStatus(status::kStatus, "1");
  for (const auto name : {shared::files::kContextMenuRun, shared::files::kQuotaExceeded}) {
    story.machine().files.Replace(story.InUserFolder(name), "");
  }
  story.Start("LabExplorer.exe");
  EXPECT_TRUE(WaitUntil([&] { return story.Calls("[PostCDPStatusMsg 0]") == 1; }));
  EXPECT_EQ(0, story.ConnectionStatus());
  EXPECT_FALSE(story.IsRunning(lab::kEngineClient));
  EXPECT_FALSE(story.IsRunning(lab::kMainProgram));
  EXPECT_FALSE(story.machine().files.Exists(story.InUserFolder(shared::files::kQuotaExceeded)));
  EXPECT_EQ("0", story.Shared(shared::keys::kRtBackup));
  EXPECT_EQ("1", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ(0, story.Calls("SendMsgToApp"));
  EXPECT_LT(0, story.Traced("Calling logou t from explorer"));

  // The item of the schedule now leads to the login.
  ASSERT_TRUE(story.Choose("Schedule Backup"));
  EXPECT_LT(0, story.Traced("Connection param = 0"));
  EXPECT_TRUE(WaitUntil([&] { return story.IsRunning(lab::kMainProgram); }));
}

TEST(LogoutStory, ANumberThatNowBelongsToAnotherProgramIsLeftAlone) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  STARTUPINFOA start = {};
  start.cb = sizeof(start);
  PROCESS_INFORMATION other = {};
  char line[] = "cmd /c pause";
  ASSERT_TRUE(CreateProcessA(nullptr, line, nullptr, nullptr, FALSE, CREATE_NO_WINDOW, nullptr,
                             nullptr, &start, &other));
  story.SetSetting(shared::keys::kClientPidRestore, std::to_string(other.dwProcessId));
  story.Start("LabExplorer.exe");
  EXPECT_TRUE(WaitUntil([&] { return story.Calls("[PostCDPStatusMsg 0]") == 1; }));
  EXPECT_LT(0, story.Traced("Terminating the process-Restore  "));
  EXPECT_EQ(static_cast<DWORD>(WAIT_TIMEOUT), WaitForSingleObject(other.hProcess, 0));
  TerminateProcess(other.hProcess, 0);
  CloseHandle(other.hThread);
  CloseHandle(other.hProcess);
}

}  // namespace
