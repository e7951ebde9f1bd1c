// Walks over the processes of this machine.
#pragma once

#include <cstddef>

#include "platform/processes.h"

namespace platform::win32 {

// See platform::Processes for what each of them gives.
void WalkModuleNames(std::size_t most, const ProcessVisitor& visit);
void WalkModulePaths(std::size_t most, const ProcessVisitor& visit);
void WalkSnapshot(const ProcessVisitor& visit);

}  // namespace platform::win32
