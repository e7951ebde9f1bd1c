// Programs of the installation among the processes of the machine: found by image name, ended by
// name or id.
//
// Each operation walks the list in its own way and compares names by its own rule, as its comment
// says. A process that cannot be opened is passed over.
#pragma once

#include <optional>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

enum class WhenFound { kLeave, kKill };

class ProcessList {
 public:
  ProcessList(platform::Platform& machine, AgentState& state);

  // True when a process has this module name: upper-cased, of equal length. The walk covers 1024
  // ids and stops at the first match, which is ended (exit code 0) with kKill.
  bool IsProcessRunning(std::string_view name, WhenFound action);

  // True when the background process runs; keeps its id in the state. The name is compared in lower
  // case, on the NT family behind the last slash of the module's path.
  bool IsBackgroundRunning();

  // Ends the first process with this name, compared as by IsBackgroundRunning.
  void KillProcessByName(std::string_view name);

  // Ends every process of the snapshot with exactly this name, letter for letter. A failure shows a
  // stop box with the system's error.
  void KillExes(std::string_view name);

  // Ends every web plug-in: on the NT family those with its name, before it those whose name
  // contains it.
  void KillPluginProcesses();

  // Ends one process; a stale id does nothing.
  void KillPid(platform::ProcessId id);

 private:
  std::optional<platform::ProcessId> FindLowerCase(std::string_view name);

  platform::Platform& machine_;
  AgentState& state_;
};

}  // namespace shared
