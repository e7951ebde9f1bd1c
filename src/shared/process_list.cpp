#include "shared/process_list.h"

#include <string>
#include <vector>

#include "shared/convert.h"

namespace shared {
namespace {

using platform::ProcessEntry;
using platform::ProcessId;

constexpr std::size_t kMostProcesses = 1024;
// More than any machine runs: a background process that was not seen would be started once more by
// every tick.
constexpr std::size_t kAllProcesses = 16384;
constexpr std::uint32_t kTerminate = 1;
// Ending and asking in one right, so that a process which was found is also ended.
constexpr std::uint32_t kQueryAndTerminate = 1041;

std::string_view BaseName(std::string_view path) {
  const std::size_t slash = path.find_last_of("\\/");
  return slash == std::string_view::npos ? path : path.substr(slash + 1);
}

}  // namespace

ProcessList::ProcessList(platform::Platform& machine, AgentState& state)
    : machine_(machine), state_(state) {}

bool ProcessList::IsProcessRunning(std::string_view name, WhenFound action) {
  if (name.empty()) return false;
  const std::string wanted = ToUpper(name);
  std::optional<ProcessId> found;
  machine_.processes.WalkModuleNames(kMostProcesses, [&](const ProcessEntry& process) {
    if (process.name.size() == wanted.size() && ToUpper(process.name) == wanted) found = process.id;
    return !found.has_value();
  });
  if (found && action == WhenFound::kKill) {
    machine_.processes.Terminate(*found, kQueryAndTerminate);
  }
  return found.has_value();
}

bool ProcessList::IsBackgroundRunning() {
  const auto found = FindLowerCase(state_.executables.background);
  if (found) state_.BackgroundProcessId = *found;
  return found.has_value();
}

void ProcessList::KillProcessByName(std::string_view name) {
  if (const auto found = FindLowerCase(name)) KillPid(*found);
}

void ProcessList::KillExes(std::string_view name) {
  std::vector<ProcessId> matches;
  machine_.processes.WalkSnapshot([&](const ProcessEntry& process) {
    if (process.name == name) matches.push_back(process.id);
    return true;
  });
  for (const ProcessId id : matches) {
    const std::uint32_t error = machine_.processes.Terminate(id, kTerminate);
    if (error != 0) {
      machine_.shell.ShowStopBox("Error " + std::to_string(error), state_.ProductCaption);
    }
  }
}

void ProcessList::KillPluginProcesses() {
  const std::string plugin = ToLower(state_.executables.web_plugin);
  if (plugin.empty()) return;
  const bool nt = machine_.processes.Version().family == platform::SystemFamily::kNt;
  std::vector<ProcessId> matches;
  const auto collect = [&](const ProcessEntry& process) {
    const std::string name = ToLower(BaseName(process.name));
    const bool match = nt ? name == plugin : name.find(plugin) != std::string::npos;
    if (match) matches.push_back(process.id);
    return true;
  };
  if (nt) {
    machine_.processes.WalkModulePaths(kAllProcesses, collect);
  } else {
    machine_.processes.WalkSnapshot(collect);
  }
  for (const ProcessId id : matches) KillPid(id);
}

void ProcessList::KillPid(ProcessId id) {
  machine_.processes.Terminate(id, kTerminate);
}

std::optional<ProcessId> ProcessList::FindLowerCase(std::string_view name) {
  if (name.empty()) return std::nullopt;
  const std::string wanted = ToLower(name);
  std::optional<ProcessId> found;
  const auto compare = [&](const ProcessEntry& process) {
    if (ToLower(BaseName(process.name)) == wanted) found = process.id;
    return !found.has_value();
  };
  if (machine_.processes.Version().family == platform::SystemFamily::kNt) {
    machine_.processes.WalkModulePaths(kAllProcesses, compare);
  } else {
    machine_.processes.WalkSnapshot(compare);
  }
  return found;
}

}  // namespace shared
