#include "schedule/scheduler.h"

#include <cstdio>

#include "schedule/backup_set_list.h"
#include "schedule/calendar.h"
#include "schedule/date_text.h"
#include "schedule/locale_formats.h"
#include "schedule/mail_list.h"
#include "shared/convert.h"
#include "shared/email_address.h"
#include "shared/file_names.h"
#include "shared/paths.h"
#include "shared/trace.h"

namespace schedule {
namespace {

constexpr double kToleranceMinutes = 10;
// A key whose minutes have reached sixty: an hour more, sixty minutes less.
constexpr double kCarry = 100 - 60;

// A whole number as text, without an exponent.
std::string WholeNumber(double value) {
  char text[400];
  const int length = std::snprintf(text, sizeof text, "%.0f", value);
  return std::string(text, static_cast<std::size_t>(length));
}

}  // namespace

clsscheduler1::clsscheduler1(platform::Platform& machine, shared::AgentState& state)
    : machine_(machine), state_(state) {}

void clsscheduler1::Sch_LoadMailid(ScheduleForm& form) {
  ReadMailList(machine_.files, form.cmbMailTo, InEditedFolder(form, shared::files::kMailId));
  form.btnRemove = !form.cmbMailTo.empty();
}

int clsscheduler1::Sch_Mail_validate(const ScheduleForm& form) const {
  if (form.rdMailNotify == 0) return kValid;
  if (form.listMailAdd.empty()) return kNoAddress;
  const int answer = shared::IsValidEmailAddress(form.listMailAdd.front());
  return answer == shared::kValidEmail ? kValid : kBadAddress;
}

std::string clsscheduler1::GetLocaleString(std::uint32_t item) {
  return machine_.locale.Item(item);
}

int clsscheduler1::Schwiz_validate_Start4(const ScheduleForm& form) {
  // 2.
  const std::string start = Sch_Build_Date(form);
  const std::string now_text = shared::FormatStamp(machine_.clock.Now());
  // 3.
  double number = 0;
  if (auto value = shared::ToDouble(Sch_SortBuildDate(start))) number = *value + kToleranceMinutes;
  std::string key = WholeNumber(number);
  // 4. There is no carry beyond the hour: ten minutes behind 23:55 is 24:05.
  if (key.size() > 1 && key[key.size() - 2] == '6') key = WholeNumber(number + kCarry);
  // 5.
  return key < Sch_SortBuildDate(now_text) ? kStartIsPast : kValid;
}

void clsscheduler1::InitializeScheduleJob(std::int16_t job_type) {
  if (job_type == 1 || job_type == 2 || job_type == 5 || job_type == 6) state_.ScheduleDraft = {};
}

bool clsscheduler1::DB_ReadBackdata(std::string_view path, std::vector<std::string>& entries) {
  shared::Trace(machine_, state_)
      .WriteStamped(std::string(shared::kInformation) + "Enter DB_ReadBackdata");
  return ReadBackupSetList(machine_.files, path, entries);
}

bool clsscheduler1::Sch_SaveSqlServerBackupset(std::string_view path, std::string_view name,
                                               std::string_view value) {
  return SaveBackupSet(machine_.files, path, name, value);
}

std::string clsscheduler1::ValidateAddDay1(std::string_view date_text) const {
  const auto date = ReadDateText(date_text, IsDayFirst(state_));
  if (!date) return std::string(date_text);
  const std::string& mask = state_.ScheduleDraft.WeekDayMask;
  for (int days = 0; days < 7; ++days) {
    const platform::LocalTime day = AddDays(*date, days);
    const unsigned weekday = WeekdayOf(day);
    if (weekday >= mask.size() || mask[weekday] != '1') continue;
    return days == 0 ? std::string(date_text) : SystemDateText(day, state_);
  }
  return std::string(date_text);
}

std::string clsscheduler1::InEditedFolder(const ScheduleForm& form, std::string_view name) const {
  return (shared::CommonFolder(state_) + form.edited_user).append("\\").append(name);
}

}  // namespace schedule
