#include <string>

#include "agent/executable_names.h"
#include "agent/tray_menu.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/process_list.h"
#include "shared/trace.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr shared::TextEntry kScheduleBackup = {422, "Schedule Backup"};
constexpr std::uint32_t kOpenDrive = 1464;
constexpr shared::TextEntry kExplorer = {1623, "Explorer"};

}  // namespace

void TrayMenu::UpdateTrayMenu() {
  // 1. The status item.
  MarkStatus();
  // 2. The login word.
  const std::int16_t word = registry_.ReadConnectionStatus();
  shared::Trace(machine_, state_).WriteInformation("Connection param = " + std::to_string(word));
  // 3. Web management.
  MarkWebPlugin();
  // 4. and 5. Logged in or not.
  const bool has_word = word == 1 || word == 2;
  const bool has_user = !profile_.ReadUserNameIni(shared::keys::kDefaultUserName).empty();
  if (has_word && has_user) {
    MarkLoggedIn();
  } else {
    MarkLoggedOut(has_word, has_user);
  }
  // 6. The main program is there already.
  shared::ProcessList processes(machine_, state_);
  if (processes.IsProcessRunning(state_.executables.main_program, shared::WhenFound::kLeave)) {
    Item("MnuOptions").SetEnabled(false);
  }
  if (has_word && !has_user) return;
  // 7. Automatic backup.
  MarkScheduleDisable(transfer_.Trf_ReadUserProfile(shared::keys::kScheduleDisable));
  // 8. Continuous backup.
  MarkContinuousBackup();
  // 9. One transfer at a time.
  Item("mnuBackupNowSVE").SetEnabled(!channel_.IsTransferInProgress());
}

// The interactive program shows its own progress window: ours would be a second one.
void TrayMenu::MarkStatus() {
  const bool own_window = channel_.IsTransferInProgress() &&
                          channel_.ReadProgWnd(status::kProgWndStatus) == "1" &&
                          channel_.ReadProgWndValue() > 0;
  Item("mnuStatus").SetEnabled(!own_window);
}

bool TrayMenu::IsWebManagementOn() {
  const std::string value =
      profile_.ReadProfileKey(shared::sections::kWeb, shared::keys::kWebPlugin);
  return value != "0" && !value.empty();
}

std::optional<std::int16_t> TrayMenu::WebManagementError() {
  const std::int16_t error =
      profile_.ReadProfileInt(shared::sections::kOlwa, shared::keys::kWebPluginError);
  if (error > -1 || error < -3) return std::nullopt;
  return error;
}

void TrayMenu::MarkWebPlugin() {
  forms::MenuItem& item = Item("WebPlugin");
  item.SetEnabled(true);
  item.SetVisible(true);
  item.SetChecked(IsWebManagementOn() && !WebManagementError());
}

void TrayMenu::MarkLoggedIn() {
  Item("MnuLogin").SetEnabled(true);
  forms::MenuItem& options = Item("MnuOptions");
  options.SetEnabled(true);
  if (state_.ProductNumber == kPartnerEdition) {
    options.SetCaption(state_.ProductCaption);
    return;
  }
  options.SetCaption(state_.ProductName + " - " + texts_.Get(kScheduleBackup));
  const std::string drive = texts_.GetText(kOpenDrive);
  Item("MnuOpenDrive")
      .SetCaption(drive.empty() ? "Open " + state_.ProductName + " Explorer"
                                : shared::ReplaceAll(drive, "Sorvane", state_.ProductName));
}

void TrayMenu::MarkLoggedOut(bool has_login_word, bool has_user) {
  const std::string& login = shared_texts_.login;
  Item("MnuOpenDrive").SetCaption(login + " - " + state_.ProductName + " " + texts_.Get(kExplorer));
  forms::MenuItem& options = Item("MnuOptions");
  options.SetEnabled(true);
  options.SetCaption(state_.ProductNumber == kPartnerEdition
                         ? login + " - " + state_.ProductCaption
                         : login + " - " + state_.ProductName + " Schedule Backup");
  Item("MnuLogin").SetEnabled(false);
  if (has_user || has_login_word) Item("mnuStatus").SetEnabled(false);
}

// The profile's word is the user's choice; the two copies follow it. Any other word leaves them.
void TrayMenu::MarkContinuousBackup() {
  using shared::keys::kRealTimeBackup;
  forms::MenuItem& item = Item("mnuCDP");
  item.SetEnabled(true);
  const std::string value = transfer_.Trf_ReadUserProfileWithoutDecrypt(kRealTimeBackup);
  item.SetChecked(value == "1");
  if (value != "1" && value != "0") return;
  profile_.WriteUserNameProfile(kRealTimeBackup, value);
  transfer_.Trf_WriteUserProfileDefault(shared::sections::kTolvex, kRealTimeBackup, value);
}

}  // namespace agent
