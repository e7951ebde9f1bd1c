// Moments of the local clock as the schedule's files write them.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/local_time.h"

namespace lab {

// "mm-dd-yyyy HH:mm:ss"
std::string DateTimeText(const platform::LocalTime& time);

// The same as digits in falling weight, down to the minute: "yyyymmddHHMM".
std::string SortKeyText(const platform::LocalTime& time);

// The end of a log file's name: "mm-dd-yyyy HH-mm-ss".
std::string LogNameText(const platform::LocalTime& time);

// Reads the form of DateTimeText; nothing for any other text.
std::optional<platform::LocalTime> ParseDateTime(std::string_view text);

platform::LocalTime AddMinutes(const platform::LocalTime& time, std::int64_t minutes);

}  // namespace lab
