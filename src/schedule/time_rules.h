// The rules of rounding a difference, one after the other. The first that gives a time ends them.
#pragma once

#include <optional>

#include "platform/local_time.h"
#include "schedule/time_difference.h"

namespace schedule {

// Two moments and their difference field by field. A rule that borrows from a field leaves the
// changed fields to the rules behind it.
struct FieldDifference {
  platform::LocalTime first;
  platform::LocalTime second;
  TimeDirection direction = TimeDirection::kForward;
  int years = 0;
  int months = 0;
  int days = 0;
  int hours = 0;
  int minutes = 0;
};

FieldDifference Subtract(const platform::LocalTime& first, const platform::LocalTime& second,
                         TimeDirection direction);

// A year's end or more between the two.
std::optional<RoundedTime> ByYears(FieldDifference& difference);

// A negative difference of months, when the clock was set back behind the moment: twelve months
// more, and the two months change places. Gives no time itself.
std::optional<RoundedTime> TurnMonthsRound(FieldDifference& difference);

// A month's end or more. Gives none when the days that are left decide.
std::optional<RoundedTime> ByMonths(FieldDifference& difference);

// A day or more: the hours of the last day when less than one is left.
std::optional<RoundedTime> ByDays(FieldDifference& difference);

// An hour or more.
std::optional<RoundedTime> ByHours(FieldDifference& difference);

// What is left: minutes without their sign; from 30 on they are an hour.
RoundedTime ByMinutes(const FieldDifference& difference);

}  // namespace schedule
