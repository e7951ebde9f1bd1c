#include "schedule/sort_key.h"

#include <algorithm>
#include <vector>

#include "schedule/text_pieces.h"
#include "shared/convert.h"

namespace schedule {
namespace {

constexpr std::size_t kKeyLength = 12;

// The run of separators nearest the end of the text, collected backwards.
std::string LastSeparator(std::string_view text) {
  std::string separator;
  for (auto at = text.rbegin(); at != text.rend(); ++at) {
    if (!IsDigit(*at) && !IsLetter(*at) && *at != ' ') {
      separator += *at;
    } else if (!separator.empty()) {
      break;
    }
  }
  return separator;
}

std::string PadToTwo(std::string_view number) {
  const std::string_view digits = shared::Trim(number);
  return digits.size() == 1 ? std::string("0").append(digits) : std::string(digits);
}

std::string PartOrNothing(const std::vector<std::string_view>& parts, std::size_t number) {
  return number < parts.size() ? PadToTwo(parts[number]) : std::string();
}

std::string Key(std::string_view text, bool one_separator_for_all) {
  // 1. and 2.
  const auto parts = Split(text, LastSeparator(text));
  // 3. With one separator for date and time the year and the hour share the third part.
  const bool shared_separator = one_separator_for_all && parts.size() > 4 && !parts[4].empty();
  // 3. to 5.
  const std::size_t hour_part = shared_separator ? 2 : 0;
  const std::string hour = PadToTwo(Right(parts[hour_part], 2));
  const std::string minute = PartOrNothing(parts, hour_part + 1);
  // 6.
  return std::string(Mid(text, 7, 4)).append(Mid(text, 1, 2)).append(Mid(text, 4, 2)) + hour +
         minute;
}

}  // namespace

std::string Sch_SortBuildDate(std::string_view date_text) {
  return Key(date_text, true);
}

std::string BuildSortKey(std::string_view date_text) {
  return Key(date_text, false);
}

std::string Sch_SortBuildDateYear(std::string_view date_text) {
  return std::string(Mid(date_text, 7, 4));
}

std::optional<platform::LocalTime> CutSortKey(std::string_view key) {
  if (key.size() != kKeyLength || !std::ranges::all_of(key, IsDigit)) return std::nullopt;
  const auto number = [&](std::size_t place, std::size_t length) {
    int value = 0;
    for (const char digit : Mid(key, place, length)) value = value * 10 + (digit - '0');
    return value;
  };
  return platform::LocalTime{.year = number(1, 4),
                             .month = number(5, 2),
                             .day = number(7, 2),
                             .hour = number(9, 2),
                             .minute = number(11, 2),
                             .second = 0};
}

}  // namespace schedule
