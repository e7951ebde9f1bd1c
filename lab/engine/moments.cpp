#include "lab/engine/moments.h"

#include <chrono>
#include <cstdio>

namespace lab {
namespace {

constexpr std::int64_t kMinutesPerDay = std::int64_t{24} * 60;

std::string Format(const char* form, int a, int b, int c, int d, int e, int f) {
  char text[64];
  std::snprintf(text, sizeof(text), form, a, b, c, d, e, f);
  return text;
}

}  // namespace

std::string DateTimeText(const platform::LocalTime& time) {
  return Format("%02d-%02d-%04d %02d:%02d:%02d", time.month, time.day, time.year, time.hour,
                time.minute, time.second);
}

std::string SortKeyText(const platform::LocalTime& time) {
  return Format("%04d%02d%02d%02d%02d", time.year, time.month, time.day, time.hour, time.minute, 0);
}

std::string LogNameText(const platform::LocalTime& time) {
  return Format("%02d-%02d-%04d %02d-%02d-%02d", time.month, time.day, time.year, time.hour,
                time.minute, time.second);
}

std::optional<platform::LocalTime> ParseDateTime(std::string_view text) {
  platform::LocalTime time;
  const int read = std::sscanf(std::string(text).c_str(), "%2d-%2d-%4d %2d:%2d:%2d", &time.month,
                               &time.day, &time.year, &time.hour, &time.minute, &time.second);
  if (read != 6) return std::nullopt;
  return time;
}

platform::LocalTime AddMinutes(const platform::LocalTime& time, std::int64_t minutes) {
  using std::chrono::days;
  using std::chrono::sys_days;
  const sys_days start{std::chrono::year{time.year} /
                       std::chrono::month{static_cast<unsigned>(time.month)} /
                       std::chrono::day{static_cast<unsigned>(time.day)}};
  std::int64_t of_day = time.hour * 60 + time.minute + minutes;
  std::int64_t whole = of_day / kMinutesPerDay;
  of_day %= kMinutesPerDay;
  if (of_day < 0) {
    of_day += kMinutesPerDay;
    --whole;
  }
  const std::chrono::year_month_day date{start + days{whole}};
  platform::LocalTime result = time;
  result.year = static_cast<int>(date.year());
  result.month = static_cast<int>(static_cast<unsigned>(date.month()));
  result.day = static_cast<int>(static_cast<unsigned>(date.day()));
  result.hour = static_cast<int>(of_day / 60);
  result.minute = static_cast<int>(of_day % 60);
  return result;
}

}  // namespace lab
