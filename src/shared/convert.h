// Numbers from texts, by the rules of this system's files, in one place.
//
// A conversion that fails gives nothing, and its caller keeps the value that it had.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace shared {

// Removes blanks (only the character 32) at both ends.
std::string_view Trim(std::string_view text);

// Cuts at the first NUL.
std::string_view StripNulls(std::string_view text);

// A decimal number with optional blanks around it, sign, decimal point and exponent. Nothing else
// may stand there.
std::optional<double> ToDouble(std::string_view text);

// The same rounded to a whole number, halves to the even one; a result outside the width fails.
std::optional<std::int16_t> ToInt16(std::string_view text);
std::optional<std::int32_t> ToInt32(std::string_view text);

// The number at the start of the text, blanks skipped, up to the first character that does not fit;
// 0 when there is none. Never fails.
double LeadingNumber(std::string_view text);

// ASCII letters only, as the ANSI comparisons of this system need them.
std::string ToUpper(std::string_view text);
std::string ToLower(std::string_view text);
bool EqualsIgnoreCase(std::string_view left, std::string_view right);

// Every occurrence of `from` replaced.
std::string ReplaceAll(std::string_view text, std::string_view from, std::string_view to);

}  // namespace shared
