#include "platform/memory/wall_clock.h"

#include <chrono>

namespace platform::memory {

std::int64_t SecondsOf(const LocalTime& time) {
  using namespace std::chrono;
  const sys_days day = year(time.year) / month(static_cast<unsigned>(time.month)) /
                       std::chrono::day(static_cast<unsigned>(time.day));
  const std::int64_t minutes = std::int64_t{time.hour} * 60 + time.minute;
  return std::int64_t{day.time_since_epoch().count()} * 86400 + minutes * 60 + time.second;
}

LocalTime LocalTimeOf(std::int64_t seconds) {
  using namespace std::chrono;
  const sys_seconds moment{std::chrono::seconds(seconds)};
  const sys_days day = floor<days>(moment);
  const year_month_day date(day);
  const int in_day = static_cast<int>((moment - day).count());
  return {int{date.year()},
          static_cast<int>(unsigned{date.month()}),
          static_cast<int>(unsigned{date.day()}),
          in_day / 3600,
          in_day / 60 % 60,
          in_day % 60};
}

}  // namespace platform::memory
