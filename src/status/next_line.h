// The sentence about the next run of the schedule.
#pragma once

#include <string>
#include <string_view>

#include "status/schedule_texts.h"
#include "status/status_texts.h"

namespace status {

// `date`, stored as "mm-dd-yyyy HH:mm:ss", for people. In a locale whose short date format begins
// with "D" its separators become "/" when the format's third character is one, else "-"; in any
// other locale, and for a text that is no such date, it stays as stored.
std::string DateForPeople(std::string_view date, std::string_view short_date_format);

// The whole sentence; "" when the run's line has no start time.
std::string NextLineText(const NextRun& next, std::string_view short_date_format,
                         const StatusTexts& texts);

}  // namespace status
