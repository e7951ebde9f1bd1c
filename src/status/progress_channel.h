// What the engine tells and is told: BackupProgress.ini, the section BackupStatus of the user's
// profile, and the one-line status files.
//
// Every call reads or writes the file: nothing is cached. A missing value is ""; a write that fails
// is lost. The names of keys and files and their values are in progress_keys.h.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/profile_store.h"
#include "shared/transfer.h"

namespace status {

class ProgressChannel {
 public:
  ProgressChannel(platform::Platform& machine, shared::AgentState& state);

  // BackupProgress.ini of UserFolder, at most 255 characters: a longer path comes back cut.
  std::string ReadProgressValue(std::string_view section, std::string_view key);

  // Its section ProgWnd, also cut at the first NUL.
  std::string ReadProgWnd(std::string_view key);

  // `VALUE` of ProgWnd as a number: above 0 while the engine's window exists; 0 for no number.
  std::int32_t ReadProgWndValue();

  // BackupProgress.ini, one key.
  void WriteProgressValue(std::string_view section, std::string_view key, std::string_view value);

  // True when a backup or a restore is marked in progress with exactly "1", blanks not removed.
  bool IsTransferInProgress();

  // True when `Paused` without blanks around it is "1".
  bool SyncPaused();

  // Clears the progress in the order that other programs know: `Paused`, the window, the backup,
  // the restore. `Status` of ProgWnd stays.
  void ResetProgressFile();

  // The profile, section BackupStatus, plain.
  std::string ReadBackupStatus(std::string_view key);
  // The same as a whole number in 16 bits; 0 when there is none.
  std::int16_t ReadBackupStatusInt(std::string_view key);
  void WriteBackupStatus(std::string_view key, std::string_view value);

  // The profile, section QuotaStatus: bytes used and allowed, see shared/profile_store.h.
  shared::QuotaStatus ReadQuotaStatus();

  // First line of SchStatus.txt; nothing while another program keeps the file from being read.
  // Without that file "Backup has failed" when SchStatusError.txt is there, else "".
  std::optional<std::string> ReadOutcome();
  // Makes `line` the one line of SchStatus.txt; "" consumes the outcome.
  void WriteOutcome(std::string_view line);
  // SchStatusError.txt is there.
  bool HasFailed();

  // QuotaExceeded.txt: is there; make it, empty, when it is not; remove it.
  bool IsQuotaMarked();
  void MarkQuota();
  void UnmarkQuota();

  // scheduleData.txt is there.
  bool HasSchedule();
  // Its first line: "0" no scheduled job runs, any other text the kind of the running one. "" when
  // the file is missing or empty.
  std::string ReadJobKindCode();

 private:
  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::ProfileStore profile_;
  shared::clsTransfer transfer_;
};

}  // namespace status
