#include "schedule/date_format.h"

#include <algorithm>
#include <array>

#include "schedule/date_picture.h"
#include "schedule/text_pieces.h"
#include "shared/convert.h"

namespace schedule {
namespace {

// Where the value of a field stands in "mm-dd-yyyy hh:mm:ss".
struct Field {
  std::string_view token;
  std::size_t place;
  std::size_t length;
};

constexpr std::array kDateFields = {
    Field{"D", 4, 2},  Field{"DD", 4, 2}, Field{"M", 1, 2},
    Field{"MM", 1, 2}, Field{"YY", 9, 2}, Field{"YYYY", 7, 4},
};

constexpr std::array kTimeFields = {
    Field{"M", 15, 2},
    Field{"MM", 15, 2},
    Field{"S", 18, 2},
    Field{"SS", 18, 2},
};

constexpr std::size_t kMonthPlace = 1;
constexpr std::size_t kHourPlace = 12;

const Field* Find(auto& fields, std::string_view token) {
  const auto found = std::ranges::find(fields, token, &Field::token);
  return found == fields.end() ? nullptr : &*found;
}

int NumberAt(std::string_view text, std::size_t place) {
  return shared::ToInt16(Mid(text, place, 2)).value_or(0);
}

std::string Hour(std::string_view text, bool twelve_hours) {
  const int hour = NumberAt(text, kHourPlace);
  if (!twelve_hours || hour <= 12) return std::string(Mid(text, kHourPlace, 2));
  const std::string number = std::to_string(hour - 12);
  return number.size() == 1 ? "0" + number : number;
}

}  // namespace

bool CheckValidDateTime(std::string_view text) {
  return std::ranges::count_if(text, [](char character) {
           return !IsLetter(character) && !IsDigit(character) && character != ' ';
         }) <= 2;
}

std::string CheckValidDateFormat(std::string_view text, std::string_view short_date_format) {
  const std::string picture = shared::ToUpper(short_date_format);
  for (const std::string_view token : CutPicture(picture)) {
    const Field* const field = Find(kDateFields, token);
    if (field != nullptr && shared::Trim(Mid(text, field->place, field->length)).empty()) {
      return "False";
    }
  }
  return "True";
}

std::string ConvertToDate(std::string_view text, std::string_view short_date_format) {
  const std::string picture = shared::ToUpper(short_date_format);
  std::string date;
  for (const std::string_view token : CutPicture(picture)) {
    if (token == "MMM") {
      date += MonthName(NumberAt(text, kMonthPlace));
    } else if (const Field* const field = Find(kDateFields, token)) {
      date += Mid(text, field->place, field->length);
    } else {
      date += token;
    }
  }
  return date;
}

std::string ConvertToTime(std::string_view text, std::string_view time_format) {
  const std::string picture = shared::ToUpper(time_format);
  const bool twelve_hours = picture.find("TT") != std::string::npos;
  std::string time;
  for (const std::string_view token : CutPicture(picture)) {
    if (token == "H" || token == "HH") {
      time += Hour(text, twelve_hours);
    } else if (token == "TT") {
      time += NumberAt(text, kHourPlace) > 11 ? " PM" : " AM";
    } else if (const Field* const field = Find(kTimeFields, token)) {
      time += Mid(text, field->place, field->length);
    } else {
      // The blank in front of AM or PM comes with them.
      time += shared::Trim(token);
    }
  }
  return time;
}

}  // namespace schedule
