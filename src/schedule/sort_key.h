// The twelve-digit key by which jobs are ordered: year, month, day, hour, minute. Keys compare as
// texts.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/local_time.h"

namespace schedule {

// The key of a date text "mm-dd-yyyy HH:mm:ss". The date is taken from fixed places (month 1, day
// 4, year 7), hour and minute around the separator that stands nearest the end; seconds do not
// count. Date and time may share one separator. A wrong text gives a wrong key, never a failure.
std::string Sch_SortBuildDate(std::string_view date_text);

// The same for texts whose date and time have separators of their own.
std::string BuildSortKey(std::string_view date_text);

// The year of the text alone: four characters from place 7 on.
std::string Sch_SortBuildDateYear(std::string_view date_text);

// The moment of a key, as numbers that need not be a date of the calendar; nothing for a text that
// is not twelve digits.
std::optional<platform::LocalTime> CutSortKey(std::string_view key);

}  // namespace schedule
