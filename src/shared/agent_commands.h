// What a window, a menu item or a lower room may ask of the tray. The tray host implements it.
//
// The commands with an empty body do nothing until the room that carries them out stands.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace shared {

class AgentCommands {
 public:
  virtual ~AgentCommands() = default;

  // Sets the notification icon's tip.
  virtual void SetTrayIcon(std::string_view tip) = 0;

  // The tip for a transfer or for idle, as the shared files have it now; "" when nobody is logged
  // in.
  virtual std::string BuildTrayTip() = 0;

  // Greys the menu's status entry, until the menu is opened the next time.
  virtual void DisableStatusEntry() = 0;

  // Closes the main program's window and starts it anew.
  virtual void MnuOptionsClick() = 0;

  // Stops the running scheduled job.
  virtual void StopClick() = 0;

  // Opens the status window, or brings the open one to the front.
  virtual void OpenStatusWindow() = 0;

  // Opens the status window because a job has ended, with its outcome; an open one shows it at its
  // next tick.
  virtual void ShowEndOfJob() {}

  // Opens the window that lists the session logs.
  virtual void OpenSessionLog() = 0;

  // Opens the newest log of a past operation, or the log of the running one.
  virtual void OpenActivityLog() = 0;
  virtual void OpenRecentLog() = 0;

  // Opens the list of scheduled jobs.
  virtual void OpenManageJobs() = 0;

  // Opens the error report.
  virtual void OpenErrorReport() = 0;

  // Asks the main program for a backup now.
  virtual void MnuBackupNowClick() {}

  // Switches the automatic backup off or on.
  virtual void MnuDisableAutobkupClick() {}

  // Opens the newest log, or the running one's.
  virtual void MnuOpenClick() {}

  // Takes the icon out and ends the agent.
  virtual void MnuExitClick() {}

  // Opens the compact status panel.
  virtual void OpenStatusPrompt() {}

  // Asks before it logs out; before login, opens the main program.
  virtual void MnuLoginClick() {}

  // Logs out because the explorer extension says so; logs out and asks for a new login.
  virtual void ExplorerLogout() {}
  virtual void Relogin() {}

  // Switches continuous backup; switches web management.
  virtual void MnuCdpClick() {}
  virtual void WebPluginClick() {}

  // Tells a failure of web management: -1, -2 or -3.
  virtual void HandleWebManagerError(std::int16_t) {}

  // Tells a failure of web management when its plug-in has left one.
  virtual void CheckWebManagement() {}

  // Takes an open status window away; makes it show that the job was stopped.
  virtual void CloseStatusWindow() {}
  virtual void ResetStatusWindow() {}

  // Shows the notice that scheduled backups have not run, headed by `sentence`.
  virtual void ShowFailureNotification(std::string_view) {}

  // The system is about to sleep.
  virtual void OnSuspend() {}

  // Pages and programs of the side actions.
  virtual void MnuQuotaExceededClick() {}
  virtual void MnuOpenDriveClick() {}
  virtual void MnuVersionUpdateClick() {}
  virtual void MnuHelpClick() {}
  virtual void MnuAboutClick() {}
};

}  // namespace shared
