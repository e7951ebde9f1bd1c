#include "schedule/default_schedule.h"

#include <array>

#include "schedule/default_files.h"
#include "schedule/exclusion_lists.h"
#include "schedule/frequency.h"
#include "schedule/job_kinds.h"
#include "schedule/line_file.h"
#include "schedule/recommended_time.h"
#include "schedule/record_reader.h"
#include "schedule/record_store.h"
#include "schedule/sort_key.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/profile_store.h"
#include "shared/trace.h"
#include "shared/transfer.h"

namespace schedule {
namespace {

namespace files = shared::files;
namespace keys = shared::keys;

constexpr std::int16_t kDefaultSetType = 1;
constexpr std::string_view kEveryDay = "1111111";
// One switch for each kind of files that could be added by itself, all off.
constexpr std::size_t kFileKinds = 33;

constexpr std::array kKeptProxyKeys = {keys::kProxyName, keys::kProxyPort, keys::kProxyUser,
                                       keys::kProxyPass};

void MakeFolderIfMissing(platform::Files& disk, const std::string& path) {
  if (!disk.FolderExists(path)) disk.MakeFolder(path);
}

}  // namespace

ScheduleCreateFiles::ScheduleCreateFiles(platform::Platform& machine, shared::AgentState& state)
    : machine_(machine), state_(state) {
  form_.TVcalendar = form_.DTPicker = machine_.clock.Now();
}

void ScheduleCreateFiles::Form_Load() {
  // 1. and 2.
  if (!IsNewUser()) return;
  MakeFolderIfMissing(machine_.files, shared::CommonFolder(state_));
  MakeFolderIfMissing(machine_.files, shared::UserFolder(state_));
  // 3.
  if (!CreateDefaultExcludeFiles(machine_, state_)) return;
  // 4.
  state_.ScheduleFilePath = shared::InUserFolder(state_, files::kScheduleData);
  PickRecommendedTime();
  if (!CreateDefaultSchedule()) return;
  // 5.
  const ProxyValues proxy = ReadProxy();
  // 6.
  if (!WriteFileSelection()) return;
  // 7.
  RemakeProfile(proxy);
  machine_.files.Remove(shared::InUserFolder(state_, files::kDllInput));
  machine_.files.Remove(shared::InUserFolder(state_, files::kSerTrace));
  // 8.
  DefaultFiles set(machine_, state_);
  set.Fill();
  set.WriteFolderList();
}

void ScheduleCreateFiles::PickRecommendedTime() {
  const platform::LocalTime start =
      schedule::PickRecommendedTime(machine_.clock.Now(), machine_.random);
  form_.DTPicker = start;
  form_.TVcalendar = start;
}

bool ScheduleCreateFiles::CreateDefaultSchedule() {
  const auto count = CountScheduleRecords(machine_.files, state_.ScheduleFilePath);
  if (!count) return false;
  state_.ScheduleCount = *count;
  return WriteRecord(kFrequencyWeekDays, kEveryDay);
}

bool ScheduleCreateFiles::CreateHourlySchedule() {
  state_.ScheduleFilePath = shared::InCommonFolder(state_, files::kScheduleData);
  state_.ScheduleCount = 0;
  return WriteRecord(kFrequencyHourly, {});
}

bool ScheduleCreateFiles::IsNewUser() {
  // An empty value is asked for twice: what an old user has made must not be lost to one read that
  // failed.
  shared::ProfileStore store(machine_, state_);
  if (store.RefreshCurrentUser().empty()) store.RefreshCurrentUser();
  shared::clsTransfer transfer(machine_, state_);
  std::string first_user = transfer.Trf_ReadUserProfile(keys::kFirstUser);
  if (first_user.empty()) first_user = transfer.Trf_ReadUserProfile(keys::kFirstUser);
  if (!first_user.empty()) return first_user == "TRUE";
  // A profile that another program holds tells nothing of its user.
  return ReadIfThere(machine_.files, shared::ProfileIni(state_)).has_value();
}

bool ScheduleCreateFiles::WriteFileSelection() {
  std::string line = "0";
  for (std::size_t kind = 1; kind < kFileKinds; ++kind) line += ";0";
  const std::array lines = {line};
  return WriteLines(machine_.files, shared::InCommonFolder(state_, files::kAutoFileSelection),
                    lines);
}

ScheduleCreateFiles::ProxyValues ScheduleCreateFiles::ReadProxy() {
  shared::ProfileStore store(machine_, state_);
  ProxyValues values;
  for (const std::string_view key : kKeptProxyKeys) {
    const std::string stored_key = store.EncryptProfileText(key);
    values.emplace_back(stored_key, store.ReadProfileKey(shared::sections::kProxy, stored_key));
  }
  return values;
}

void ScheduleCreateFiles::RemakeProfile(const ProxyValues& proxy) {
  shared::ProfileStore store(machine_, state_);
  shared::clsTransfer transfer(machine_, state_);
  machine_.files.Remove(shared::ProfileIni(state_));
  for (const auto& [key, value] : proxy) {
    if (!value.empty()) {
      transfer.Trf_WriteUserProfileDefault(shared::sections::kProxy, key, value);
    }
  }
  transfer.Trf_WriteUserProfileDefault(shared::sections::kTolvex,
                                       store.EncryptProfileText(keys::kFirstUser),
                                       store.EncryptProfileText("FALSE"));
}

bool ScheduleCreateFiles::WriteRecord(std::string_view frequency, std::string_view week_days) {
  // 1.
  shared::ScheduleRecord& draft = state_.ScheduleDraft;
  state_.ScheduleJobType = kDefaultSetType;
  draft.BackupSetName = kDefaultSet;
  if (draft.RecordNo.empty()) draft.RecordNo = FindJobKind(kDefaultSet)->record_no;
  // 3.
  const std::string start = Sch_Build_Date(form_);
  // 4.
  state_.ScheduleTable.assign(state_.ScheduleCount + 1, {});
  state_.CurrentRecordIndex = 0;
  state_.ScheduleTable.front() = {
      .RecordNo = draft.RecordNo,
      .BackupSetName = draft.BackupSetName,
      .StartDateTime = start,
      .CreatedDateTime = shared::FormatStamp(machine_.clock.Now()),
      .MonthDay = "3",
      .CarriedValue = "1",
      .MailIds = {},
      .MailLogFlag = "0",
      .MailNotifyMode = "1",
      .SortKey = BuildSortKey(start),
      .FrequencyCode = std::string(frequency),
      .WeekDayMask = std::string(week_days),
  };
  // 5.
  return RecordStore(machine_, state_).DB_WriteAllRecord(state_.ScheduleFilePath, kDefaultSchedule);
}

}  // namespace schedule
