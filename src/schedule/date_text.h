// Date and time as the system reads and writes them, by the user's formats.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/local_time.h"
#include "shared/agent_state.h"

namespace schedule {

// Reads a date with or without a time. The order of day and month is the locale's; where it gives
// no date, the other order is tried. Separators are "-", "/", ".", ":", "," and blanks; a month may
// be an English name; AM and PM are read; a year of two digits lies between 1930 and 2029. Nothing
// for any other text and for dates that do not exist.
std::optional<platform::LocalTime> ReadDateText(std::string_view text, bool day_first);

// "mm-dd-yyyy HH:mm:ss" of a date text; a text that is no date comes back unchanged.
std::string FormatDateText(std::string_view text, bool day_first);

// The system's default text: short date, a blank, time; at midnight the date alone. Formats that
// are missing in the state count as "M/d/yyyy" and "h:mm:ss tt".
std::string SystemDateText(const platform::LocalTime& time, const shared::AgentState& state);

}  // namespace schedule
