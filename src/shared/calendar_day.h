// A day of the calendar.
#pragma once

#include <compare>

#include "platform/local_time.h"

namespace shared {

struct Day {
  int year = 0;
  int month = 0;
  int day = 0;

  auto operator<=>(const Day&) const = default;
};

Day DayOf(const platform::LocalTime& time);

// The day after, over the ends of months and years.
Day Tomorrow(const Day& today);

}  // namespace shared
