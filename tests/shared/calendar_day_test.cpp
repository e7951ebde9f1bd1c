#include "shared/calendar_day.h"

#include <gtest/gtest.h>

namespace shared {
namespace {

TEST(CalendarDayTest, CountsOverTheEndsOfMonthsAndYears) {
  const std::pair<Day, Day> days[] = {
      {{2024, 2, 27}, {2024, 2, 28}}, {{2024, 2, 28}, {2024, 2, 29}},
      {{2024, 2, 29}, {2024, 3, 1}},  {{2023, 2, 28}, {2023, 3, 1}},
      {{2024, 4, 30}, {2024, 5, 1}},  {{2024, 12, 31}, {2025, 1, 1}},
      {{1999, 12, 31}, {2000, 1, 1}}, {{2100, 2, 28}, {2100, 3, 1}},
  };
  for (const auto& [today, tomorrow] : days) EXPECT_EQ(Tomorrow(today), tomorrow);
}

TEST(CalendarDayTest, ComparesByYearThenMonthThenDay) {
  EXPECT_LT((Day{2024, 12, 31}), (Day{2025, 1, 1}));
  EXPECT_LT((Day{2024, 1, 31}), (Day{2024, 2, 1}));
  EXPECT_LT((Day{2024, 2, 1}), (Day{2024, 2, 2}));
}

TEST(CalendarDayTest, IgnoresTheTimeOfDay) {
  EXPECT_EQ(DayOf({2024, 5, 6, 7, 8, 9}), (Day{2024, 5, 6}));
}

}  // namespace
}  // namespace shared
