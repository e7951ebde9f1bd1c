// The continuous-backup module, a library that the agent calls. It notes each code and answers with
// its state, as LabEngine.ini says:
//
//   [RealTime]  1=1    the state after the call with code 1; nothing is written without an entry
//               0=1    likewise for code 0
#include <string>

#include "lab/stand_ins/exported.h"
#include "lab/stand_ins/stand_in.h"
#include "shared/keys.h"

LAB_EXPORTED PostCDPStatusMsg(INT code) {
  const std::string word = std::to_string(code);
  lab::StandIn self("PostCDPStatusMsg " + word);
  const lab::Ports ports = self.ports();
  const std::string state = ports.profile_files.ReadText(
      self.places().InInstallFolder("LabEngine.ini"), "RealTime", word);
  if (!state.empty()) {
    ports.profile_files.WriteText(self.places().UserNameIni(), shared::sections::kTolvex,
                                  shared::keys::kRtBackup, state);
  }
  return 0;
}
