// The web-management plug-in. Started with `error N` it reports that error and ends; without, it
// runs until it is ended.
#include <windows.h>

#include "lab/stand_ins/stand_in.h"
#include "shared/keys.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::StandIn self;
  const std::string arguments = lab::Arguments();
  constexpr std::string_view kError = "error ";
  if (!arguments.starts_with(kError)) Sleep(INFINITE);
  self.ports().profile_files.WriteText(
      self.places().Profile(lab::DefaultUser(self.ports(), self.places())), shared::sections::kOlwa,
      shared::keys::kWebPluginError, arguments.substr(kError.size()));
  return 0;
}
