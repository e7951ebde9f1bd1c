#include "schedule/recommended_time.h"

#include <algorithm>

#include "schedule/calendar.h"

namespace schedule {
namespace {

constexpr int kHours = 12;          // that are drawn from
constexpr int kMorning = 6;         // the night's last hour
constexpr int kEvening = 19;        // its first
constexpr int kLatestEvening = 23;  // midnight would be the other day's

// `hour` counts from midnight before the day of `now`; from 24 on it is the day after.
platform::LocalTime AtHour(const platform::LocalTime& now, int hour) {
  platform::LocalTime time = AddDays(now, hour / 24);
  time.hour = hour % 24;
  time.minute = 0;
  time.second = 0;
  return time;
}

// A whole number from `first` to `last`.
int Draw(platform::Random& random, int first, int last) {
  const int drawn = first + static_cast<int>((last - first + 1) * random.Next());
  return std::clamp(drawn, first, last);
}

}  // namespace

platform::LocalTime PickRecommendedTime(const platform::LocalTime& now, platform::Random& random) {
  // 1. Before kMorning the night that is going on has not ended.
  const bool is_night = now.hour < kMorning;
  // 2.
  const int hour = Draw(random, 1, kHours);
  // 3. and 4. Seven to eleven in the evening, or one to six in the morning after it.
  const int candidate = hour > kMorning ? std::min(hour + 12, kLatestEvening) : hour + 24;
  // 5. Early in the morning the coming night is a whole day away: every candidate lies in it.
  if (is_night) return AtHour(now, candidate);
  // 6. Later some of it may have passed: the hour comes from what is left.
  return AtHour(now, Draw(random, std::max(now.hour + 1, kEvening), kMorning + 24));
}

}  // namespace schedule
