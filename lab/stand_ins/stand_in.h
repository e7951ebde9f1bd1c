// What every stand-in works with: the machine of Windows, with its writes noted, and the places of
// the installation that the program or library lies in.
#pragma once

#include "lab/engine/places.h"
#include "lab/stand_ins/noted_ports.h"
#include "lab/stand_ins/process.h"
#include "platform/win32/machine.h"

namespace lab {

class StandIn {
 public:
  // Leaves a note of the call.
  StandIn() { NoteCall(); }
  // The same for a call of a library's function.
  explicit StandIn(std::string_view call) { NoteCall(call); }

  Ports ports() { return {files_, profile_files_}; }
  platform::Platform& machine() { return machine_.platform(); }
  const Places& places() const { return places_; }

 private:
  Places places_{.install_folder = OwnFolder()};
  platform::win32::Machine machine_;
  WriteNotes notes_{places_.install_folder, OwnName()};
  NotedFiles files_{machine_.platform().files, notes_};
  NotedProfileFiles profile_files_{machine_.platform().profile_files, notes_};
};

}  // namespace lab
