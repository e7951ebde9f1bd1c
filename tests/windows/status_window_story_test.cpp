// The status window as people use it: the real mouse and keys, and the texts of its real controls.
#include <gtest/gtest.h>

#include "lab/engine/login.h"
#include "lab/engine/program_names.h"
#include "tests/windows/story.h"

namespace {

TEST(StatusWindowStory, ShowsTheAccountAndClosesByEscape) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.OpenStatus());
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "Account Name:"));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "anna"));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "No backup has been scheduled."));
  EXPECT_TRUE(PressKeyIn(kStatusWindowClass, VK_ESCAPE,
                         [] { return WindowOf(kStatusWindowClass).window == nullptr; }));
  EXPECT_TRUE(story.AgentRuns());
}

TEST(StatusWindowStory, PausesByTheMouseAndResumesByTheKeyboard) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(100, 500));
  ASSERT_TRUE(story.OpenStatus());
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "Backedup files: "));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "C:\\Data\\Documents\\file "));
  ASSERT_TRUE(
      Press(kStatusWindowClass, "Pause", [] { return Shows(kStatusWindowClass, "Resume"); }));
  EXPECT_EQ("1", story.Status(status::kPaused));
  EXPECT_TRUE(WaitForText(kStatusWindowClass,
                          "Backup process has been paused. Click 'Resume' to continue."));
  EXPECT_TRUE(story.Tip().ends_with("has been paused.")) << story.Tip();

  ASSERT_TRUE(
      PressKeyIn(kStatusWindowClass, VK_SPACE, [] { return Shows(kStatusWindowClass, "Pause"); }));
  EXPECT_EQ("0", story.Status(status::kPaused));
  const std::string count = story.Progress(status::kFileCount);
  EXPECT_TRUE(WaitUntil([&] { return story.Progress(status::kFileCount) != count; }));
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
  ASSERT_TRUE(story.OpenStatus());
  ASSERT_TRUE(
      Press(kStatusWindowClass, "Auto-Pause", [] { return Shows(kStatusWindowClass, "25%"); }));
  EXPECT_EQ("1", story.Setting(shared::keys::kBackupIdle));
  EXPECT_TRUE(Press(kStatusWindowClass, "Auto-Pause",
                    [&] { return story.Setting(shared::keys::kBackupIdle) == "0"; }));
}

TEST(StatusWindowStory, FollowsAnotherUser) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.OpenStatus());
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "anna"));
  lab::LogIn(story.ports(), story.machine().registry, story.places(), "berta");
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "berta"));
  EXPECT_FALSE(Shows(kStatusWindowClass, "anna"));
}

TEST(StatusWindowStory, GivesWayToTheEnginesOwnWindow) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(1000, 500));
  ASSERT_TRUE(story.OpenStatus());
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "Backedup files: "));
  story.machine().profile_files.WriteText(story.InUserFolder(status::kProgressFile),
                                          status::kProgWndSection, status::kProgWndStatus, "1");
  EXPECT_TRUE(WaitUntilClosed(kStatusWindowClass));
  EXPECT_LT(0, story.Traced("Backup or restore progress is shown so unload status window"));
}

TEST(StatusWindowStory, KeepsItsPlaceWhenTheEngineDiesOrLeavesHalfALine) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(1000, 500));
  ASSERT_TRUE(story.OpenStatus());
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "Backedup files: "));
  ASSERT_TRUE(story.Kill(lab::kEngineClient));
  story.machine().files.Replace(story.InUserFolder(status::kProgressFile),
                                "[BackupProgressInfo]\r\nBackupInPro");
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "Account Name:"));
  EXPECT_TRUE(story.AgentRuns());
}

TEST(StatusWindowStory, TurnsToTheLoggedOutViewWhenTheUserGoes) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.OpenStatus());
  ASSERT_TRUE(WaitForText(kStatusWindowClass, "anna"));
  story.machine().profile_files.WriteText(story.places().UserNameIni(), shared::sections::kRegistry,
                                          shared::keys::kDefaultUserName, "");
  EXPECT_TRUE(WaitForText(kStatusWindowClass,
                          "Login to the account for which you want to see the status."));
  EXPECT_EQ(nullptr, ControlOf(kStatusWindowClass, "Account Name:").window);
}

}  // namespace
