// The slow tick: the daily step, and the end of a session that belongs to the system.
#include <gtest/gtest.h>

#include "tests/windows/story.h"

namespace {

namespace keys = shared::keys;

constexpr std::string_view kRegistry = shared::sections::kRegistry;

// Wine takes the name of the person from the system below it.
void StartAsSystem(Story& story) {
  story.StartCommand("start /unix /usr/bin/env USER=SYSTEM wine " +
                     story.places().InInstallFolder(kAgentProgram));
}

void EndSession(Story& story) {
  story.SetShared(keys::kStandbyBackup, "1", kRegistry);
  story.SetShared(keys::kLogOff, "1", kRegistry);
}

TEST(HousekeepingStory, TheAgentOfTheSystemEndsWithTheSession) {
  Story story;
  StartAsSystem(story);
  ASSERT_TRUE(story.WaitForPicture("tvlog.ico"));
  ASSERT_TRUE(story.IsRunning(kAgentProgram));
  EndSession(story);
  EXPECT_TRUE(WaitUntil([&] { return !story.IsRunning(kAgentProgram); }));
  EXPECT_EQ("0", story.Shared(keys::kLogOff, kRegistry));
  EXPECT_EQ("3", story.Shared(keys::kTray, kRegistry));
}

TEST(HousekeepingStory, ThePersonsAgentStaysWhenASessionEnds) {
  Story story;
  EndSession(story);
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(story.WaitForSlowTick());
  EXPECT_TRUE(story.AgentRuns());
  EXPECT_EQ("1", story.Shared(keys::kLogOff, kRegistry));
}

TEST(HousekeepingStory, ADayThatHasPassedIsStampedAndSynchronisedOnce) {
  Story story;
  story.SetShared(keys::kTrayIconDay, "31");
  story.SetShared(keys::kTrayIconMonth, "12");
  story.SetShared(keys::kTrayIconYear, "2019");
  story.SetPlainSetting(keys::kSyncDay, "31");
  story.SetPlainSetting(keys::kSyncMonth, "12");
  story.SetPlainSetting(keys::kSyncYear, "2019");
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(WaitUntil([&] { return story.Calls("SorvaneEClsClient.exe [ 20]") == 1; }));
  EXPECT_EQ(1, story.Calls("SorvaneEClsClient.exe [ 38]"));
  EXPECT_NE("2019", story.Shared(keys::kTrayIconYear));
  EXPECT_EQ(story.Shared(keys::kTrayIconDay), story.PlainSetting(keys::kSyncDay));
  ASSERT_TRUE(story.WaitForSlowTick());
  EXPECT_EQ(1, story.Calls("SorvaneEClsClient.exe [ 38]"));
}

}  // namespace
