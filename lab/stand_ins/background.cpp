// The background scheduler process: looks for due jobs until it is ended, and runs each to its end.
#include <windows.h>

#include "lab/engine/background_model.h"
#include "lab/engine/program_names.h"
#include "lab/stand_ins/stand_in.h"

namespace {

constexpr std::uint32_t kWait = 60'000;  // milliseconds

void RunEngine(lab::StandIn& self) {
  const auto started = self.machine().shell.Start(
      platform::ShellVerb::kOpen, self.places().InInstallFolder(lab::kEngineClient), "",
      self.places().install_folder, platform::WindowShow::kHidden);
  if (started.handle == platform::kNoProcess) return;
  while (self.machine().events.WaitForProcess(started.handle, kWait) ==
         platform::WaitResult::kTimedOut) {
  }
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::StandIn self;
  lab::BackgroundModel background(self.ports(), self.places(), self.machine().clock,
                                  [&] { RunEngine(self); });
  for (;;) self.machine().clock.Sleep(background.Step());
}
