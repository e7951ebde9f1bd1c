// The program: hardens the search for libraries, puts the agent on the machine of Windows and runs
// it.

#include <windows.h>

#include "agent/agent.h"
#include "app/library_search.h"
#include "forms/win32/host.h"
#include "platform/win32/machine.h"

int WINAPI WinMain(HINSTANCE, HINSTANCE, LPSTR, int) {
  app::SearchLibrariesInOwnFoldersOnly();
  platform::win32::Machine machine;
  forms::win32::Host host(machine.events());
  agent::Agent agent(machine.platform(), host);
  if (agent.Main()) agent.Run();
  return 0;
}
