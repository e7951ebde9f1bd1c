#include "schedule/calendar.h"

#include <gtest/gtest.h>

namespace schedule {
namespace {

using platform::LocalTime;

LocalTime Day(int year, int month, int day, int hour = 0, int minute = 0) {
  return {.year = year, .month = month, .day = day, .hour = hour, .minute = minute, .second = 0};
}

TEST(Calendar, KnowsWhichDaysThereAre) {
  EXPECT_TRUE(IsRealTime(Day(2024, 2, 29)));
  EXPECT_FALSE(IsRealTime(Day(2023, 2, 29)));
  EXPECT_FALSE(IsRealTime(Day(2024, 4, 31)));
  EXPECT_FALSE(IsRealTime(Day(2024, 13, 1)));
  EXPECT_FALSE(IsRealTime(Day(2024, 0, 1)));
  EXPECT_FALSE(IsRealTime(Day(2024, 1, 0)));
  EXPECT_FALSE(IsRealTime(Day(2024, 1, 1, 24)));
  EXPECT_FALSE(IsRealTime(Day(2024, 1, 1, 0, 60)));
  EXPECT_FALSE(IsRealTime(Day(99999, 1, 1)));
}

TEST(Calendar, AddsDaysAcrossMonthsAndYears) {
  EXPECT_EQ(AddDays(Day(2024, 2, 28, 7), 1), Day(2024, 2, 29, 7));
  EXPECT_EQ(AddDays(Day(2023, 12, 31), 1), Day(2024, 1, 1));
  EXPECT_EQ(AddDays(Day(2024, 3, 1), -1), Day(2024, 2, 29));
}

TEST(Calendar, CountsMinutesBetweenMoments) {
  EXPECT_EQ(MinutesBetween(Day(2023, 12, 31, 23, 50), Day(2024, 1, 1, 0, 10)), 20);
  EXPECT_EQ(MinutesBetween(Day(2024, 1, 1, 0, 10), Day(2023, 12, 31, 23, 50)), -20);
}

TEST(Calendar, WeekdaysBeginWithSunday) {
  EXPECT_EQ(WeekdayOf(Day(2024, 3, 3)), 0u);
  EXPECT_EQ(WeekdayOf(Day(2024, 3, 1)), 5u);
  EXPECT_EQ(WeekdayOf(Day(2024, 3, 2)), 6u);
}

}  // namespace
}  // namespace schedule
