#include "status/status_snapshot.h"

#include <array>

#include "shared/code_page.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/text_file.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace status {
namespace {

struct ProgressSlot {
  std::string ProgressTexts::*target;
  std::string_view key;
};
constexpr std::array kProgressSlots = {
    ProgressSlot{&ProgressTexts::file_name, kFileName},
    ProgressSlot{&ProgressTexts::total, kTotalProgress},
    ProgressSlot{&ProgressTexts::rate, kTransferRate},
    ProgressSlot{&ProgressTexts::estimate, kEstimatedTime},
    ProgressSlot{&ProgressTexts::elapsed, kTimeElapsed},
    ProgressSlot{&ProgressTexts::file_count, kFileCount},
    ProgressSlot{&ProgressTexts::percentage, kPercentage},
};

// Through the system's code page and back, as other programs show it.
std::string ConvertFileNameText(platform::Locale& locale, std::string_view text) {
  namespace code_page = shared::basInCodePage;
  return code_page::ConvertFromWide(locale, code_page::ConvertToWide(locale, text));
}

ProgressTexts ReadProgressTexts(platform::Platform& machine, ProgressChannel& channel,
                                std::string_view section) {
  ProgressTexts texts;
  for (const ProgressSlot& slot : kProgressSlots) {
    texts.*slot.target = channel.ReadProgressValue(section, slot.key);
  }
  texts.file_name = ConvertFileNameText(machine.locale, texts.file_name);
  return texts;
}

std::int16_t ReadRtBackup(shared::ProfileStore& profile) {
  return shared::ToInt16(profile.ReadUserNameProfile(shared::keys::kRtBackup)).value_or(0);
}

}  // namespace

IdleSnapshot ReadIdleSnapshot(platform::Platform& machine, shared::AgentState& state) {
  shared::ProfileStore profile(machine, state);
  shared::clsTransfer transfer(machine, state);
  ProgressChannel channel(machine, state);
  IdleSnapshot now;
  now.user = profile.RefreshCurrentUser();
  now.quota = channel.ReadQuotaStatus();
  if (now.quota.used < 0) now.quota = channel.ReadQuotaStatus();
  now.ret_value = channel.ReadBackupStatus(kRetValue);
  now.schedule_disabled = transfer.Trf_ReadUserProfile(shared::keys::kScheduleDisable) == "TRUE";
  now.rt_backup = ReadRtBackup(profile);
  now.has_schedule = channel.HasSchedule();
  if (now.has_schedule) {
    const std::string path = shared::InUserFolder(state, kScheduleDataFile);
    const auto head = machine.files.Read(path, shared::kTextFileLimit);
    now.schedule_read = head.has_value();
    now.job_kind = shared::LineOf(head.value_or(""), 0);
    now.second_line = shared::LineOf(head.value_or(""), 1);
  }
  now.paused = channel.SyncPaused();
  now.indicator = channel.ReadBackupStatusInt(kMessageIndicator);
  now.status_window = channel.ReadBackupStatusInt(kStatusWindow);
  now.outcome = channel.ReadOutcome();
  now.last_run = channel.ReadBackupStatus(kScheduleEndTime);
  now.short_date = machine.locale.Item(platform::kLocaleShortDate);
  now.decimal_separator = machine.locale.Item(platform::kLocaleDecimalSeparator);
  return now;
}

TransferSnapshot ReadTransferSnapshot(platform::Platform& machine, shared::AgentState& state) {
  shared::ProfileStore profile(machine, state);
  ProgressChannel channel(machine, state);
  TransferSnapshot now;
  now.backup = channel.ReadProgressValue(kBackupProgressSection, kBackupInProgress);
  now.restore = channel.ReadProgressValue(kRestoreProgressSection, kRestoreInProgress);
  now.in_progress = now.backup == "1" || now.restore == "1";
  now.window_status = channel.ReadProgWnd(kProgWndStatus);
  now.window_value = channel.ReadProgWndValue();
  now.job = channel.ReadProgWnd(kProgWndJob);
  now.paused = channel.SyncPaused();
  now.rt_backup = ReadRtBackup(profile);
  if (shared::Trim(now.backup) == "1") {
    now.progress = ReadProgressTexts(machine, channel, kBackupProgressSection);
  } else if (shared::Trim(now.restore) == "1") {
    now.progress = ReadProgressTexts(machine, channel, kRestoreProgressSection);
  }
  now.backup_idle = profile.ReadUserNameIniPlain(shared::keys::kBackupIdle);
  now.backup_idle_state = profile.ReadUserNameIniPlain(shared::keys::kBackupIdleState);
  now.bandwidth = profile.ReadUserNameIniPlain(shared::keys::kBandwidth);
  now.bandwidth_idle_state = profile.ReadUserNameIniPlain(shared::keys::kBandwidthIdleState);
  return now;
}

StatusContext ReadStatusContext(platform::Platform& machine, const shared::AgentState& state,
                                bool large_fonts) {
  shared::Texts texts(machine, state);
  return {state.ProductNumber, state.DisplayName, large_fonts, ReadStatusTexts(texts, state)};
}

}  // namespace status
