// Small text files of lines that the agent reads whole and rewrites whole: schedule, addresses,
// lists. Lines are written with CR LF; read are CR LF, LF and CR.
#pragma once

#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace schedule {

inline constexpr std::string_view kLineEnd = "\r\n";

// Content of the file, "" when it is missing. Nothing when it is there and cannot be read: whoever
// would rewrite it must leave it alone then.
std::optional<std::string> ReadIfThere(platform::Files& files, std::string_view path);

// The lines of a text without their ends. A line end at the end of the text opens no further line.
std::vector<std::string> LinesOf(std::string_view text);

// Makes the lines the whole content of the file. False, with the old content whole, on failure.
bool WriteLines(platform::Files& files, std::string_view path, std::span<const std::string> lines);

}  // namespace schedule
