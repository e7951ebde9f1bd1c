// The switch of continuous backup, with the questions of the product, and what it tells of
// failures.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "shared/file_names.h"
#include "tests/windows/story.h"

namespace {

TEST(ContinuousBackupStory, IsSwitchedOnAndOffWithTheProductsOwnQuestions) {
  Story story;
  story.Script("RealTime", "1", "1");
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.ChooseAndAnswer("Continuous Backup", "Proceed"));
  ASSERT_TRUE(WaitUntil([&] { return story.Calls("[PostCDPStatusMsg 1]") == 1; }));
  EXPECT_EQ("1", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ(1, story.Calls("SorvaneEClsClient.exe [ 23< >]"));
  EXPECT_EQ(1, story.Calls("SorvaneEClsClient.exe [ 9< >]"));
  EXPECT_TRUE(story.WaitForPicture("CDPBlue1.ico"));
  EXPECT_TRUE(story.WaitForPicture("CDPBlue2.ico"));

  ASSERT_TRUE(story.Choose("Continuous Backup",
                           [] { return Shows(kQuestionClass, "On disabling this option"); }));
  ASSERT_TRUE(CloseWith(kQuestionClass, "Proceed"));
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
  ASSERT_TRUE(story.ChooseAndAnswer("Continuous Backup", "Cancel"));
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_EQ("", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ(0, story.Calls("PostCDPStatusMsg"));
}

TEST(ContinuousBackupStory, ATransferThatTheUserKeepsHoldsTheSwitchBack) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  story.SetStatus(status::kStatus, "1");
  ASSERT_TRUE(story.ChooseAndAnswer("Continuous Backup", "Proceed"));
  ASSERT_TRUE(WaitForText(kQuestionClass, "A backup/restore job is in progress."));
  ASSERT_TRUE(CloseWith(kQuestionClass, "No"));
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_EQ("", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ(0, story.Calls("PostCDPStatusMsg"));
}

TEST(ContinuousBackupStory, ATransferThatTheUserGivesUpMakesRoomForTheSwitch) {
  Story story;
  story.Script("Job", "Files", "1000");
  ASSERT_TRUE(story.StartAgent());
  story.Start(lab::kEngineClient, "backup");
  ASSERT_TRUE(WaitUntil([&] { return !story.Setting(shared::keys::kClientPid).empty(); }));
  story.SetStatus(status::kStatus, "1");
  ASSERT_TRUE(story.ChooseAndAnswer("Continuous Backup", "Proceed"));
  ASSERT_TRUE(WaitForText(kQuestionClass, "A backup/restore job is in progress."));
  ASSERT_TRUE(CloseWith(kQuestionClass, "Yes"));
  EXPECT_TRUE(WaitUntil([&] { return story.Calls("[PostCDPStatusMsg 1]") == 1; }));
  EXPECT_FALSE(story.IsRunning(lab::kEngineClient));
  EXPECT_EQ("1", story.Progress(status::kProgressCancel, status::kProgressRequestSection));
  EXPECT_EQ("1", story.Shared(shared::keys::kRealTimeBackup));
}

TEST(ContinuousBackupStory, AModuleThatGoesOnIsWaitedForBeforeItIsToldToEnd) {
  Story story;
  story.SetPlainSetting(shared::keys::kRealTimeBackup, "1");
  story.SetShared(shared::keys::kRtBackup, "1");
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.ChooseAndAnswer("Continuous Backup", "Proceed"));
  EXPECT_TRUE(WaitUntil([&] { return story.Calls("[PostCDPStatusMsg 0]") == 1; }));
  EXPECT_TRUE(WaitUntil([&] { return story.Shared(shared::keys::kRtBackup) == "0"; }));
  EXPECT_EQ("0", story.Shared(shared::keys::kRealTimeBackup));
  EXPECT_EQ("0", story.Shared(shared::keys::kRtPausedBySchedule));
}

TEST(ContinuousBackupStory, AnEngineThatGivesUpSwitchesItOffAgain) {
  Story story;
  story.Script("Commands", "23", "-40");
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.ChooseAndAnswer("Continuous Backup", "Proceed"));
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
  ASSERT_TRUE(story.DoubleClickIcon([] {
    return Shows(kQuestionClass,
                 "The Continuous Data Backup operation has failed as the password was changed from "
                 "the website.");
  }));
  ASSERT_TRUE(CloseWith(kQuestionClass, "OK"));
  EXPECT_TRUE(WaitUntil([&] { return story.Shared(shared::keys::kRtBackup) == "0"; }));
  EXPECT_TRUE(story.WaitForPicture("tvlog.ico"));
  EXPECT_FALSE(story.IsRunning(lab::kMainProgram));
}

}  // namespace
