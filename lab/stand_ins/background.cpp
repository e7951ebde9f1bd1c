// The background scheduler process: looks for due jobs until it is ended, and runs each to its end.
#include <windows.h>

#include "lab/engine/background_model.h"
#include "lab/engine/program_names.h"
#include "lab/stand_ins/process.h"
#include "platform/win32/machine.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::NoteCall();
  platform::win32::Machine machine;
  platform::Platform& ports = machine.platform();
  const lab::Places places{.install_folder = lab::ExecutableFolder()};
  const auto run_engine = [&] {
    const auto started =
        ports.shell.Start(platform::ShellVerb::kOpen, places.InInstallFolder(lab::kEngineClient),
                          "", places.install_folder, platform::WindowShow::kHidden);
    while (started.handle != platform::kNoProcess &&
           ports.events.WaitForProcess(started.handle, 60'000) == platform::WaitResult::kTimedOut) {
    }
  };
  lab::BackgroundModel background({ports.files, ports.profile_files}, places, ports.clock,
                                  run_engine);
  for (;;) ports.clock.Sleep(background.Step());
}
