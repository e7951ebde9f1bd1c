// One program for every part of the installation that the agent only starts: it leaves a note of
// its command line. Started under the name of a part that lives on, it waits to be ended.
#include <windows.h>

#include "lab/engine/program_names.h"
#include "lab/stand_ins/process.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::NoteCall();
  if (lab::ExecutableName() == lab::kWebPlugin) Sleep(INFINITE);
  return 0;
}
