#include "status/next_line.h"

#include <cstddef>

namespace status {
namespace {

constexpr std::string_view kStoredForm = "00-00-0000 00:00:00";

// Digits where the stored form has them, and its separators between.
bool IsStoredDate(std::string_view date) {
  if (date.size() != kStoredForm.size()) return false;
  for (std::size_t at = 0; at < date.size(); ++at) {
    const bool digit = date[at] >= '0' && date[at] <= '9';
    if (kStoredForm[at] == '0' ? !digit : date[at] != kStoredForm[at]) return false;
  }
  return true;
}

}  // namespace

std::string DateForPeople(std::string_view date, std::string_view short_date_format) {
  std::string text(date);
  const bool day_first =
      !short_date_format.empty() && (short_date_format[0] == 'd' || short_date_format[0] == 'D');
  if (!day_first || !IsStoredDate(date)) return text;
  const bool slashes = short_date_format.size() > 2 && short_date_format[2] == '/';
  text[2] = text[5] = slashes ? '/' : '-';
  return text;
}

std::string NextLineText(const NextRun& next, std::string_view short_date_format,
                         const StatusTexts& texts) {
  const std::string_view start = StartTimeField(next.line);
  if (start.empty()) return {};
  const std::string date = DateForPeople(start, short_date_format);
  if (next.job_name.empty()) return texts.next_backup_at + " " + date;
  return texts.next_backup + "(" + next.job_name + ") " + texts.will_occur_on + " " + date;
}

}  // namespace status
