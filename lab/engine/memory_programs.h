// The engine's programs as actors of the memory machine: the same models that the stand-in
// executables run, stepped at virtual times.
#pragma once

#include "lab/engine/places.h"
#include "platform/memory/machine.h"

namespace lab {

// Installs engine client and background process under their product names in the installation
// folder. They run when the agent, or a test, starts them.
void InstallEnginePrograms(platform::memory::Machine& machine, const Places& places);

// The ports of the machine as another program has them.
Ports PortsOf(platform::memory::Machine& machine);

}  // namespace lab
