#include "schedule/date_text.h"

#include <algorithm>
#include <array>
#include <utility>
#include <vector>

#include "schedule/calendar.h"
#include "schedule/date_picture.h"
#include "schedule/text_pieces.h"
#include "shared/convert.h"
#include "shared/trace.h"

namespace schedule {
namespace {

constexpr std::string_view kSeparators = "-/.:, ";
constexpr std::size_t kMostNumbers = 6;  // three of the date, three of the time

// What a date text is made of.
struct Pieces {
  std::vector<std::string_view> numbers;
  int named_month = 0;      // 1 to 12; 0: the month is one of the numbers
  std::string half_of_day;  // "AM", "PM" or ""
};

// Cuts the leading run of characters of one kind off `text`.
std::string_view TakeRun(std::string_view& text, bool (*is_kind)(char)) {
  const auto end = std::ranges::find_if_not(text, is_kind);
  const std::string_view run = text.substr(0, static_cast<std::size_t>(end - text.begin()));
  text.remove_prefix(run.size());
  return run;
}

bool TakeWord(std::string_view word, Pieces& pieces) {
  const std::string upper = shared::ToUpper(word);
  if (upper == "AM" || upper == "PM") {
    pieces.half_of_day = upper;
    return true;
  }
  pieces.named_month = MonthOfName(upper);
  return pieces.named_month != 0;
}

std::optional<Pieces> CutPieces(std::string_view text) {
  Pieces pieces;
  while (!text.empty()) {
    if (IsDigit(text.front())) {
      pieces.numbers.push_back(TakeRun(text, IsDigit));
      if (pieces.numbers.size() > kMostNumbers || pieces.numbers.back().size() > 4) {
        return std::nullopt;
      }
    } else if (IsLetter(text.front())) {
      if (!TakeWord(TakeRun(text, IsLetter), pieces)) return std::nullopt;
    } else if (kSeparators.find(text.front()) != std::string_view::npos) {
      text.remove_prefix(1);
    } else {
      return std::nullopt;
    }
  }
  return pieces;
}

int NumberOf(std::string_view digits) {
  int value = 0;
  for (const char digit : digits) value = value * 10 + (digit - '0');
  return value;
}

int YearOf(std::string_view digits) {
  const int year = NumberOf(digits);
  if (digits.size() > 2) return year;
  return year < 30 ? 2000 + year : 1900 + year;
}

// Year, month and day of the first numbers; how many of them were used.
std::size_t SetDate(const Pieces& pieces, bool day_first, platform::LocalTime& time) {
  const auto& numbers = pieces.numbers;
  if (pieces.named_month != 0) {
    if (numbers.size() < 2) return 0;
    time.month = pieces.named_month;
    time.day = NumberOf(numbers[0]);
    time.year = YearOf(numbers[1]);
    return 2;
  }
  if (numbers.size() < 3) return 0;
  const bool year_first = numbers[0].size() > 2;
  const std::size_t year = year_first ? 0 : 2;
  const std::size_t one = year_first ? 1 : 0;
  time.year = YearOf(numbers[year]);
  time.month = NumberOf(numbers[one]);
  time.day = NumberOf(numbers[one + 1]);
  if (day_first && !year_first) std::swap(time.month, time.day);
  // The order that the locale does not use is tried where its own gives no month.
  if (time.month > 12 && time.day <= 12) std::swap(time.month, time.day);
  return 3;
}

void SetTime(const Pieces& pieces, std::size_t first, platform::LocalTime& time) {
  const std::array parts = {&time.hour, &time.minute, &time.second};
  for (int* const part : parts) {
    *part = first < pieces.numbers.size() ? NumberOf(pieces.numbers[first]) : 0;
    ++first;
  }
  if (pieces.half_of_day == "PM" && time.hour < 12) time.hour += 12;
  if (pieces.half_of_day == "AM" && time.hour == 12) time.hour = 0;
}

}  // namespace

std::optional<platform::LocalTime> ReadDateText(std::string_view text, bool day_first) {
  const auto pieces = CutPieces(text);
  if (!pieces) return std::nullopt;
  platform::LocalTime time;
  const std::size_t used = SetDate(*pieces, day_first, time);
  if (used == 0 || pieces->numbers.size() > used + 3) return std::nullopt;
  SetTime(*pieces, used, time);
  if (!IsRealTime(time)) return std::nullopt;
  return time;
}

std::string FormatDateText(std::string_view text, bool day_first) {
  const auto time = ReadDateText(text, day_first);
  return time ? shared::FormatStamp(*time) : std::string(text);
}

std::string SystemDateText(const platform::LocalTime& time, const shared::AgentState& state) {
  const std::string& date = state.ShortDateFormat;
  std::string text = FillPicture(date.empty() ? "M/d/yyyy" : std::string_view(date), time);
  if (time.hour == 0 && time.minute == 0 && time.second == 0) return text;
  const std::string& clock = state.TimeFormat;
  return text + " " + FillPicture(clock.empty() ? "h:mm:ss tt" : std::string_view(clock), time);
}

}  // namespace schedule
