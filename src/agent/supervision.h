// Keeps the backup service and the background scheduler process alive.
//
// There is no pipe or socket to either: liveness is a service query or a walk of the processes. The
// service is started through the batch files of InstallFolder, at most twice in the life of this
// process. Touches: `Tray` (UserName.ini, `Registry`), `Standard` and `Started` (`Tolvex`),
// TrayTraceFile.txt.
#pragma once

#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace agent {

class Supervision {
 public:
  // The service is not asked for again once more starts than this were tried.
  static constexpr int kMostServiceStarts = 1;

  Supervision(platform::Platform& machine, shared::AgentState& state);

  // State of the product's service; kUnknown when it cannot be opened.
  platform::ServiceState GetServiceState();

  // Starts the service by its state; a paused or stopping one is stopped first, with ten seconds
  // between, in which neither tick runs.
  void EnsureService();

  // Starts the background process when `Tray` is "0" or empty, it does not run, and `Standard` and
  // `Started` say that no backup is in the engine's hands.
  void EnsureBackground();

  // Starts a program of the installation; the handle of its process, or kNoProcess.
  platform::StartResult ShellRun(std::string_view folder, std::string_view file,
                                 std::string_view arguments);
  // The same with the question for administrator rights.
  platform::StartResult ShellRunAs(std::string_view folder, std::string_view file,
                                   std::string_view arguments);

  // Opens <word><base word>Service.bat of InstallFolder, for "Install", "Start" or "Stop".
  void RunServiceBatch(std::string_view word);

 private:
  void StartServiceElevated();

  platform::Platform& machine_;
  shared::AgentState& state_;
};

}  // namespace agent
