// How often a job runs: the codes of the records and their names.
#pragma once

#include <string_view>

namespace schedule {

// Codes that this program writes.
inline constexpr std::string_view kFrequencyNone = "1";
inline constexpr std::string_view kFrequencyHourly = "2";
inline constexpr std::string_view kFrequencyOnce = "4";
inline constexpr std::string_view kFrequencyMonthly = "5";
inline constexpr std::string_view kFrequencyWeekDays = "6";

// The name that the list of jobs shows for a code; "" for a code that it does not know.
std::string_view GetFreNameFromIndex(std::string_view code);

// The number of a name, 0 for another text. Not the way back: "Week-Day" is 4 here and 6 there.
int GetFrequencyIndex(std::string_view name);

}  // namespace schedule
