// A running transfer in the hands of a person: pause, resume, cancel, bandwidth, for every kind of
// job, with the real mouse and keys.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "lab/screen/mouse.h"
#include "shared/file_names.h"
#include "tests/windows/story.h"

namespace {

struct JobRow {
  std::string_view name;
  std::string_view argument;  // of the engine; empty for a scheduled job
  std::string_view section;   // of the progress file
  std::string_view counter;
  std::string_view question;
};

constexpr JobRow kJobs[] = {
    {"InteractiveBackup", "backup", status::kBackupProgressSection,
     "Backedup files: ", "Are you sure you want to cancel the backup operation ?"},
    {"ScheduledBackup", "", status::kBackupProgressSection,
     "Backedup files: ", "Are you sure you want to cancel the backup operation ?"},
    {"Restore", "restore", status::kRestoreProgressSection,
     "Restored files: ", "Are you sure you want to cancel the restore operation ?"},
};

void PrintTo(const JobRow& row, std::ostream* out) {
  *out << row.name;
}

class EveryJob : public testing::TestWithParam<JobRow> {
 protected:
  // The agent runs, the job has transferred its first file, and the status window shows it.
  bool OpenOnRunningJob() {
    story.Script("Job", "Files", "1000");
    story.Script("Job", "Interval", "500");
    if (GetParam().argument.empty()) story.PlanJobDueNow();
    if (!story.StartAgent()) return false;
    if (!GetParam().argument.empty()) story.Start(lab::kEngineClient, GetParam().argument);
    return WaitUntil([this] { return !FileCount().empty(); }) && story.OpenStatus() &&
           WaitForText(kStatusWindowClass, GetParam().counter);
  }

  std::string FileCount() { return story.Progress(status::kFileCount, GetParam().section); }

  Story story;
};

TEST_P(EveryJob, IsPausedAndResumed) {
  ASSERT_TRUE(OpenOnRunningJob());
  ASSERT_TRUE(
      Press(kStatusWindowClass, "Pause", [] { return Shows(kStatusWindowClass, "Resume"); }));
  EXPECT_EQ("1", story.Status(status::kPaused));
  EXPECT_TRUE(story.Tip().ends_with("has been paused.")) << story.Tip();
  ASSERT_TRUE(
      Press(kStatusWindowClass, "Resume", [] { return Shows(kStatusWindowClass, "Pause"); }));
  EXPECT_EQ("0", story.Status(status::kPaused));
  const std::string count = FileCount();
  EXPECT_TRUE(WaitUntil([&] { return FileCount() != count; }));
}

TEST_P(EveryJob, IsCancelledAfterAQuestion) {
  ASSERT_TRUE(OpenOnRunningJob());
  const auto asked = [] { return Shows(kQuestionClass, GetParam().question); };
  ASSERT_TRUE(Press(kStatusWindowClass, "Cancel", asked));
  ASSERT_TRUE(CloseWith(kQuestionClass, "No"));
  EXPECT_TRUE(story.IsRunning(lab::kEngineClient));

  ASSERT_TRUE(Press(kStatusWindowClass, "Cancel", asked));
  ASSERT_TRUE(CloseWith(kQuestionClass, "Yes"));
  EXPECT_TRUE(WaitUntil([&] { return !story.IsRunning(lab::kEngineClient); }));
  EXPECT_TRUE(WaitUntil([&] { return story.Traced("Backup or restore progress canceled.") > 0; }));
  EXPECT_EQ("0", story.Progress(status::kBackupInProgress));
}

INSTANTIATE_TEST_SUITE_P(Transfer, EveryJob, testing::ValuesIn(kJobs),
                         [](const auto& row) { return std::string(row.param.name); });

class BandwidthStory : public testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(story.StartAgentWithJob(1000, 500));
    ASSERT_TRUE(story.OpenStatus());
    ASSERT_TRUE(WaitForText(kStatusWindowClass, "100%"));
  }

  std::string Stored(std::string_view key) {
    return story.Shared(key, shared::sections::kRegistry);
  }

  // The knob is the small picture on the slider's box.
  static RECT Knob() {
    const RECT box = ControlOf(kStatusWindowClass, "slider_box").place;
    for (const lab::ControlInfo& control : WindowOf(kStatusWindowClass).controls) {
      RECT both = {};
      const bool small = control.place.right - control.place.left < (box.right - box.left) / 4;
      if (control.visible && small && control.place.right - control.place.left > 4 &&
          IntersectRect(&both, &control.place, &box)) {
        return control.place;
      }
    }
    return {};
  }

  Story story;
};

TEST_F(BandwidthStory, TheKnobFollowsTheMouse) {
  const RECT box = ControlOf(kStatusWindowClass, "slider_box").place;
  ASSERT_TRUE(ActUntil([&] { lab::DragMouse(lab::MiddleOf(Knob()), lab::MiddleOf(box)); },
                       [&] { return Stored(shared::keys::kBandwidth) == "50"; }));
  EXPECT_TRUE(WaitForText(kStatusWindowClass, "50%"));
}

TEST_F(BandwidthStory, TheArrowKeysMoveIt) {
  ASSERT_TRUE(ActUntil([] { lab::PressKey(VK_TAB); },
                       [] { return KeyboardIn(kStatusWindowClass) == "msctls_trackbar32"; }));
  ASSERT_TRUE(
      PressKeyIn(kStatusWindowClass, VK_LEFT, [] { return !Shows(kStatusWindowClass, "100%"); }));
  EXPECT_TRUE(WaitUntil([&] {
    const std::string stored = Stored(shared::keys::kBandwidth);
    return !stored.empty() && stored != "100" && Shows(kStatusWindowClass, stored + "%");
  }));
}

}  // namespace
