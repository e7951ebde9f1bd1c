#include "platform/memory/code_page.h"

#include <algorithm>
#include <iterator>

namespace platform::memory {
namespace {

// 0x80 to 0x9F; the five codes without a character keep their own number.
constexpr char16_t kUpperControls[] = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};

char AnsiCharacter(char16_t wide) {
  const auto found = std::find(std::begin(kUpperControls), std::end(kUpperControls), wide);
  if (found != std::end(kUpperControls)) {
    return static_cast<char>(0x80 + (found - std::begin(kUpperControls)));
  }
  const bool same_code = wide < 0x80 || (wide >= 0xA0 && wide <= 0xFF);
  return same_code ? static_cast<char>(wide) : '?';
}

}  // namespace

std::u16string WideOf(std::string_view text) {
  std::u16string wide;
  wide.reserve(text.size());
  for (const char character : text) {
    const auto code = static_cast<unsigned char>(character);
    wide += code >= 0x80 && code <= 0x9F ? kUpperControls[code - 0x80] : char16_t{code};
  }
  return wide;
}

std::string AnsiOf(std::u16string_view text) {
  std::string ansi;
  ansi.reserve(text.size());
  for (const char16_t wide : text) ansi += AnsiCharacter(wide);
  return ansi;
}

std::string BytesOf(std::u16string_view text) {
  std::string bytes;
  bytes.reserve(text.size() * 2);
  for (const char16_t unit : text) {
    bytes += static_cast<char>(unit & 0xFF);
    bytes += static_cast<char>(unit >> 8);
  }
  return bytes;
}

std::string AnsiOfBytes(std::string_view bytes) {
  if (bytes.starts_with(kByteOrderMark)) bytes.remove_prefix(kByteOrderMark.size());
  std::u16string wide;
  for (std::size_t i = 0; i + 1 < bytes.size(); i += 2) {
    wide += static_cast<char16_t>(static_cast<unsigned char>(bytes[i]) |
                                  (static_cast<unsigned char>(bytes[i + 1]) << 8));
  }
  return AnsiOf(wide);
}

}  // namespace platform::memory
