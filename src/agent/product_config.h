// The identity of the product, its server and its pages, from Configuration.ini of InstallFolder.
#pragma once

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace agent {

// Reads all keys into the state. The identity and the server of this product then stand whatever
// the file says; Language and the links are the file's, a link that it leaves empty is the
// deployment's. Returns false, which ends the program, when the file is missing or an identity
// value is empty.
bool LoadProductConfig(platform::Platform& machine, shared::AgentState& state);

}  // namespace agent
