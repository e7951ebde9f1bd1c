// Names of the programs of the installation, derived from the product's identity.
#pragma once

#include "shared/agent_state.h"
#include "shared/texts.h"

namespace agent {

// The partner edition's number: many branches test for it.
inline constexpr std::int16_t kPartnerEdition = 1;

// Fills `executables`, ClientProgram, MutexName, DisplayName and the two failure captions of the
// state from its ProductNumber, ProductName, ProductCaption and ExeGroup.
void SetExecutableNames(shared::AgentState& state, shared::Texts& texts);

}  // namespace agent
