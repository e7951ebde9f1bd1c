// The time left to the next backup, or gone since the last, as a friendly text.
//
// The difference is taken field by field (years, months, days, hours, minutes), not as a span, and
// its rules round. docs/schedule-times.md lists what the rounding does.
#pragma once

#include <string>
#include <string_view>

#include "platform/local_time.h"
#include "status/schedule_texts.h"

namespace schedule {

enum class TimeUnit { kDays, kHours, kMinutes };

// How the text counts: forward from now to a moment, or back from now to one.
enum class TimeDirection { kForward, kBackward };

struct RoundedTime {
  int count = 0;
  TimeUnit unit = TimeUnit::kMinutes;

  bool operator==(const RoundedTime&) const = default;
};

// The difference of two moments by the rules. `direction` says which of them is now: the first when
// forward, the second when backward. Never fails, also for moments that no calendar has.
RoundedTime RoundDifference(const platform::LocalTime& first, const platform::LocalTime& second,
                            TimeDirection direction);

// "Backup will start in next 3 day(s)." or "Files backed up 3 day(s) ago."
std::string DescribeTime(const RoundedTime& time, TimeDirection direction);

// What the text is made of. Date texts are "mm-dd-yyyy HH:mm:ss"; one that is not gives no text.
struct TimeDifferenceInput {
  platform::LocalTime now;
  std::string_view scheduled = {};  // the next run
  std::string_view last_run = {};   // the last run as the caller knows it
  std::string_view end_time = {};   // the end of the last run as the engine has published it
  bool window_waits = false;        // the engine wants the end of a job shown
  bool failed = false;              // the engine left the mark of a failure
};

// Counts back to `end_time` when there is one; with `window_waits` alone to `last_run`; otherwise
// forward to `scheduled`, unless that is past. With `failed` it says so and computes nothing.
// `recent` is set when the moment counted back to lies less than 30 minutes ago.
status::TimeDifference ComputeTimeDifference(const TimeDifferenceInput& input);

}  // namespace schedule
