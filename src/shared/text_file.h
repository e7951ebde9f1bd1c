// Short text files that the programs of the installation write for one another: ANSI text in lines.
//
// A line ends at CR, LF or CR LF; the last one may lack its end. Only the first kTextFileLimit
// bytes of a file are looked at, so that a runaway file costs nothing.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "platform/files.h"

namespace shared {

inline constexpr std::size_t kTextFileLimit = 65536;

// Cuts the first line with its end off `rest` and returns it without the end. An empty `rest` gives
// "": callers that must tell an empty line from none look at `rest` first.
std::string_view TakeLine(std::string_view& rest);

// The line with that number, the first being 0; nothing when there are fewer. The end of the last
// line starts no further one.
std::optional<std::string_view> FindLine(std::string_view text, std::size_t number);

// The same; "" when there are fewer.
std::string_view LineOf(std::string_view text, std::size_t number);

// First line of a file. "" when it is missing, empty, a folder or locked.
std::string ReadFirstLine(platform::Files& files, std::string_view path);

// The same for another line, the first being 0.
std::string ReadLine(platform::Files& files, std::string_view path, std::size_t number);

// Makes `line` and a CR LF the whole content of the file. False, with the old content whole, when
// it cannot be written.
bool WriteOneLine(platform::Files& files, std::string_view path, std::string_view line);

}  // namespace shared
