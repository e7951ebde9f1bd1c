// The commands of the tray that this room carries out itself. The others do nothing until the room
// that they belong to stands.
//
// Touches: `BackupNowTray`, `Cancel`, `Paused`, `Status` and `DLLStatus` of BackupStatus,
// `ScheduleDisable`.
#pragma once

#include <memory>
#include <string>
#include <string_view>

#include "agent/continuous_backup.h"
#include "agent/session.h"
#include "agent/shared_texts.h"
#include "agent/tray_icon.h"
#include "agent/tray_menu.h"
#include "agent/tray_tip.h"
#include "agent/web_management.h"
#include "forms/form.h"
#include "forms/frm_welcome.h"
#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"
#include "shared/messages.h"
#include "status/schedule_texts.h"
#include "status/ui/frm_status.h"

namespace agent {

class TrayCommands : public shared::AgentCommands {
 public:
  // `form` is the hidden main form, the timers are its one-shot continuations of the two switches.
  TrayCommands(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
               const SharedTexts& shared_texts, shared::Messages& messages, TrayIcon& icon,
               TrayTip& tip, TrayMenu& menu, status::ScheduleTexts& schedule, forms::Form& form,
               forms::Timer& cdp_timer, forms::Timer& web_timer);

  void SetTrayIcon(std::string_view tip) override;
  std::string BuildTrayTip() override { return tip_.BuildTrayTip(); }
  void DisableStatusEntry() override;
  void MnuOptionsClick() override;
  void StopClick() override;
  void MnuBackupNowClick() override;
  void MnuDisableAutobkupClick() override;
  void MnuOpenClick() override;
  void MnuExitClick() override;
  void MnuLoginClick() override { session_.MnuLogin_click(); }
  void ExplorerLogout() override { session_.ExplorerLogout(); }
  void Relogin() override { session_.Relogin(); }
  void MnuCdpClick() override { continuous_.mnuCDP_Click(); }
  void WebPluginClick() override { web_.WebPlugin_Click(); }
  void HandleWebManagerError(std::int16_t error) override { web_.HandleWebManagerError(error); }
  void CheckWebManagement() override { web_.CheckForError(); }

  // The one tick of each switch's timer.
  void CDPTick() { continuous_.CDPTimer(); }
  void WebMTick() { web_.WebMTimer(); }

  ContinuousBackup& continuous_backup() { return continuous_; }
  WebManagement& web_management() { return web_; }

  void OpenStatusWindow() override;
  void ShowEndOfJob() override;
  void CloseStatusWindow() override;
  void ResetStatusWindow() override;
  void OpenSessionLog() override {}
  void OpenActivityLog() override {}
  void OpenRecentLog() override {}
  void OpenManageJobs() override {}
  void OpenErrorReport() override {}

 private:
  status::frmStatus& StatusWindow();
  bool StatusWindowIsOpen() const { return status_window_ && status_window_->Loaded(); }

  platform::Platform& machine_;
  shared::AgentState& state_;
  TrayIcon& icon_;
  TrayTip& tip_;
  TrayMenu& menu_;
  status::ScheduleTexts& schedule_;
  shared::Messages& messages_;
  forms::FormHost& host_;
  std::unique_ptr<status::frmStatus> status_window_;  // made when it is first wanted
  forms::frmWelcome alert_;
  Session session_;
  ContinuousBackup continuous_;
  WebManagement web_;
};

}  // namespace agent
