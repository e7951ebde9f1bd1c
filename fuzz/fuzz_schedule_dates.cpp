// Texts of dates and times. Input: lines of a date text, a second one, a short date format and a
// time format; what is missing is empty.
#include <string>

#include "fuzz/check.h"
#include "platform/memory/machine.h"
#include "schedule/date_text.h"
#include "schedule/normal_date.h"
#include "schedule/scheduler.h"
#include "schedule/time_difference.h"
#include "shared/trace.h"

namespace {

// What is read as a date is the same date again in the form of this system, and in its key.
void CheckDate(std::string_view text, bool day_first) {
  const auto time = schedule::ReadDateText(text, day_first);
  const std::string formatted = schedule::FormatDateText(text, day_first);
  if (!time) {
    fuzz::Check(formatted == text);
    return;
  }
  fuzz::Check(schedule::ReadDateText(formatted, false) == time);
  fuzz::Check(schedule::ValidateSorvaneDateFormat(formatted) == formatted);
  platform::LocalTime minute = *time;
  minute.second = 0;
  fuzz::Check(schedule::CutSortKey(schedule::Sch_SortBuildDate(formatted)) == minute);
  fuzz::Check(schedule::BuildSortKey(formatted) == schedule::Sch_SortBuildDate(formatted));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view rest = fuzz::Text(data, size);
  const std::string_view text = fuzz::Take(rest, '\n');
  const std::string_view other = fuzz::Take(rest, '\n');
  static platform::memory::Machine machine;
  shared::AgentState state;
  state.ShortDateFormat = fuzz::Take(rest, '\n');
  state.TimeFormat = fuzz::Take(rest, '\n');

  CheckDate(text, false);
  CheckDate(text, true);
  schedule::ValidateSorvaneDateFormat(text);
  schedule::ValidateSorvaneTimeFormat(text, true);

  schedule::clsscheduler1 scheduler(machine.platform(), state);
  scheduler.Sch_SortBuildDateYear(text);
  scheduler.CheckValidDateTime(text);
  scheduler.CheckValidDateFormat(text);
  scheduler.ConvertToDate(text);
  scheduler.ConvertToTime(text);
  state.ScheduleDraft.WeekDayMask = other.substr(0, 7);
  scheduler.ValidateAddDay1(text);

  for (const bool waits : {false, true}) {
    for (const std::string_view end : {std::string_view(), text}) {
      const auto difference = schedule::ComputeTimeDifference({.now = machine.LocalNow(),
                                                               .scheduled = other,
                                                               .last_run = text,
                                                               .end_time = end,
                                                               .window_waits = waits});
      fuzz::Check(!difference.recent || !difference.text.empty());
    }
  }
  return 0;
}
