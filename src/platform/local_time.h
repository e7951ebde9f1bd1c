// A moment of the local wall clock, as the system gives it.
#pragma once

#include <compare>

namespace platform {

struct LocalTime {
  int year = 1601;
  int month = 1;   // 1 to 12
  int day = 1;     // 1 to 31
  int hour = 0;    // 0 to 23
  int minute = 0;  // 0 to 59
  int second = 0;  // 0 to 59

  auto operator<=>(const LocalTime&) const = default;
};

}  // namespace platform
