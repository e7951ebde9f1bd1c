// The protection of stored values: a fixed shift of every character code, with no key. Length never
// changes; empty stays empty.
#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace shared {

inline constexpr int kConfigShift = 2;
inline constexpr int kProfileShift = 4;
inline constexpr int kShareShift = 12;

// What was shifted before a code left the range of a character, and whether one did.
struct ShiftResult {
  std::string text;
  bool complete = true;
};

// Adds `by` (which may be negative) to each code, stopping at the first that leaves 0 to 255.
ShiftResult ShiftCharacters(std::string_view text, int by);

}  // namespace shared
