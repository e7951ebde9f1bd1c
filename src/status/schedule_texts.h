// What the status windows and the tip need of the schedule. The schedule room implements it, so
// that nothing here knows how jobs are stored or how times are told.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace status {

// The job that runs next.
struct NextRun {
  // Its record as a line of scheduleData.txt: fields between kFieldSeparator, the start time third.
  // A sentence without separators when the schedule is disabled; "" when nothing is scheduled.
  std::string line;
  // Its name for people; "" for the default backup set.
  std::string job_name;
};

struct TimeDifference {
  // "Backup will start in next ...", "Files backed up ... ago.", "Backup has failed", or "".
  std::string text;
  // The last backup ended less than 30 minutes ago.
  bool recent = false;
};

class ScheduleTexts {
 public:
  virtual ~ScheduleTexts() = default;

  // The next job of the current user, over all records of scheduleData.txt.
  virtual NextRun GetScheduleDate() = 0;

  // Time left to `scheduled` or gone since `last_run` (empty: no run yet), both
  // "mm-dd-yyyy HH:mm:ss".
  virtual TimeDifference GetTimeDifference(std::string_view scheduled,
                                           std::string_view last_run) = 0;

  // Any text of date and time as "mm-dd-yyyy HH:mm:ss".
  virtual std::string ValidateSorvaneDateFormat(std::string_view text) = 0;
};

// Between the fields of a record.
inline constexpr std::string_view kFieldSeparator = "\b\b";

// Field `number` (the first is 0) of a record's line; "" when there are fewer.
std::string_view RecordField(std::string_view line, std::size_t number);

// The start time of a record's line, as it stands there.
std::string_view StartTimeField(std::string_view line);

}  // namespace status
