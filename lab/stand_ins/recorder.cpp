// One program for every part of the installation that the agent only starts: it leaves a note of
// its command line and ends.
#include <windows.h>

#include "lab/stand_ins/process.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::NoteCall();
  return 0;
}
