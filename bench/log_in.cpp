// Logs a user into the installation that this executable lies in, as the main program would, and
// gives her a daily job that is due tomorrow.
#include "lab/engine/login.h"
#include "platform/win32/machine.h"
#include "schedule/calendar.h"

namespace {

constexpr char kUser[] = "anna";

}  // namespace

int main() {
  platform::win32::Machine real;
  platform::Platform& machine = real.platform();
  const lab::Places places = {machine.processes.ExecutableFolder()};
  const lab::Ports ports = {machine.files, machine.profile_files};
  lab::LogIn(ports, machine.registry, places, kUser);
  const platform::LocalTime tomorrow = schedule::AddDays(machine.clock.Now(), 1);
  lab::PutDailySchedule(ports, places, kUser, tomorrow);
}
