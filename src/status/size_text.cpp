#include "status/size_text.h"

#include <array>
#include <cstddef>
#include <cstdio>

namespace status {
namespace {

struct Scaled {
  double value = 0;
  std::string_view unit;
};

struct Unit {
  double size;
  std::string_view text;
};
constexpr std::array kUnits = {
    Unit{1073741824.0, " GB"},
    Unit{1048576.0, " MB"},
    Unit{1024.0, " KB"},
};

Scaled Scale(double bytes) {
  for (const Unit& unit : kUnits) {
    if (bytes > unit.size) return {bytes / unit.size, unit.text};
  }
  if (bytes < kUnits.back().size) return {bytes, " B"};
  return {};
}

// Fifteen significant digits: what the number's text shows everywhere else.
std::string NumberText(double value) {
  std::array<char, 32> buffer{};
  std::snprintf(buffer.data(), buffer.size(), "%.15g", value);
  return buffer.data();
}

}  // namespace

std::string FormatSizeText(double bytes, std::string_view separator) {
  const auto [value, unit] = Scale(bytes);
  const char mark = separator == "," ? ',' : '.';
  std::string text = NumberText(value);
  const std::size_t at = text.find('.');
  if (at == std::string::npos) {
    text += mark;
    text += '0';
  } else {
    text[at] = mark;
    text.resize(at + 2);
  }
  return text.append(unit);
}

std::string FormatSizeText(double bytes, platform::Locale& locale) {
  return FormatSizeText(bytes, locale.Item(platform::kLocaleDecimalSeparator));
}

}  // namespace status
