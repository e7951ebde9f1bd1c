#include "agent/supervision.h"

#include <string>

#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/process_list.h"
#include "shared/profile_store.h"
#include "shared/system_version.h"
#include "shared/trace.h"

namespace agent {
namespace {

using platform::ServiceState;

constexpr std::uint32_t kStopPause = 10000;  // milliseconds between Stop and Start
constexpr std::string_view kPartnerService = "TVPService";
constexpr std::string_view kElevatedArgument = "stratservice";

enum class Restart { kStart, kStopThenStart };

struct ServiceAction {
  ServiceState state;
  std::string_view text;
  Restart restart;
};

constexpr ServiceAction kServiceActions[] = {
    {ServiceState::kStopped, " Service is stopped.So starting the service.", Restart::kStart},
    {ServiceState::kStartPending, " Service is start pending.So starting the service.",
     Restart::kStart},
    {ServiceState::kStopPending, " Service is stop pending.So starting the service.",
     Restart::kStopThenStart},
    {ServiceState::kContinuePending, " Service continue pending.So starting the service.",
     Restart::kStart},
    {ServiceState::kPausePending, " Service is pause pending.So starting the service.",
     Restart::kStart},
    {ServiceState::kPaused, " Service is pasued.So starting the service.", Restart::kStopThenStart},
};

const ServiceAction* ActionFor(ServiceState state) {
  for (const ServiceAction& action : kServiceActions) {
    if (action.state == state) return &action;
  }
  return nullptr;
}

// When the background process may start, and how the trace says so. In all other states a backup is
// in the engine's hands.
struct BackgroundTurn {
  std::string_view standard;
  std::string_view started;
  std::string_view text;
};

constexpr BackgroundTurn kBackgroundTurns[] = {
    {"1", "0", "  is launched"},
    {"0", "1", " is launched"},
};

const BackgroundTurn* TurnFor(std::string_view standard, std::string_view started) {
  for (const BackgroundTurn& turn : kBackgroundTurns) {
    if (turn.standard == standard && turn.started == started) return &turn;
  }
  return nullptr;
}

}  // namespace

Supervision::Supervision(platform::Platform& machine, shared::AgentState& state)
    : machine_(machine), state_(state) {}

ServiceState Supervision::GetServiceState() {
  const auto access = shared::IsVistaOrLater(machine_.processes.Version())
                          ? platform::ServiceAccess::kRead
                          : platform::ServiceAccess::kAll;
  const std::string name =
      state_.ProductNumber == 1 ? std::string(kPartnerService) : state_.ProductFolder + " Service";
  return machine_.services.State(name, access);
}

void Supervision::EnsureService() {
  const ServiceAction* action = ActionFor(GetServiceState());
  if (action == nullptr) return;
  shared::Trace trace(machine_, state_);
  trace.WriteInformation(state_.ExeGroup + std::string(action->text));
  if (action->restart == Restart::kStopThenStart) {
    RunServiceBatch("Stop");
    machine_.clock.Sleep(kStopPause);
  }
  RunServiceBatch("Start");
  if (shared::IsVistaOrLater(machine_.processes.Version()) && !state_.StartHelperLaunched) {
    StartServiceElevated();
  }
  ++state_.ServiceStartTries;
}

void Supervision::EnsureBackground() {
  shared::ProfileStore profile(machine_, state_);
  shared::ProcessList processes(machine_, state_);
  shared::Trace trace(machine_, state_);
  const std::string& background = state_.executables.background;
  // 1. Only while the agent's life state lets it.
  const std::string tray = profile.ReadUserNameIniPlain(shared::keys::kTray);
  if (tray != "0" && !tray.empty()) return;
  // 2. Two walks by two ways: a process that one cannot open, the other may see.
  if (processes.IsBackgroundRunning()) return;
  if (processes.IsProcessRunning(background, shared::WhenFound::kLeave)) return;
  // 3. It needs the service.
  if (!shared::IsVistaOrLater(machine_.processes.Version()) &&
      state_.ServiceStartTries <= kMostServiceStarts) {
    EnsureService();
  }
  // 4. Whose turn it is.
  const std::string standard = profile.ReadUserNameProfile(shared::keys::kStandard);
  const std::string started = profile.ReadUserNameProfile(shared::keys::kStarted);
  trace.WriteInformation("strStdrd2 = " + standard);
  trace.WriteInformation("strStarted2 = " + started);
  // 5. Start it.
  const BackgroundTurn* turn = TurnFor(standard, started);
  if (turn == nullptr) return;
  profile.WriteUserNameProfile(shared::keys::kStandard, "1");
  machine_.shell.Open(shared::InInstallFolder(state_, background), "", state_.InstallFolder,
                      platform::WindowShow::kNormal);
  trace.WriteInformation(background + std::string(turn->text));
}

platform::StartResult Supervision::ShellRun(std::string_view folder, std::string_view file,
                                            std::string_view arguments) {
  return machine_.shell.Start(platform::ShellVerb::kOpen, file, arguments, folder,
                              platform::WindowShow::kNormal);
}

platform::StartResult Supervision::ShellRunAs(std::string_view folder, std::string_view file,
                                              std::string_view arguments) {
  return machine_.shell.Start(platform::ShellVerb::kRunAs, file, arguments, folder,
                              platform::WindowShow::kNormal);
}

void Supervision::RunServiceBatch(std::string_view word) {
  const std::string file =
      std::string(word) + state_.executables.service_batch_base + "Service.bat";
  machine_.shell.Open(shared::InInstallFolder(state_, file), "", state_.InstallFolder,
                      platform::WindowShow::kHidden);
}

void Supervision::StartServiceElevated() {
  state_.StartHelperLaunched = true;
  const std::string& name = state_.executables.drive_launcher;
  platform::StartResult result;
  // The partner edition has none: what is left of the path would open the folder.
  if (!name.empty()) {
    const std::string launcher = shared::InInstallFolder(state_, name);
    result = ShellRunAs(state_.InstallFolder, launcher, kElevatedArgument);
  }
  shared::Trace trace(machine_, state_);
  trace.WriteInformation("Launch Handle : " + std::to_string(result.handle));
  trace.WriteInformation("Error 1 : " + std::to_string(result.error) + "  " +
                         machine_.locale.SystemErrorText(result.error));
}

}  // namespace agent
