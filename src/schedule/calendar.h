// Arithmetic on moments of the local calendar. Clock changes do not count: a day has 24 hours.
#pragma once

#include <cstdint>

#include "platform/local_time.h"

namespace schedule {

// True when day and time stand in the calendar.
bool IsRealTime(const platform::LocalTime& time);

// The moment `days` later (earlier when negative).
platform::LocalTime AddDays(const platform::LocalTime& time, int days);

// Whole minutes from `first` to `second`; negative when `second` is earlier. Seconds do not count.
std::int64_t MinutesBetween(const platform::LocalTime& first, const platform::LocalTime& second);

// 0 for Sunday to 6 for Saturday.
unsigned WeekdayOf(const platform::LocalTime& time);

}  // namespace schedule
