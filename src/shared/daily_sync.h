// The daily synchronisation and the check of the account's user type that goes with it.
#pragma once

#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/calendar_day.h"

namespace shared {

// Day of the next synchronisation: `TID`, `TIM`, `TIY` of the profile, `Tolvex`. A blank part
// counts as `today`'s; one that is no 16-bit number counts as 0, which makes the day one that has
// come.
Day NextSyncDate(platform::Platform& machine, AgentState& state, const Day& today);

// Nothing while nobody is logged in. Without a stored day, stores tomorrow. When the stored day has
// come: stores tomorrow, calls CheckUserType, and starts the engine's synchronisation without
// waiting for it.
void RunDailySync(platform::Platform& machine, AgentState& state);

// Asks for the user type until the result is positive, at most ten times; every fifth attempt falls
// back to the secondary server. A result of 402 sets `ShowWelcome` of UserName.ini to "1".
void CheckUserType(platform::Platform& machine, AgentState& state);

}  // namespace shared
