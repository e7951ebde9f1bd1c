// The agent keeps its companions alive: the background process and the service.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "shared/keys.h"
#include "tests/windows/lab_service.h"
#include "tests/windows/story.h"

namespace {

constexpr std::string_view kStartFile = "StartSorvaneEService.bat";
constexpr std::string_view kStopFile = "StopSorvaneEService.bat";

TEST(SupervisionStory, AKilledBackgroundProcessIsBackWithinASlowTick) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(WaitUntil([&] { return story.IsRunning(lab::kBackgroundProcess); }));
  EXPECT_EQ("1", story.Shared(shared::keys::kStandard));
  ASSERT_TRUE(story.Kill(lab::kBackgroundProcess));
  EXPECT_TRUE(WaitUntil([&] { return story.IsRunning(lab::kBackgroundProcess); }));
}

TEST(SupervisionStory, AMissingServiceIsInstalledAndStarted) {
  Story story;
  ASSERT_TRUE(story.StartAgent());
  EXPECT_TRUE(WaitUntil([&] { return story.Traced("Service installation failed") == 1; }));
  EXPECT_EQ(1, story.Calls("InstallSorvaneEService.bat"));
  EXPECT_TRUE(WaitUntil([&] { return story.Calls(kStartFile) == 1; }));
}

TEST(SupervisionStory, AServiceThatStaysStoppedIsStartedTwiceAndNoMore) {
  Story story;
  const LabService service(story);
  const EarlierWindows earlier;
  // Two files that run at once may write over each other's note: the agent's trace counts.
  constexpr std::string_view kStarts = "Service is stopped.So starting the service.";
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(WaitUntil([&] { return story.Traced(kStarts) == 2; }));
  // The slow tick that brings the background process back does not ask again.
  ASSERT_TRUE(story.WaitForSlowTick());
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_EQ(2, story.Traced(kStarts));
  EXPECT_LT(0, story.Calls(kStartFile));
  EXPECT_EQ(0, story.Calls(kStopFile));
}

TEST(SupervisionStory, AStoppedServiceRunsAgain) {
  Story story;
  const LabService service(story);
  service.LetBatchFilesWork();
  const EarlierWindows earlier;
  ASSERT_TRUE(story.StartAgent());
  EXPECT_TRUE(WaitUntil([&] { return service.State() == SERVICE_RUNNING; }));
}

struct StateRow {
  DWORD state;
  std::string_view trace;
  bool stops_first;
};

// What a failed test is named by.
void PrintTo(const StateRow& row, std::ostream* out) {
  *out << row.trace;
}

class ServiceStates : public testing::TestWithParam<StateRow> {};

TEST_P(ServiceStates, AreLedBackToRunning) {
  const StateRow& row = GetParam();
  Story story;
  LabService service(story);
  ASSERT_TRUE(service.Enter(row.state));
  const EarlierWindows earlier;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(WaitUntil([&] { return story.Traced(row.trace) > 0; }));
  if (row.stops_first) {
    EXPECT_TRUE(WaitUntil([&] { return story.Calls(kStopFile) == 1; }));
    EXPECT_EQ(0, story.Calls(kStartFile));
  }
  EXPECT_TRUE(WaitUntil([&] { return story.Calls(kStartFile) > 0; }));
}

INSTANTIATE_TEST_SUITE_P(
    Each, ServiceStates,
    testing::Values(StateRow{SERVICE_START_PENDING,
                             "SorvaneE Service is start pending.So starting the service.", false},
                    StateRow{SERVICE_STOP_PENDING,
                             "SorvaneE Service is stop pending.So starting the service.", true},
                    StateRow{SERVICE_CONTINUE_PENDING,
                             "SorvaneE Service continue pending.So starting the service.", false},
                    StateRow{SERVICE_PAUSE_PENDING,
                             "SorvaneE Service is pause pending.So starting the service.", false},
                    StateRow{SERVICE_PAUSED, "SorvaneE Service is pasued.So starting the service.",
                             true}),
    [](const auto& row) { return "State" + std::to_string(row.param.state); });

TEST(SupervisionStory, ARunningServiceIsLeftAlone) {
  Story story;
  LabService service(story);
  ASSERT_TRUE(service.Enter(SERVICE_RUNNING));
  const EarlierWindows earlier;
  ASSERT_TRUE(story.StartAgent());
  ASSERT_TRUE(WaitUntil([&] { return story.IsRunning(lab::kBackgroundProcess); }));
  ASSERT_TRUE(story.WaitForTick());
  EXPECT_EQ(0, story.Calls("Service.bat"));
}

}  // namespace
