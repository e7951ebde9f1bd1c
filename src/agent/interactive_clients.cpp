#include "agent/interactive_clients.h"

#include <optional>
#include <string>

#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/profile_store.h"
#include "shared/trace.h"
#include "shared/transfer.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::string_view kPrefix = "   [INFORMATION] ";
constexpr std::uint32_t kQueryAndTerminate = 1041;
constexpr std::size_t kMostProcesses = 1024;

class ClientEnd {
 public:
  ClientEnd(platform::Platform& machine, shared::AgentState& state)
      : machine_(machine),
        state_(state),
        profile_(machine, state),
        transfer_(machine, state),
        channel_(machine, state),
        trace_(machine, state) {}

  bool IsTransferRunning() {
    const std::string status = channel_.ReadBackupStatus(status::kStatus);
    Tell("IntBackup = " + status);
    return status == "1" || status == "2";
  }

  void EndBackupClient(ClientEndReason reason) {
    Tell("Interactive backup running for the user: " +
         profile_.ReadUserNameProfile(shared::keys::kInteractive));
    const std::string pid = transfer_.Trf_ReadUserProfile(shared::keys::kClientPid);
    const std::string_view kind = reason == ClientEndReason::kExplorer ? "Interactive" : "Context";
    Tell(std::string(kind) + " backup with Process ID = " + pid);
    if (!machine_.files.Exists(shared::InUserFolder(state_, shared::files::kContextMenuRun)))
      return;
    Tell("Terminating the process  " + pid);
    End(pid);
  }

  void EndRestoreClient() {
    const std::string pid = transfer_.Trf_ReadUserProfile(shared::keys::kClientPidRestore);
    Tell("Interactive Restore with Process ID = " + pid);
    Tell("Terminating the process-Restore  " + pid);
    End(pid);
  }

 private:
  void Tell(const std::string& message) { trace_.WriteStamped(std::string(kPrefix) + message); }

  void End(std::string_view pid) {
    EndClientProcess(machine_, state_, pid);
    channel_.WriteBackupStatus(status::kStatus, status::kStatusIdle);
  }

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::ProfileStore profile_;
  shared::clsTransfer transfer_;
  status::ProgressChannel channel_;
  shared::Trace trace_;
};

bool LiesInFolder(std::string_view path, std::string_view folder) {
  return path.size() > folder.size() && path[folder.size()] == '\\' &&
         shared::EqualsIgnoreCase(path.substr(0, folder.size()), folder);
}

// Programs of the installation that are never the client of a user.
bool IsCompanion(std::string_view path, const shared::AgentState& state) {
  const std::string_view name = path.substr(state.InstallFolder.size() + 1);
  const shared::ExecutableNames& names = state.executables;
  for (const std::string* companion : {&names.tray, &names.background, &names.service}) {
    if (shared::EqualsIgnoreCase(name, *companion)) return true;
  }
  return false;
}

}  // namespace

void EndInteractiveClients(platform::Platform& machine, shared::AgentState& state,
                           ClientEndReason reason) {
  ClientEnd clients(machine, state);
  if (clients.IsTransferRunning()) {
    clients.EndBackupClient(reason);
    clients.EndRestoreClient();
  }
  clients.EndRestoreClient();
}

void EndClientProcess(platform::Platform& machine, shared::AgentState& state,
                      std::string_view pid) {
  const std::optional<std::int32_t> number = shared::ToInt32(pid);
  if (!number || *number <= 0) return;
  const auto id = static_cast<platform::ProcessId>(*number);
  bool is_ours = false;
  machine.processes.WalkModulePaths(kMostProcesses, [&](const platform::ProcessEntry& process) {
    if (process.id != id) return true;
    is_ours = LiesInFolder(process.name, state.InstallFolder) && !IsCompanion(process.name, state);
    return false;
  });
  if (is_ours) machine.processes.Terminate(id, kQueryAndTerminate);
}

}  // namespace agent
