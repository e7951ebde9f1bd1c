#include "schedule/date_picture.h"

#include <algorithm>
#include <array>
#include <cstdio>

#include "schedule/text_pieces.h"
#include "shared/convert.h"

namespace schedule {
namespace {

constexpr std::array<std::string_view, 12> kMonths = {
    "January", "February", "March",     "April",   "May",      "June",
    "July",    "August",   "September", "October", "November", "December",
};

std::string Number(int value, std::size_t digits) {
  char text[16];
  std::snprintf(text, sizeof text, "%0*d", static_cast<int>(std::min<std::size_t>(digits, 4)),
                value);
  return text;
}

std::string Month(int month, std::size_t length) {
  if (length < 3) return Number(month, length);
  if (length == 3 || month < 1 || month > 12) return std::string(MonthName(month));
  return std::string(kMonths[static_cast<std::size_t>(month - 1)]);
}

int HourOfTwelve(int hour) {
  return hour % 12 == 0 ? 12 : hour % 12;
}

// The value of one run; the run itself when its letter means nothing.
std::string Fill(std::string_view run, const platform::LocalTime& time) {
  const std::size_t length = run.size();
  switch (run.front()) {
    case 'd':
      return Number(time.day, length);
    case 'M':
      return Month(time.month, length);
    case 'y':
      return length > 2 ? Number(time.year, 4) : Number(time.year % 100, length);
    case 'h':
      return Number(HourOfTwelve(time.hour), length);
    case 'H':
      return Number(time.hour, length);
    case 'm':
      return Number(time.minute, length);
    case 's':
      return Number(time.second, length);
    case 't':
      return std::string(time.hour < 12 ? "AM" : "PM").substr(0, length);
    default:
      return std::string(run);
  }
}

}  // namespace

std::vector<std::string_view> CutPicture(std::string_view picture) {
  std::vector<std::string_view> pieces;
  while (!picture.empty()) {
    const char first = picture.front();
    const auto belongs = [&](char character) {
      return IsLetter(first) ? character == first : !IsLetter(character);
    };
    const auto end = std::ranges::find_if_not(picture, belongs);
    pieces.push_back(picture.substr(0, static_cast<std::size_t>(end - picture.begin())));
    picture.remove_prefix(pieces.back().size());
  }
  return pieces;
}

std::string_view MonthName(int month) {
  if (month < 1 || month > 12) return {};
  return kMonths[static_cast<std::size_t>(month - 1)].substr(0, 3);
}

int MonthOfName(std::string_view upper_name) {
  if (upper_name.size() < 3) return 0;
  for (std::size_t at = 0; at < kMonths.size(); ++at) {
    if (shared::ToUpper(kMonths[at]).starts_with(upper_name)) return static_cast<int>(at) + 1;
  }
  return 0;
}

std::string FillPicture(std::string_view picture, const platform::LocalTime& time) {
  std::string text;
  bool quoted = false;
  for (const std::string_view part : Split(picture, "'")) {
    if (quoted) {
      text += part;
    } else {
      for (const std::string_view run : CutPicture(part)) text += Fill(run, time);
    }
    quoted = !quoted;
  }
  return text;
}

}  // namespace schedule
