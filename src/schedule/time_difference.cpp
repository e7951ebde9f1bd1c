#include "schedule/time_difference.h"

#include <array>
#include <optional>

#include "schedule/calendar.h"
#include "schedule/sort_key.h"
#include "schedule/time_rules.h"
#include "shared/trace.h"

namespace schedule {
namespace {

constexpr std::string_view kFailed = "Backup has failed";
constexpr int kRecentMinutes = 30;

struct Words {
  std::string_view start;
  std::array<std::string_view, 3> ends;  // by TimeUnit
};

constexpr Words kForwardWords = {"Backup will start in next ",
                                 {" day(s).", " hour(s).", " minute(s)."}};
constexpr Words kBackwardWords = {"Files backed up ",
                                  {" day(s) ago.", " hour(s) ago.", " minute(s) ago."}};

bool IsRecent(const platform::LocalTime& end, const platform::LocalTime& now) {
  if (!IsRealTime(end) || !IsRealTime(now)) return false;
  const std::int64_t minutes = MinutesBetween(end, now);
  return minutes >= 0 && minutes < kRecentMinutes;
}

status::TimeDifference Describe(const platform::LocalTime& first, const platform::LocalTime& second,
                                TimeDirection direction) {
  return {.text = DescribeTime(RoundDifference(first, second, direction), direction),
          .recent = direction == TimeDirection::kBackward && IsRecent(first, second)};
}

}  // namespace

RoundedTime RoundDifference(const platform::LocalTime& first, const platform::LocalTime& second,
                            TimeDirection direction) {
  using Rule = std::optional<RoundedTime> (*)(FieldDifference&);
  constexpr std::array<Rule, 5> kRules = {ByYears, TurnMonthsRound, ByMonths, ByDays, ByHours};
  FieldDifference difference = Subtract(first, second, direction);
  for (const Rule rule : kRules) {
    if (const auto time = rule(difference)) return *time;
  }
  return ByMinutes(difference);
}

std::string DescribeTime(const RoundedTime& time, TimeDirection direction) {
  const Words& words = direction == TimeDirection::kForward ? kForwardWords : kBackwardWords;
  return std::string(words.start)
      .append(std::to_string(time.count))
      .append(words.ends[static_cast<std::size_t>(time.unit)]);
}

status::TimeDifference ComputeTimeDifference(const TimeDifferenceInput& input) {
  if (input.failed) return {.text = std::string(kFailed), .recent = false};
  // Both sides pass through the key, so that seconds count on neither.
  const std::string now_key = Sch_SortBuildDate(shared::FormatStamp(input.now));
  const auto now = CutSortKey(now_key);
  if (!now) return {};
  if (!input.end_time.empty() || input.window_waits) {
    const std::string_view end = input.end_time.empty() ? input.last_run : input.end_time;
    const auto moment = CutSortKey(Sch_SortBuildDate(end));
    return moment ? Describe(*moment, *now, TimeDirection::kBackward) : status::TimeDifference();
  }
  const std::string key = Sch_SortBuildDate(input.scheduled);
  const auto moment = CutSortKey(key);
  if (!moment || key < now_key) return {};
  return Describe(*now, *moment, TimeDirection::kForward);
}

}  // namespace schedule
