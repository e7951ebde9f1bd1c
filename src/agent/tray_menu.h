// The tray's menus: the popup of the icon and the older one that is never shown.
//
// Nothing is kept between two popups: every state of an item is read from the files each time.
// Touches: the keys that are read, `RealTimeBackup` (see MarkContinuousBackup), TrayTraceFile.txt.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "agent/shared_texts.h"
#include "forms/menu.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"
#include "shared/profile_store.h"
#include "shared/registry_store.h"
#include "shared/texts.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"

namespace agent {

class TrayMenu {
 public:
  TrayMenu(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
           const SharedTexts& shared_texts);

  // Lets each item with a handler call it.
  void Connect(shared::AgentCommands& commands);

  // Gives the items their localised captions.
  void LocaliseMenu();

  // Takes out what the partner edition does not have.
  void HideForPartner();

  // Shows the item of an exceeded quota and its line, or takes them out again.
  void MarkQuotaExceeded(bool exceeded);

  // Brings every item to the state of the shared files.
  void UpdateTrayMenu();

  // `mnuStop` is enabled while a scheduled job runs, `mnuCDP` always.
  void EnableJobItems();

  // Captions and default item for this popup.
  void MarkDefaultItem();

  // Checks `MnuDisableAutobkup` by ScheduleDisable being `value`, and sets its caption.
  void MarkScheduleDisable(std::string_view value);

  // True when web management is switched on: `WebPlugin` is neither "0" nor empty.
  bool IsWebManagementOn();

  // The last error of web management when it is one of -1, -2 and -3.
  std::optional<std::int16_t> WebManagementError();

  forms::Menu& Popup() { return popup_; }
  forms::MenuItem& Item(std::string_view name) { return popup_.Item(name); }
  forms::Menu& OldPopup() { return old_popup_; }

 private:
  void MarkStatus();
  void MarkWebPlugin();
  void MarkLoggedIn();
  void MarkLoggedOut(bool has_login_word, bool has_user);
  void MarkContinuousBackup();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  const SharedTexts& shared_texts_;
  shared::ProfileStore profile_;
  shared::clsTransfer transfer_;
  shared::RegistryStore registry_;
  status::ProgressChannel channel_;
  forms::Menu popup_;
  forms::Menu old_popup_;
};

}  // namespace agent
