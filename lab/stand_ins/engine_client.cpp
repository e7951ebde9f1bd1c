// The engine client: plays one job or one numbered command into the shared files and ends.
#include <windows.h>

#include "lab/engine/engine_model.h"
#include "lab/stand_ins/stand_in.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::StandIn self;
  lab::EngineModel engine(self.ports(), self.places(), self.machine().clock, lab::Arguments());
  while (const auto wait = engine.Step()) self.machine().clock.Sleep(*wait);
  return static_cast<int>(engine.exit_code());
}
