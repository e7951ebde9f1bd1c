#include "shared/character_shift.h"

namespace shared {

ShiftResult ShiftCharacters(std::string_view text, int by) {
  constexpr int kLargestCode = 255;
  ShiftResult result;
  result.text.reserve(text.size());
  for (const char character : text) {
    const int code = static_cast<unsigned char>(character) + by;
    if (code < 0 || code > kLargestCode) {
      result.complete = false;
      break;
    }
    result.text.push_back(static_cast<char>(code));
  }
  return result;
}

}  // namespace shared
