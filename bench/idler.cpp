// A process that does nothing until it is ended: one of the many of a crowded machine.
#include <windows.h>

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  Sleep(INFINITE);
  return 0;
}
