#include "shared/calendar_day.h"

#include <chrono>

namespace shared {

Day DayOf(const platform::LocalTime& time) {
  return {time.year, time.month, time.day};
}

Day Tomorrow(const Day& today) {
  namespace chrono = std::chrono;
  const chrono::year_month_day date{chrono::year(today.year),
                                    chrono::month(static_cast<unsigned>(today.month)),
                                    chrono::day(static_cast<unsigned>(today.day))};
  const chrono::year_month_day next{chrono::sys_days(date) + chrono::days(1)};
  return {static_cast<int>(next.year()), static_cast<int>(static_cast<unsigned>(next.month())),
          static_cast<int>(static_cast<unsigned>(next.day()))};
}

}  // namespace shared
