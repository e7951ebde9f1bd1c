#include "status/progress_channel.h"

#include <array>

#include "shared/convert.h"
#include "shared/paths.h"
#include "shared/text_file.h"
#include "status/progress_keys.h"
#include "status/status_texts.h"

namespace status {
namespace {

struct ProgressWrite {
  std::string_view section;
  std::string_view key;
  std::string_view value;
};

// The keys of the restore carry one blank at their end. The file's reader ignores it, and the names
// stay as the other programs write them.
constexpr std::array kResetWrites = {
    ProgressWrite{kProgWndSection, kProgWndValue, "0"},
    ProgressWrite{kProgWndSection, kProgWndJob, ""},
    ProgressWrite{kBackupProgressSection, kBackupInProgress, "0"},
    ProgressWrite{kBackupProgressSection, kPercentage, ""},
    ProgressWrite{kBackupProgressSection, kFileName, ""},
    ProgressWrite{kBackupProgressSection, kFileCount, ""},
    ProgressWrite{kBackupProgressSection, kTotalProgress, ""},
    ProgressWrite{kBackupProgressSection, kTimeElapsed, ""},
    ProgressWrite{kBackupProgressSection, kEstimatedTime, ""},
    ProgressWrite{kBackupProgressSection, kTransferRate, ""},
    ProgressWrite{kBackupProgressSection, kFilePath, ""},
    ProgressWrite{kBackupProgressSection, kFilePercent, ""},
    ProgressWrite{kBackupProgressSection, kFilePathDual, ""},
    ProgressWrite{kBackupProgressSection, kFilePercentDual, ""},
    ProgressWrite{kRestoreProgressSection, "RestoreInProgress ", "0"},
    ProgressWrite{kRestoreProgressSection, "Percentage ", ""},
    ProgressWrite{kRestoreProgressSection, "FileName ", ""},
    ProgressWrite{kRestoreProgressSection, "Backedup Files ", ""},
    ProgressWrite{kRestoreProgressSection, "Total Progress ", ""},
    ProgressWrite{kRestoreProgressSection, "Time Elapsed ", ""},
    ProgressWrite{kRestoreProgressSection, "Est Time ", ""},
    ProgressWrite{kRestoreProgressSection, "Tans Rate ", ""},
    ProgressWrite{kRestoreProgressSection, "FilePer ", ""},
    ProgressWrite{kRestoreProgressSection, kFilePathDual, ""},
    ProgressWrite{kRestoreProgressSection, kFilePercentDual, ""},
};

}  // namespace

ProgressChannel::ProgressChannel(platform::Platform& machine, shared::AgentState& state)
    : machine_(machine), state_(state), profile_(machine, state), transfer_(machine, state) {}

std::string ProgressChannel::ReadProgressValue(std::string_view section, std::string_view key) {
  return machine_.profile_files.ReadText(shared::InUserFolder(state_, kProgressFile), section, key);
}

std::string ProgressChannel::ReadProgWnd(std::string_view key) {
  return std::string(shared::StripNulls(ReadProgressValue(kProgWndSection, key)));
}

std::int32_t ProgressChannel::ReadProgWndValue() {
  return shared::ToInt32(ReadProgWnd(kProgWndValue)).value_or(0);
}

void ProgressChannel::WriteProgressValue(std::string_view section, std::string_view key,
                                         std::string_view value) {
  machine_.profile_files.WriteText(shared::InUserFolder(state_, kProgressFile), section, key,
                                   value);
}

bool ProgressChannel::IsTransferInProgress() {
  return ReadProgressValue(kBackupProgressSection, kBackupInProgress) == "1" ||
         ReadProgressValue(kRestoreProgressSection, kRestoreInProgress) == "1";
}

bool ProgressChannel::SyncPaused() {
  return shared::Trim(ReadBackupStatus(kPaused)) == "1";
}

void ProgressChannel::ResetProgressFile() {
  WriteBackupStatus(kPaused, "0");
  for (const ProgressWrite& write : kResetWrites) {
    WriteProgressValue(write.section, write.key, write.value);
  }
}

std::string ProgressChannel::ReadBackupStatus(std::string_view key) {
  return profile_.ReadProfileKey(kBackupStatusSection, key);
}

std::int16_t ProgressChannel::ReadBackupStatusInt(std::string_view key) {
  return profile_.ReadProfileInt(kBackupStatusSection, key);
}

void ProgressChannel::WriteBackupStatus(std::string_view key, std::string_view value) {
  transfer_.Trf_WriteUserProfileDefault(kBackupStatusSection, key, value);
}

shared::QuotaStatus ProgressChannel::ReadQuotaStatus() {
  return profile_.ReadQuotaStatus();
}

std::optional<std::string> ProgressChannel::ReadOutcome() {
  const std::string path = shared::InUserFolder(state_, kOutcomeFile);
  if (!machine_.files.Exists(path)) return std::string(HasFailed() ? kBackupHasFailed : "");
  const auto text = machine_.files.Read(path, shared::kTextFileLimit);
  if (!text) return std::nullopt;
  return std::string(shared::LineOf(*text, 0));
}

void ProgressChannel::WriteOutcome(std::string_view line) {
  shared::WriteOneLine(machine_.files, shared::InUserFolder(state_, kOutcomeFile), line);
}

bool ProgressChannel::HasFailed() {
  return machine_.files.Exists(shared::InUserFolder(state_, kOutcomeErrorFile));
}

bool ProgressChannel::IsQuotaMarked() {
  return machine_.files.Exists(shared::InUserFolder(state_, kQuotaExceededFile));
}

void ProgressChannel::MarkQuota() {
  if (IsQuotaMarked()) return;
  machine_.files.Replace(shared::InUserFolder(state_, kQuotaExceededFile), "");
}

void ProgressChannel::UnmarkQuota() {
  machine_.files.Remove(shared::InUserFolder(state_, kQuotaExceededFile));
}

bool ProgressChannel::HasSchedule() {
  return machine_.files.Exists(shared::InUserFolder(state_, kScheduleDataFile));
}

std::string ProgressChannel::ReadJobKindCode() {
  return shared::ReadFirstLine(machine_.files, shared::InUserFolder(state_, kScheduleDataFile));
}

}  // namespace status
