// The engine client: plays one job or one numbered command into the shared files and ends.
#include <windows.h>

#include "lab/engine/engine_model.h"
#include "lab/stand_ins/process.h"
#include "platform/win32/machine.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::NoteCall();
  platform::win32::Machine machine;
  platform::Platform& ports = machine.platform();
  lab::EngineModel engine({ports.files, ports.profile_files},
                          {.install_folder = lab::ExecutableFolder()}, ports.clock,
                          lab::Arguments());
  while (const auto wait = engine.Step()) ports.clock.Sleep(*wait);
  return static_cast<int>(engine.exit_code());
}
