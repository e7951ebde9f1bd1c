// The slow timer of the agent, every 20 seconds: ends the agent at a logoff, keeps its companions
// alive, runs what is due once a day.
#pragma once

#include <cstdint>
#include <string>

#include "platform/platform.h"
#include "shared/agent_commands.h"
#include "shared/agent_state.h"

namespace agent {

inline constexpr std::uint32_t kHousekeepingPeriod = 20000;  // milliseconds

class Housekeeping {
 public:
  Housekeeping(platform::Platform& machine, shared::AgentState& state, shared::AgentCommands& tray);

  // One tick. Ends the process for the system account when a logoff is marked.
  void HousekeepingTick();

  // The Windows account of this process; "" when the system does not tell, which is traced with its
  // error's number.
  std::string GetLoginName();

 private:
  void EndIdleSetSizeHelper();
  bool EndAtLogoff();
  void LookAfterService();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::AgentCommands& tray_;
};

}  // namespace agent
