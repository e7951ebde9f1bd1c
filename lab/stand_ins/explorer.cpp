// The explorer extension's side of a logout: it sends the agent the message that ends the session.
#include <windows.h>

#include "lab/stand_ins/process.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  lab::NoteCall();
  const HWND agent = FindWindowA("frmTVWinService", nullptr);
  if (!agent) return 1;
  SendMessageA(agent, RegisterWindowMessageA("CloseInteractiveWindow"), 0, 0);
  return 0;
}
