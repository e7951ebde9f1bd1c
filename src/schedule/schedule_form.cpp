#include "schedule/schedule_form.h"

#include <algorithm>
#include <string_view>

#include "shared/trace.h"

namespace schedule {
namespace {

std::string DateAndTime(const platform::LocalTime& date, const platform::LocalTime& time) {
  return shared::FormatStamp({.year = date.year,
                              .month = date.month,
                              .day = date.day,
                              .hour = time.hour,
                              .minute = time.minute,
                              .second = time.second});
}

}  // namespace

std::string Sch_Build_Date(const ScheduleForm& form) {
  return DateAndTime(form.TVcalendar, form.DTPicker);
}

std::string Sch_End_Date(const ScheduleForm& form) {
  return DateAndTime(form.TVcalendar, form.DTPicker1);
}

std::string Sch_BuildData(const ScheduleForm& form) {
  std::string data = form.Sch_Cmb_transset + ";";
  std::vector<std::string_view> folders;
  bool first = true;
  for (const std::string& entry : form.sch_lbBackupSet) {
    const bool covered = std::ranges::any_of(
        folders, [&](std::string_view folder) { return entry.starts_with(folder); });
    if (covered) continue;
    if (!first) data += ';';
    data += entry;
    first = false;
    if (entry.ends_with('\\')) folders.push_back(entry);
  }
  return data;
}

}  // namespace schedule
