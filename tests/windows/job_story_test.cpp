// What a person does about jobs at the icon's menu: stop one, switch the schedule off and on, start
// one now; and the words that show beside them.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "lab/engine/schedule_file.h"
#include "shared/file_names.h"
#include "tests/windows/story.h"

namespace {

constexpr std::string_view kStopped = "Stopped backup from mnuStop Tray status";

TEST(JobStory, AStopIsSeenByTheEngineAndTurnsTheIconRed) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(100, 1000));
  ASSERT_TRUE(story.WaitForPicture("tvlogyellow.ico"));
  ASSERT_TRUE(
      story.Choose("Stop Scheduled Backup", [&] { return !story.IsRunning(lab::kEngineClient); }));
  EXPECT_TRUE(story.WaitForPicture("tvlogred.ico"));
  EXPECT_EQ("The scheduled backup has been canceled.\r\n",
            story.machine()
                .files.Read(story.InUserFolder(shared::files::kScheduleStatus), 1000)
                .value_or(""));
  EXPECT_TRUE(WaitUntil([&] { return story.Traced(kStopped) == 1; }));
  // There is nothing left to stop.
  ASSERT_TRUE(story.ChooseInVain("Stop Scheduled Backup"));
  EXPECT_EQ(1, story.Traced(kStopped));
}

TEST(JobStory, AStopAfterTheJobChangesNothing) {
  Story story;
  ASSERT_TRUE(story.StartAgentWithJob(2, 500));
  ASSERT_TRUE(story.WaitForPicture("tvloggreen.ico"));
  ASSERT_TRUE(story.ChooseInVain("Stop Scheduled Backup"));
  EXPECT_EQ(0, story.Traced(kStopped));
  EXPECT_EQ("The scheduled backup has been completed.\r\n",
            story.machine()
                .files.Read(story.InUserFolder(shared::files::kScheduleStatus), 1000)
                .value_or(""));
}

TEST(JobStory, AStopEndsAnEngineThatHearsNothing) {
  Story story;
  story.Script("Job", "Ending", "freeze");
  ASSERT_TRUE(story.StartAgentWithJob(1, 500));
  ASSERT_TRUE(story.WaitForPicture("tvlogyellow.ico"));
  ASSERT_TRUE(
      story.Choose("Stop Scheduled Backup", [&] { return !story.IsRunning(lab::kEngineClient); }));
  EXPECT_TRUE(WaitUntil([&] { return story.Status(status::kDllStatus) == "3"; }));
  EXPECT_EQ("5", story.Status(status::kStatus));
  EXPECT_EQ("1", story.Status(status::kCancel));
}

TEST(JobStory, TheScheduleIsSwitchedOffAndOnAgain) {
  Story story;
  story.PlanJobForLater();
  ASSERT_TRUE(story.StartAgent());
  const auto disabled = [&](std::string_view word) {
    return [&story, word] { return story.Setting(shared::keys::kScheduleDisable) == word; };
  };
  ASSERT_TRUE(story.Choose("Disable Automatic Backup", disabled("TRUE")));
  EXPECT_TRUE(story.WaitForTip("You have disabled the scheduled backup from the Sorvane"));
  EXPECT_TRUE(story.Choose("Disable Automatic Backup", disabled("FALSE")));
}

TEST(JobStory, ABackupNowIsTakenUpByTheMainProgram) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.Choose("Backup Now", [&] { return story.IsRunning(lab::kMainProgram); }));
  // The main program starts the engine only for a request that it finds in the file.
  EXPECT_TRUE(WaitUntil([&] { return story.Calls("SorvaneEClsClient.exe [backup]") == 1; }));
  EXPECT_EQ("0", story.Status(shared::keys::kBackupNowTray));
}

TEST(JobStory, TheTextLibrarySpeaksWhereItHasWords) {
  Story story;
  CopyFileA(InBuild("TVToolTips.dll").c_str(),
            story.places().InInstallFolder(shared::files::kTextLibrary).c_str(), FALSE);
  ASSERT_TRUE(story.StartAgent());
  EXPECT_TRUE(story.WaitForTip("No hay ninguna copia programada."));
}

}  // namespace
