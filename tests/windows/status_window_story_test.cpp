// The status window as people use it: the real mouse and keys, and the texts of its real controls.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/windows/story.h"

namespace {

TEST(StatusWindowStory, ShowsTheAccountAndClosesByEscape) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.Choose("Status"));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "Account Name:"));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "anna"));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "No backup has been scheduled."));
  ASSERT_TRUE(Press(kStatusWindowClass, "Account Name:"));
  ASSERT_TRUE(PressKeyIn(kStatusWindowClass, VK_ESCAPE));
  EXPECT_TRUE(WaitUntilClosed(kStatusWindowClass));
  EXPECT_TRUE(story.AgentRuns());
}

TEST(StatusWindowStory, PausesByTheMouseAndResumesByTheKeyboard) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(100, 500));
  ASSERT_TRUE(story.Choose("Status"));
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "Backedup files: "));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "C:\\Data\\Documents\\file "));
  ASSERT_TRUE(Press(kStatusWindowClass, "Pause"));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "Resume"));
  EXPECT_EQ("1", story.Status(status::kPaused));
  EXPECT_TRUE(WaitForText(kStatusWindowClass,
                          "Backup process has been paused. Click 'Resume' to continue."));
  EXPECT_TRUE(story.Tip().ends_with("has been paused.")) << story.Tip();

  ASSERT_TRUE(PressKeyIn(kStatusWindowClass, VK_SPACE));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "Pause"));
  EXPECT_EQ("0", story.Status(status::kPaused));
  const std::string count = story.Progress(status::kFileCount);
  EXPECT_TRUE(WaitUntil([&] { return story.Progress(status::kFileCount) != count; }));
}

TEST(StatusWindowStory, AsksBeforeItCancelsAndLeavesACleanChannel) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(100, 500));
  ASSERT_TRUE(story.Choose("Status"));
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "Backedup files: "));
  ASSERT_TRUE(Press(kStatusWindowClass, "Cancel"));
  ASSERT_TRUE(
      WaitForText(kQuestionClass, "Are you sure you want to cancel the backup operation ?"));
  ASSERT_TRUE(Press(kQuestionClass, "No"));
  ASSERT_TRUE(WaitUntilClosed(kQuestionClass));
  EXPECT_TRUE(story.IsRunning(lab::kEngineClient));

  ASSERT_TRUE(Press(kStatusWindowClass, "Cancel"));
  ASSERT_TRUE(Press(kQuestionClass, "Yes"));
  EXPECT_TRUE(WaitUntil([&] { return story.Traced("Backup or restore progress canceled.") > 0; }));
  EXPECT_TRUE(WaitUntil([&] { return !story.IsRunning(lab::kEngineClient); }));
  EXPECT_EQ("0", story.Progress(status::kBackupInProgress));
}

TEST(StatusWindowStory, ShowsTheOutcomeWhenTheJobEnds) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(4, 500));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "The scheduled backup has been completed."));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "Your next backup will occur on "));
}

TEST(StatusWindowStory, TurnsAutoPauseOverWithTheMouse) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(100, 500));
  ASSERT_TRUE(story.Choose("Status"));
  ASSERT_TRUE(Press(kStatusWindowClass, "Auto-Pause"));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "25%"));
  EXPECT_EQ("1", story.Setting(shared::keys::kBackupIdle));
  ASSERT_TRUE(Press(kStatusWindowClass, "Auto-Pause"));
  EXPECT_TRUE(WaitUntil([&] { return story.Setting(shared::keys::kBackupIdle) == "0"; }));
}

TEST(StatusWindowStory, TurnsToTheLoggedOutViewWhenTheUserGoes) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.Choose("Status"));
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "anna"));
  story.machine().profile_files.WriteText(story.places().UserNameIni(), shared::sections::kRegistry,
                                          shared::keys::kDefaultUserName, "");
  EXPECT_TRUE(WaitForText(kStatusWindowClass,
                          "Login to the account for which you want to see the status."));
  EXPECT_EQ(nullptr, ControlOf(kStatusWindowClass, "Account Name:").window);
}

}  // namespace
