#include "schedule/frequency.h"
#include "schedule/job_kinds.h"
#include "schedule/locale_formats.h"
#include "schedule/record_store.h"
#include "schedule/scheduler.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/profile_store.h"
#include "shared/trace.h"

namespace schedule {

bool clsscheduler1::Sch_SaveScheduleJob(const ScheduleForm& form) {
  shared::ScheduleRecord& draft = state_.ScheduleDraft;
  // 1.
  if (const JobKind* const kind = FindJobKindByType(state_.ScheduleJobType)) {
    draft.BackupSetName = kind->keyword;
    if (draft.RecordNo.empty()) draft.RecordNo = kind->record_no;
  }
  // 2. to 5.
  draft.CreatedDateTime = shared::FormatStamp(machine_.clock.Now());
  SetStart(form);
  // 6.
  draft.MailIds.clear();
  for (const std::string& address : form.listMailAdd) draft.MailIds += address + ";";
  // 7.
  shared::ProfileStore store(machine_, state_);
  store.WriteUserNameIni(shared::keys::kStopSchedule, form.ChkEndTime ? "1" : "0");
  store.WriteUserNameIni(shared::keys::kStopScheduleTime,
                         form.ChkEndTime ? Sch_End_Date(form) : std::string());
  // 8.
  if (state_.CurrentRecordIndex >= state_.ScheduleTable.size()) return false;
  state_.ScheduleTable[state_.CurrentRecordIndex] = draft;
  // 9.
  const std::string path = InEditedFolder(form, shared::files::kScheduleData);
  return RecordStore(machine_, state_).DB_WriteAllRecord(path, kSaveOfWizard);
}

void clsscheduler1::SetStart(const ScheduleForm& form) {
  shared::ScheduleRecord& draft = state_.ScheduleDraft;
  const std::string start = Sch_Build_Date(form);
  // The key is that of the day before the advance: the order of jobs follows it.
  draft.SortKey = Sch_SortBuildDate(start);
  const bool advances = !IsDayFirst(state_) && draft.FrequencyCode == kFrequencyWeekDays;
  draft.StartDateTime = advances ? ValidateAddDay1(start) : start;
}

}  // namespace schedule
