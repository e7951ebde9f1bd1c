#include <string>

#include "agent/executable_names.h"
#include "agent/frm_tv_win_service.h"
#include "agent/partner_edition.h"
#include "agent/supervision.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/share_records.h"
#include "shared/system_version.h"
#include "shared/trace.h"

namespace agent {
namespace {

namespace keys = shared::keys;
namespace sections = shared::sections;

constexpr shared::TextEntry kLogViewer = {1575, "Log Viewer"};
constexpr std::uint32_t kBatchPause = 1000;  // milliseconds after each batch file of the service

}  // namespace

void frmTVWinService::Form_Load() {
  shared::ProfileStore profile(machine_, state_);
  // 1. Captions.
  menu_.LocaliseMenu();
  // 2. The partner edition.
  PrepareForPartner();
  // 3. The window's caption.
  SetCaption(state_.ProductName + " " + texts_.Get(kLogViewer));
  // 4. and 5. The user and the password. Whose client is at work makes no difference here.
  profile.RefreshCurrentUser();
  CompletePassword();
  // 6. Web management.
  MarkWebPluginAtStart();
  // 7. Nothing is kept awake; the share records are shifted once.
  state_.KeepAwakeOn = false;
  shared::MigrateShareRecords(machine_, state_);
  // 8. The icon.
  AddTrayIcon();
  // 9. The user and the schedule's file.
  profile.RefreshCurrentUser();
  state_.ScheduleFilePath = shared::InUserFolder(state_, shared::files::kScheduleData);
  // 10. The automatic backup.
  InitialiseScheduleDisable();
  // 11. The first tick.
  Hide();
  state_.LoadingDone = true;
  state_.RestartStatusWindow = false;
  StartTrayTick();
  // 12. The service.
  InstallService();
  // 13. The key with two spellings.
  MoveMisspeltKey();
  // 14. The companions.
  KeepCompanionsAlive();
  // 15. The slow tick.
  keeps_house_ = true;
  StartHousekeepingTick();
  // 16. Web management once more: its error may have come meanwhile.
  TellWebManagerError();
  // 17. The tip.
  if (!state_.CurrentUser.empty()) icon_.SetTrayIcon(commands_.BuildTrayTip());
  // 18.
  Hide();
}

void frmTVWinService::StartTrayTick() {
  if (tray_timer_ != platform::kNoTimer) return;
  tray_timer_ = machine_.events.StartTimer(kTrayTickPeriod, [this] {
    StartHousekeepingTick();
    tick_.TrayTick();
  });
}

void frmTVWinService::StartHousekeepingTick() {
  if (housekeeping_timer_ != platform::kNoTimer || !keeps_house_) return;
  housekeeping_timer_ = machine_.events.StartTimer(kHousekeepingPeriod, [this] {
    StartTrayTick();
    housekeeping_.HousekeepingTick();
  });
}

void frmTVWinService::PrepareForPartner() {
  if (state_.ProductNumber != kPartnerEdition) return;
  icon_.SetTrayImage(FormPicture(machine_.files, state_));
  menu_.HideForPartner();
  for (const std::string_view name : {"MnuQuotaExceeded", "BLLine", "MnuOpenDrive"}) {
    menu_.Item(name).SetEnabled(false);
  }
  menu_.Item("MnuOptions").SetCaption(state_.ProductCaption);
}

// The stored form of the twin is that of the key itself: it is taken over as it stands.
void frmTVWinService::CompletePassword() {
  shared::clsTransfer transfer(machine_, state_);
  if (!transfer.Trf_ReadUserProfile(keys::kPassword).empty()) return;
  const std::string twin = transfer.Trf_ReadUserProfileWithoutDecrypt(keys::kPlainPassword);
  if (!twin.empty()) transfer.Trf_WriteUserProfileWithoutEncrypt(keys::kPassword, twin);
}

void frmTVWinService::MarkWebPluginAtStart() {
  forms::MenuItem& item = menu_.Item("WebPlugin");
  item.SetEnabled(true);
  item.SetVisible(true);
  if (const auto error = menu_.WebManagementError()) {
    commands_.HandleWebManagerError(*error);
  } else {
    item.SetChecked(menu_.IsWebManagementOn());
  }
}

void frmTVWinService::TellWebManagerError() {
  if (const auto error = menu_.WebManagementError()) commands_.HandleWebManagerError(*error);
}

void frmTVWinService::InitialiseScheduleDisable() {
  shared::clsTransfer transfer(machine_, state_);
  const std::string value = transfer.Trf_ReadUserProfile(keys::kScheduleDisable);
  if (value.empty()) transfer.Trf_WriteUserProfile(keys::kScheduleDisable, "FALSE");
  menu_.MarkScheduleDisable(value);
}

void frmTVWinService::InstallService() {
  shared::Trace trace(machine_, state_);
  Supervision supervision(machine_, state_);
  trace.WriteInformation("Checking Background running..1");
  if (supervision.GetServiceState() != platform::ServiceState::kUnknown) return;
  trace.WriteError("Service is not installed");
  for (const std::string_view word : {"Install", "Start"}) {
    supervision.RunServiceBatch(word);
    machine_.clock.Sleep(kBatchPause);
  }
  // One blank more than other lines of this kind have.
  trace.WriteStamped("   [INFORMATION] Service installed");
  if (supervision.GetServiceState() == platform::ServiceState::kUnknown) {
    trace.WriteError(state_.ProductFolder + " Service installation failed");
  }
}

void frmTVWinService::MoveMisspeltKey() {
  status::ProgressChannel channel(machine_, state_);
  const std::string value = channel.ReadBackupStatus(keys::kStatusMessageAtStart);
  if (value.empty()) {
    channel.WriteBackupStatus(keys::kStatusMessage, "0");
    return;
  }
  channel.WriteBackupStatus(keys::kStatusMessage, value);
  channel.WriteBackupStatus(keys::kStatusMessageAtStart, "0");
}

void frmTVWinService::KeepCompanionsAlive() {
  shared::ProfileStore profile(machine_, state_);
  Supervision supervision(machine_, state_);
  if (profile.ReadUserNameIniPlain(keys::kTray) == "0") supervision.EnsureBackground();
  if (!shared::IsVistaOrLater(machine_.processes.Version())) supervision.EnsureService();
}

}  // namespace agent
