// What a window or a lower room may ask of the tray. The tray host implements it.
#pragma once

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

  // Opens the status window, or makes an open one refresh at once.
  virtual void OpenStatusWindow() = 0;

  // Opens the window that lists the session logs.
  virtual void OpenSessionLog() = 0;

  // Opens the newest log of a past operation, or the log of the running one.
  virtual void OpenActivityLog() = 0;
  virtual void OpenRecentLog() = 0;

  // Opens the list of scheduled jobs.
  virtual void OpenManageJobs() = 0;

  // Opens the error report.
  virtual void OpenErrorReport() = 0;
};

}  // namespace shared
