#include "schedule/normal_date.h"

#include "schedule/text_pieces.h"
#include "shared/convert.h"

namespace schedule {
namespace {

// The parts between the separators, those of one character with a "0" in front.
std::string PadParts(std::string_view text, std::string_view separator) {
  std::string result;
  bool first = true;
  for (const std::string_view part : Split(text, separator)) {
    if (!first) result += separator;
    if (part.size() == 1) result += '0';
    result += part;
    first = false;
  }
  return result;
}

std::string_view DateSeparator(std::string_view text) {
  const std::string_view second = Mid(text, 2, 1);
  const bool two_digits = !second.empty() && IsDigit(second.front());
  return two_digits ? Mid(text, 3, 1) : second;
}

std::string_view TimeSeparator(std::string_view text) {
  for (const std::size_t place : {2U, 3U, 4U}) {
    const std::string_view character = Mid(text, place, 1);
    if (!character.empty() && !IsDigit(character.front())) return character;
  }
  return {};
}

std::string AddTwelveHours(std::string_view time) {
  const std::size_t end = time.find(':');
  const auto hour = shared::ToInt16(time.substr(0, end));
  if (!hour) return std::string(time);
  std::string later = std::to_string(*hour + 12);
  if (end != std::string_view::npos) later += time.substr(end);
  return later;
}

}  // namespace

std::string ValidateSorvaneDateFormat(std::string_view text) {
  std::string upper = shared::ToUpper(text);
  const bool is_pm = upper.find("PM") != std::string::npos;
  upper = shared::ReplaceAll(shared::ReplaceAll(upper, "AM", ""), "PM", "");
  const std::string_view bare = shared::Trim(shared::StripNulls(upper));
  const std::string normal = shared::ReplaceAll(bare, DateSeparator(bare), "-");
  const std::size_t blank = normal.find(' ');
  std::string date = PadParts(std::string_view(normal).substr(0, blank), "-");
  if (blank == std::string::npos) return date;
  const std::string_view time = shared::Trim(std::string_view(normal).substr(blank));
  return date + " " + ValidateSorvaneTimeFormat(time, is_pm);
}

std::string ValidateSorvaneTimeFormat(std::string_view text, bool is_pm) {
  const std::string normal = shared::ReplaceAll(text, TimeSeparator(text), ":");
  return PadParts(is_pm ? AddTwelveHours(normal) : normal, ":");
}

}  // namespace schedule
