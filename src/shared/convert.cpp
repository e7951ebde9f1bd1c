#include "shared/convert.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

namespace shared {
namespace {

bool IsDigit(char character) {
  return character >= '0' && character <= '9';
}

// Length of the number at the start of `text`: sign, digits with at most one point, exponent. 0
// when there is no digit. An exponent counts only with digits of its own.
std::size_t NumberLength(std::string_view text) {
  std::size_t at = 0;
  const auto skip_sign = [&] { at += at < text.size() && (text[at] == '+' || text[at] == '-'); };
  const auto skip_digits = [&] {
    const std::size_t start = at;
    while (at < text.size() && IsDigit(text[at])) ++at;
    return at - start;
  };
  skip_sign();
  std::size_t digits = skip_digits();
  if (at < text.size() && text[at] == '.') {
    ++at;
    digits += skip_digits();
  }
  if (digits == 0) return 0;
  const std::size_t mantissa = at;
  if (at < text.size() && (text[at] == 'e' || text[at] == 'E')) {
    ++at;
    skip_sign();
    if (skip_digits() == 0) return mantissa;
  }
  return at;
}

// The value of a text that NumberLength measured; nothing when it is too large for a double. One
// that is too small is 0. The point is the separator: this program never sets a locale.
std::optional<double> NumberValue(std::string_view number) {
  const double value = std::strtod(std::string(number).c_str(), nullptr);
  if (!std::isfinite(value)) return std::nullopt;
  return value;
}

template <typename Whole>
std::optional<Whole> ToWhole(std::string_view text) {
  const std::optional<double> value = ToDouble(text);
  if (!value) return std::nullopt;
  const double below = std::floor(*value);
  const double rest = *value - below;
  const bool round_up = rest > 0.5 || (rest == 0.5 && std::fmod(below, 2.0) != 0.0);
  const double rounded = round_up ? below + 1.0 : below;
  if (rounded < std::numeric_limits<Whole>::min() || rounded > std::numeric_limits<Whole>::max()) {
    return std::nullopt;
  }
  return static_cast<Whole>(rounded);
}

char UpperLetter(char character) {
  return character >= 'a' && character <= 'z' ? static_cast<char>(character - 'a' + 'A')
                                              : character;
}

char LowerLetter(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                              : character;
}

}  // namespace

std::string_view Trim(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string_view StripNulls(std::string_view text) {
  return text.substr(0, text.find('\0'));
}

std::optional<double> ToDouble(std::string_view text) {
  const std::string_view number = Trim(text);
  const std::size_t length = NumberLength(number);
  if (length == 0 || length != number.size()) return std::nullopt;
  return NumberValue(number);
}

std::optional<std::int16_t> ToInt16(std::string_view text) {
  return ToWhole<std::int16_t>(text);
}

std::optional<std::int32_t> ToInt32(std::string_view text) {
  return ToWhole<std::int32_t>(text);
}

double LeadingNumber(std::string_view text) {
  std::string packed(text);
  std::erase_if(packed, [](char character) {
    return character == ' ' || character == '\t' || character == '\n';
  });
  const std::size_t length = NumberLength(packed);
  if (length == 0) return 0.0;
  return NumberValue(std::string_view(packed).substr(0, length)).value_or(0.0);
}

std::string ToUpper(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), UpperLetter);
  return result;
}

std::string ToLower(std::string_view text) {
  std::string result(text);
  std::transform(result.begin(), result.end(), result.begin(), LowerLetter);
  return result;
}

bool EqualsIgnoreCase(std::string_view left, std::string_view right) {
  return std::equal(left.begin(), left.end(), right.begin(), right.end(),
                    [](char a, char b) { return LowerLetter(a) == LowerLetter(b); });
}

std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(text);
  std::string result;
  std::size_t at = 0;
  for (std::size_t hit = text.find(from); hit != std::string_view::npos;
       hit = text.find(from, at)) {
    result.append(text.substr(at, hit - at)).append(to);
    at = hit + from.size();
  }
  return result.append(text.substr(at));
}

}  // namespace shared
