// Code page 1252, and UTF-16 as files hold it (little endian).
#pragma once

#include <string>
#include <string_view>

namespace platform::memory {

std::u16string WideOf(std::string_view text);

// A character that the code page does not have becomes '?'.
std::string AnsiOf(std::u16string_view text);

inline constexpr std::string_view kByteOrderMark = "\xFF\xFE";

std::string BytesOf(std::u16string_view text);

// The bytes of a text in UTF-16, with or without its mark, in ANSI.
std::string AnsiOfBytes(std::string_view bytes);

}  // namespace platform::memory
