#include "schedule/calendar.h"

#include <chrono>

namespace schedule {
namespace {

using std::chrono::sys_days;
using std::chrono::year_month_day;

year_month_day DateOf(const platform::LocalTime& time) {
  return {std::chrono::year(time.year), std::chrono::month(static_cast<unsigned>(time.month)),
          std::chrono::day(static_cast<unsigned>(time.day))};
}

std::int64_t MinutesSinceEpoch(const platform::LocalTime& time) {
  const std::int64_t days = sys_days(DateOf(time)).time_since_epoch().count();
  return (days * 24 + time.hour) * 60 + time.minute;
}

bool IsWithin(int value, int first, int last) {
  return value >= first && value <= last;
}

}  // namespace

bool IsRealTime(const platform::LocalTime& time) {
  return IsWithin(time.year, 1, 9999) && IsWithin(time.month, 1, 12) && IsWithin(time.day, 1, 31) &&
         DateOf(time).ok() && IsWithin(time.hour, 0, 23) && IsWithin(time.minute, 0, 59) &&
         IsWithin(time.second, 0, 59);
}

platform::LocalTime AddDays(const platform::LocalTime& time, int days) {
  const year_month_day date(sys_days(DateOf(time)) + std::chrono::days(days));
  platform::LocalTime result = time;
  result.year = static_cast<int>(date.year());
  result.month = static_cast<int>(static_cast<unsigned>(date.month()));
  result.day = static_cast<int>(static_cast<unsigned>(date.day()));
  return result;
}

std::int64_t MinutesBetween(const platform::LocalTime& first, const platform::LocalTime& second) {
  return MinutesSinceEpoch(second) - MinutesSinceEpoch(first);
}

unsigned WeekdayOf(const platform::LocalTime& time) {
  return std::chrono::weekday(sys_days(DateOf(time))).c_encoding();
}

}  // namespace schedule
