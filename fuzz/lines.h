// Files of lines: which of them a program of this system could have written.
#pragma once

#include <string_view>

namespace fuzz {

// True when the text is empty or every line ends in CR LF and neither stands anywhere else.
inline bool IsWellFormed(std::string_view text) {
  while (!text.empty()) {
    const std::size_t end = text.find_first_of("\r\n");
    if (end == std::string_view::npos || !text.substr(end).starts_with("\r\n")) return false;
    text.remove_prefix(end + 2);
  }
  return true;
}

}  // namespace fuzz
