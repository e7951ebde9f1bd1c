// Code page 1252.
#pragma once

#include <string>
#include <string_view>

namespace platform::memory {

std::u16string WideOf(std::string_view text);

// A character that the code page does not have becomes '?'.
std::string AnsiOf(std::u16string_view text);

}  // namespace platform::memory
