// A running transfer in the hands of a person: pause, resume, cancel, bandwidth, for every kind of
// job, with the real mouse and keys.
#include <gtest/gtest.h>

#include "lab/engine/program_names.h"
#include "shared/file_names.h"
#include "status/progress_keys.h"
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

  std::string FileCount() {
    return story.machine().profile_files.ReadText(story.InUserFolder(status::kProgressFile),
                                                  GetParam().section, status::kFileCount);
  }

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

}  // namespace
