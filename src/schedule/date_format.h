// Checks and conversions between "mm-dd-yyyy hh:mm:ss" and the user's formats. Every value is taken
// from its fixed place in that text.
#pragma once

#include <string>
#include <string_view>

namespace schedule {

// True when at most two characters of the text are neither letter, digit nor blank.
bool CheckValidDateTime(std::string_view text);

// "False" when a field of `short_date_format` has only blanks or nothing at its place in the text,
// else "True". Fields of day, month and year by number are tested, others are not.
std::string CheckValidDateFormat(std::string_view text, std::string_view short_date_format);

// The date of the text in the order and with the separators of `short_date_format`; three Ms give
// the name of the month, "Jan" to "Dec".
std::string ConvertToDate(std::string_view text, std::string_view short_date_format);

// The time of the text in the order of `time_format`. With "tt" in the format the hours behind noon
// count from 1 again, and "AM" or "PM" stands at the place of the "tt" behind a blank.
std::string ConvertToTime(std::string_view text, std::string_view time_format);

}  // namespace schedule
