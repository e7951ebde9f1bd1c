#include "agent/tray_menu.h"

#include <string>

#include "agent/executable_names.h"
#include "agent/menu_items.h"
#include "shared/convert.h"
#include "status/backup_state.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::string_view kPartnerHidden[] = {"MnuQuotaExceeded", "BLLine", "MnuOpenDrive"};

void Build(forms::Menu& menu, std::span<const MenuItemRow> rows) {
  for (const MenuItemRow& row : rows) {
    forms::MenuItem& item = menu.Add(row.name, row.caption);
    item.SetVisible(row.design == ItemDesign::kShown);
    item.SetEnabled(row.design != ItemDesign::kHiddenDisabled);
  }
}

void ConnectRows(forms::Menu& menu, std::span<const MenuItemRow> rows,
                 shared::AgentCommands& commands) {
  for (const MenuItemRow& row : rows) {
    if (row.handler == nullptr) continue;
    menu.Item(row.name).on_click = [&commands, handler = row.handler] { (commands.*handler)(); };
  }
}

}  // namespace

TrayMenu::TrayMenu(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
                   const SharedTexts& shared_texts)
    : machine_(machine),
      state_(state),
      texts_(texts),
      shared_texts_(shared_texts),
      profile_(machine, state),
      transfer_(machine, state),
      registry_(machine, state),
      channel_(machine, state),
      popup_(kTrayMenuName),
      old_popup_(kOldMenuName) {
  Build(popup_, TrayMenuRows());
  Build(old_popup_, OldMenuRows());
}

void TrayMenu::Connect(shared::AgentCommands& commands) {
  ConnectRows(popup_, TrayMenuRows(), commands);
  ConnectRows(old_popup_, OldMenuRows(), commands);
}

void TrayMenu::LocaliseMenu() {
  for (const CaptionRow& row : LocalisedCaptions()) {
    Item(row.name).SetCaption(texts_.Get({row.text, row.literal}));
  }
  Item("MnuHelp").SetCaption(shared_texts_.help);
  Item("MnuQuotaExceeded").SetCaption(shared_texts_.quota_exceeded);
}

void TrayMenu::HideForPartner() {
  for (const std::string_view name : kPartnerHidden) Item(name).SetVisible(false);
}

void TrayMenu::MarkQuotaExceeded(bool exceeded) {
  if (exceeded) Item("MnuQuotaExceeded").SetCaption(shared_texts_.quota_exceeded);
  Item("MnuQuotaExceeded").SetVisible(exceeded);
  Item("BLLine").SetVisible(exceeded);
}

void TrayMenu::EnableJobItems() {
  // A stop that found nothing to stop hid it until now.
  Item("mnuStop").SetVisible(true);
  Item("mnuStop").SetEnabled(status::ReadBackupState(machine_, state_) == 1);
  Item("mnuCDP").SetEnabled(true);
}

// The default item is what a double click would do: the login item before login.
void TrayMenu::MarkDefaultItem() {
  const bool paused = channel_.SyncPaused();
  const bool transfer = channel_.IsTransferInProgress();
  forms::MenuItem& status = Item("mnuStatus");
  forms::MenuItem& options = Item("MnuOptions");
  status.SetCaption(shared_texts_.status + (transfer && paused ? " - Paused" : ""));
  const bool before_login = options.Caption().find(shared_texts_.login) != std::string::npos;
  popup_.SetDefault(transfer || before_login ? &status : &options);
}

void TrayMenu::MarkScheduleDisable(std::string_view value) {
  forms::MenuItem& item = Item("MnuDisableAutobkup");
  item.SetCaption(shared_texts_.disable_automatic_backup);
  item.SetChecked(value == "TRUE");
}

}  // namespace agent
