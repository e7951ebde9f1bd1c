#include "agent/housekeeping_tick.h"

#include <algorithm>
#include <string>

#include "agent/daily_step.h"
#include "agent/supervision.h"
#include "schedule/default_schedule.h"
#include "shared/daily_sync.h"
#include "shared/keys.h"
#include "shared/process_list.h"
#include "shared/profile_store.h"
#include "shared/system_version.h"
#include "shared/trace.h"

namespace agent {
namespace {

constexpr std::int16_t kTicksBetweenServiceLooks = 10;  // 200 seconds
constexpr std::string_view kSystemAccounts[] = {"SYSTEM", "System", "system"};

}  // namespace

Housekeeping::Housekeeping(platform::Platform& machine, shared::AgentState& state,
                           shared::AgentCommands& tray)
    : machine_(machine), state_(state), tray_(tray) {}

void Housekeeping::HousekeepingTick() {
  // 1.
  EndIdleSetSizeHelper();
  // 2.
  if (EndAtLogoff()) return;
  // 3.
  shared::ProfileStore profile(machine_, state_);
  const std::string tray = profile.ReadUserNameIniPlain(shared::keys::kTray);
  if (tray == "0") Supervision(machine_, state_).EnsureBackground();
  // 4.
  LookAfterService();
  // 5.
  DailyStep daily(machine_, state_, tray_);
  if ((tray == "0" || tray.empty()) && daily.IsDailyDue()) daily.Run();
  // 6. Does nothing unless this is a new user.
  schedule::ScheduleCreateFiles(machine_, state_).Form_Load();
  // 7.
  shared::RunDailySync(machine_, state_);
  // An error of the web plug-in.
  tray_.CheckWebManagement();
}

std::string Housekeeping::GetLoginName() {
  const auto login = machine_.processes.CurrentLoginName();
  if (login.error != 0) {
    shared::Trace(machine_, state_)
        .WriteError("A system call returned an error code of " + std::to_string(login.error));
  }
  return login.name;
}

void Housekeeping::EndIdleSetSizeHelper() {
  shared::ProcessList processes(machine_, state_);
  const shared::ExecutableNames& names = state_.executables;
  if (processes.IsProcessRunning(names.main_program, shared::WhenFound::kLeave)) return;
  processes.IsProcessRunning(names.set_size_helper, shared::WhenFound::kKill);
}

// True when the process is ending: only an agent of the system account outlives a logoff.
bool Housekeeping::EndAtLogoff() {
  shared::ProfileStore profile(machine_, state_);
  const std::string log_off = profile.ReadUserNameIniPlain(shared::keys::kLogOff);
  const std::string standby = profile.ReadUserNameIniPlain(shared::keys::kStandbyBackup);
  if (log_off != "1" || standby == "0") return false;
  if (std::ranges::find(kSystemAccounts, GetLoginName()) == std::end(kSystemAccounts)) return false;
  profile.WriteUserNameIni(shared::keys::kLogOff, "0");
  profile.WriteUserNameIni(shared::keys::kTray, "3");
  machine_.processes.ExitSelf(0);
  return true;
}

void Housekeeping::LookAfterService() {
  if (state_.ServiceStartTries > Supervision::kMostServiceStarts) return;
  if (shared::IsVistaOrLater(machine_.processes.Version())) {
    if (++state_.ServiceWaitTicks < kTicksBetweenServiceLooks) return;
    state_.ServiceWaitTicks = 0;
  }
  Supervision(machine_, state_).EnsureService();
}

}  // namespace agent
