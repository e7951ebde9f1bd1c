// A logout that the explorer asks for: everything that runs for the user ends.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "shared/file_names.h"
#include "tests/windows/story.h"

namespace {

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
  EXPECT_TRUE(story.Choose("Schedule Backup", [&] { return story.IsRunning(lab::kMainProgram); }));
  EXPECT_LT(0, story.Traced("Connection param = 0"));
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
