// The web-management plug-in. Started with `error N` it reports that error and ends; without, it
// gives the answer `Auth` of section Plugin of LabEngine.ini, if there is one, and runs until it is
// ended.
#include <windows.h>

#include "lab/stand_ins/stand_in.h"
#include "shared/keys.h"

namespace {

constexpr std::string_view kError = "error ";

void ReportError(lab::StandIn& self, std::string_view error) {
  const std::string user = lab::DefaultUser(self.ports(), self.places());
  self.ports().profile_files.WriteText(self.places().Profile(user), shared::sections::kOlwa,
                                       shared::keys::kWebPluginError, error);
}

void Authorise(lab::StandIn& self) {
  const std::string answer = self.ports().profile_files.ReadText(
      self.places().InInstallFolder("LabEngine.ini"), "Plugin", "Auth");
  if (answer.empty()) return;
  self.ports().profile_files.WriteText(self.places().UserNameIni(), shared::sections::kRdPlugin,
                                       shared::keys::kPluginAuth, answer);
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::StandIn self;
  const std::string arguments = lab::Arguments();
  if (arguments.starts_with(kError)) {
    ReportError(self, arguments.substr(kError.size()));
    return 0;
  }
  Authorise(self);
  Sleep(INFINITE);
  return 0;
}
