// The commands of the tray that this room carries out itself. The others do nothing until the room
// that they belong to stands.
//
// Touches: `BackupNowTray`, `Cancel`, `Paused`, `Status` and `DLLStatus` of BackupStatus,
// `ScheduleDisable`.
#pragma once

#include <string>
#include <string_view>

#include "agent/tray_icon.h"
#include "agent/tray_menu.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"

namespace agent {

class TrayCommands : public shared::AgentCommands {
 public:
  TrayCommands(platform::Platform& machine, shared::AgentState& state, TrayIcon& icon,
               TrayMenu& menu);

  void SetTrayIcon(std::string_view tip) override;
  std::string BuildTrayTip() override { return {}; }
  void DisableStatusEntry() override;
  void MnuOptionsClick() override;
  void StopClick() override;
  void MnuBackupNowClick() override;
  void MnuDisableAutobkupClick() override;
  void MnuOpenClick() override;
  void MnuExitClick() override;

  void OpenStatusWindow() override {}
  void OpenSessionLog() override {}
  void OpenActivityLog() override {}
  void OpenRecentLog() override {}
  void OpenManageJobs() override {}
  void OpenErrorReport() override {}

 private:
  platform::Platform& machine_;
  shared::AgentState& state_;
  TrayIcon& icon_;
  TrayMenu& menu_;
};

}  // namespace agent
