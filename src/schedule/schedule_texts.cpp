#include "schedule/schedule_texts.h"

#include <algorithm>

#include "schedule/date_text.h"
#include "schedule/job_kinds.h"
#include "schedule/locale_formats.h"
#include "schedule/normal_date.h"
#include "schedule/record_line.h"
#include "schedule/record_store.h"
#include "schedule/time_difference.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/texts.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace schedule {
namespace {

constexpr std::uint32_t kDisabledId = 1603;
constexpr std::string_view kDisabled = "You have disabled your scheduled job.";

// The looked-up sentence lacks its full stop.
std::string DisabledText(shared::Texts texts) {
  const std::string text = texts.GetText(kDisabledId);
  return text.empty() ? std::string(kDisabled) : text + ".";
}

}  // namespace

ScheduleTexts::ScheduleTexts(platform::Platform& machine, shared::AgentState& state)
    : machine_(machine), state_(state) {}

status::NextRun ScheduleTexts::GetScheduleDate() {
  // 1.
  shared::clsTransfer transfer(machine_, state_);
  if (transfer.Trf_ReadUserProfile(shared::keys::kScheduleDisable) == "TRUE") {
    return {.line = DisabledText(shared::Texts(machine_, state_)), .job_name = {}};
  }
  // 2.
  status::NextRun next;
  if (!machine_.files.Exists(shared::InUserFolder(state_, shared::files::kScheduleData))) {
    return next;
  }
  // 3. The table is one of its own: windows look at the next run while the wizard edits, maybe the
  // job of another user, and what the wizard then saves is the table of the state.
  shared::AgentState own = state_;
  if (!RecordStore(machine_, own).ReadScheduleTable()) return next;
  std::string earliest(kLatestSortKey);
  for (std::size_t at = 0; at < own.ScheduleCount; ++at) {
    shared::ScheduleRecord& record = own.ScheduleTable[at];
    if (record.SortKey >= earliest) continue;
    earliest = record.SortKey;
    const JobKind* const kind = FindJobKind(record.BackupSetName);
    if (kind == nullptr) continue;
    next.job_name = kind->name;
    // 4. A start in a form that begins with the name of a month.
    if (record.StartDateTime.starts_with('D') || record.StartDateTime.starts_with('d')) {
      record.StartDateTime = FormatDateText(record.StartDateTime, IsDayFirst(state_));
    }
    next.line = JoinRecord(record);
  }
  return next;
}

status::TimeDifference ScheduleTexts::GetTimeDifference(std::string_view scheduled,
                                                        std::string_view last_run) {
  status::ProgressChannel channel(machine_, state_);
  if (channel.HasFailed()) return ComputeTimeDifference({.now = {}, .failed = true});
  const std::string end_time = channel.ReadBackupStatus(status::kScheduleEndTime);
  return ComputeTimeDifference(
      {.now = machine_.clock.Now(),
       .scheduled = scheduled,
       .last_run = last_run,
       .end_time = end_time,
       .window_waits = channel.ReadBackupStatusInt(status::kStatusWindow) != 0});
}

std::string ScheduleTexts::ValidateSorvaneDateFormat(std::string_view text) {
  return schedule::ValidateSorvaneDateFormat(text);
}

}  // namespace schedule
