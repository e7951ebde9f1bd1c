// The user's short date and time formats, and the one question that most rules ask of them.
#pragma once

#include <string>

#include "platform/locale.h"
#include "shared/agent_state.h"

namespace schedule {

// Reads both formats from the system into the state. A format that the system does not give becomes
// "".
void LoadLocaleFormats(platform::Locale& locale, shared::AgentState& state);

// True when the short date format begins with "D" or "d".
bool IsDayFirst(const shared::AgentState& state);

}  // namespace schedule
