// The idle agent on the machine in memory: a user logged in, one daily job that is due tomorrow.
#pragma once

#include "tests/agent/installed_agent.h"

namespace bench {

// Gives the agent its schedule and starts it. False, with a word on stderr, when it does not start.
bool StartIdle(agent::testing::InstalledAgent& agent);

}  // namespace bench
