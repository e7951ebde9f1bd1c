// The engine client: plays one job or one numbered command into the shared files and ends. A job of
// the main program tells its process id.
#include <windows.h>

#include <string>

#include "lab/engine/engine_model.h"
#include "lab/stand_ins/stand_in.h"
#include "shared/keys.h"

namespace {

void TellProcessId(lab::StandIn& self, std::string_view argument) {
  if (argument != "backup" && argument != "restore") return;
  const std::string_view key =
      argument == "backup" ? shared::keys::kClientPid : shared::keys::kClientPidRestore;
  const std::string user = lab::ActingUser(self.ports(), self.places());
  self.ports().profile_files.WriteText(self.places().Profile(user), shared::sections::kTolvex,
                                       lab::Stored(key),
                                       lab::Stored(std::to_string(GetCurrentProcessId())));
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::StandIn self;
  TellProcessId(self, lab::Arguments());
  lab::EngineModel engine(self.ports(), self.places(), self.machine().clock, lab::Arguments());
  while (const auto wait = engine.Step()) self.machine().clock.Sleep(*wait);
  return static_cast<int>(engine.exit_code());
}
