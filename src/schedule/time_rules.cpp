#include "schedule/time_rules.h"

#include <array>
#include <cstdlib>
#include <utility>

namespace schedule {
namespace {

constexpr int kDaysOfYear = 365;
constexpr int kLongMonth = 31;
constexpr int kMonth = 30;
constexpr int kFebruary = 28;
constexpr int kMinutesThatMakeAnHour = 30;

// What each month has over 30 days; February always has 28.
constexpr std::array kOverThirty = {1, -2, 1, 0, 1, 0, 1, 1, 0, 1, 0, 1};

RoundedTime Days(int count) {
  return {.count = count, .unit = TimeUnit::kDays};
}

RoundedTime Hours(int count) {
  return {.count = count, .unit = TimeUnit::kHours};
}

// Days of `count` months from `month` on.
int DaysOfMonths(int month, int count) {
  int days = 0;
  for (int passed = 0; passed < count; ++passed) {
    const int index = (month - 1 + passed) % 12;
    days += kMonth + (index < 0 ? 0 : kOverThirty[static_cast<std::size_t>(index)]);
  }
  return days;
}

// Hours from one day into the next; more than 24 are whole days.
RoundedTime OverMidnight(const FieldDifference& difference) {
  const int hours = 24 - difference.first.hour + difference.second.hour;
  return hours > 24 ? Days(hours / 24) : Hours(hours);
}

// True when the month that days are borrowed from is a February: it is the month of now when the
// text looks ahead, and the month before that when it looks back.
bool BorrowsFromFebruary(const FieldDifference& difference) {
  return difference.direction == TimeDirection::kForward ? difference.first.month == 2
                                                         : difference.second.month == 3;
}

}  // namespace

FieldDifference Subtract(const platform::LocalTime& first, const platform::LocalTime& second,
                         TimeDirection direction) {
  return {.first = first,
          .second = second,
          .direction = direction,
          .years = second.year - first.year,
          .months = second.month - first.month,
          .days = second.day - first.day,
          .hours = second.hour - first.hour,
          .minutes = second.minute - first.minute};
}

std::optional<RoundedTime> ByYears(FieldDifference& difference) {
  const auto& [first, second, direction, years, months, days, hours, minutes] = difference;
  if (years < 1) return std::nullopt;
  if (years > 1) return Days((months < 0 ? years - 1 : years) * kDaysOfYear);
  // One turn of the year: what is left of the first month, what has gone of the second, and the
  // months between them.
  const int months_between = (12 - first.month) + (second.month - 1);
  const int sum =
      (kLongMonth - first.day) + (second.day - 1) + DaysOfMonths(first.month + 1, months_between);
  return sum < 1 ? OverMidnight(difference) : Days(sum);
}

std::optional<RoundedTime> TurnMonthsRound(FieldDifference& difference) {
  if (difference.months >= 0) return std::nullopt;
  difference.months += 12;
  std::swap(difference.first.month, difference.second.month);
  return std::nullopt;
}

std::optional<RoundedTime> ByMonths(FieldDifference& difference) {
  if (difference.months < 1) return std::nullopt;
  int month = difference.first.month;
  if (difference.days < 0) {
    difference.days += BorrowsFromFebruary(difference) ? kFebruary : kMonth;
    difference.months -= 1;
    // Looking ahead, the days are borrowed from the first month; looking back, from the last.
    if (difference.direction == TimeDirection::kForward) ++month;
  }
  if (difference.months > 0) {
    return Days(difference.days + DaysOfMonths(month, difference.months));
  }
  // From the last day of a month of 31 to the first of the next nothing is left of the 30.
  if (difference.days < 1) return OverMidnight(difference);
  return std::nullopt;
}

std::optional<RoundedTime> ByDays(FieldDifference& difference) {
  if (difference.days < 1) return std::nullopt;
  if (difference.hours < 0) {
    difference.hours += 24;
    difference.days -= 1;
  }
  return difference.days == 0 ? Hours(difference.hours) : Days(difference.days);
}

std::optional<RoundedTime> ByHours(FieldDifference& difference) {
  if (difference.hours < 1) return std::nullopt;
  if (difference.minutes < 0) {
    difference.minutes += 60;
    if (difference.minutes > 5) difference.hours -= 1;
  }
  if (difference.hours < 1) return std::nullopt;
  return Hours(difference.hours);
}

RoundedTime ByMinutes(const FieldDifference& difference) {
  const int minutes = std::abs(difference.minutes);
  if (minutes >= kMinutesThatMakeAnHour) return Hours(1);
  return {.count = minutes, .unit = TimeUnit::kMinutes};
}

}  // namespace schedule
