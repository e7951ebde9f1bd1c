#include "schedule/record_line.h"

#include <array>

#include "status/schedule_texts.h"

namespace schedule {
namespace {

using shared::ScheduleRecord;
using status::kFieldSeparator;

// The file has MailNotifyMode eighth and MailLogFlag ninth, the other way round than the record.
constexpr std::array kFileOrder = {
    &ScheduleRecord::RecordNo,      &ScheduleRecord::BackupSetName,
    &ScheduleRecord::StartDateTime, &ScheduleRecord::CreatedDateTime,
    &ScheduleRecord::MonthDay,      &ScheduleRecord::CarriedValue,
    &ScheduleRecord::MailIds,       &ScheduleRecord::MailNotifyMode,
    &ScheduleRecord::MailLogFlag,   &ScheduleRecord::SortKey,
    &ScheduleRecord::FrequencyCode, &ScheduleRecord::WeekDayMask,
};

// Cuts the text before the first separator off `rest`; all of it when there is none.
std::string_view TakeField(std::string_view& rest) {
  const std::size_t end = rest.find(kFieldSeparator);
  const std::string_view field = rest.substr(0, end);
  rest.remove_prefix(end == std::string_view::npos ? rest.size() : end + kFieldSeparator.size());
  return field;
}

}  // namespace

std::string JoinRecord(const ScheduleRecord& record) {
  std::string line;
  for (const auto field : kFileOrder) {
    if (field != kFileOrder.front()) line += kFieldSeparator;
    line += record.*field;
  }
  return line;
}

void SplitRecord(std::string_view line, ScheduleRecord& record) {
  for (const auto field : kFileOrder) {
    record.*field = field == kFileOrder.back() ? line : TakeField(line);
  }
}

}  // namespace schedule
