// The exchange with the engine client: it is started hidden with a numeric command as its only
// argument, and leaves one number in `RetValue` of the profile.
//
// There is one client handle, `ClientProcess` of the state: each start overwrites it, nothing
// closes it. An exchange that is started by a timer or a click during a wait thereby replaces the
// client that the outer wait looks at. Nothing guards this.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

class EngineBridge {
 public:
  EngineBridge(platform::Platform& machine, AgentState& state);

  // Starts a program hidden. Returns what it is waited on by, platform::kNoProcess on failure.
  platform::ProcessHandle LaunchEngineCommand(std::string_view program, std::string_view argument,
                                              std::string_view folder);

  // Starts <InstallFolder>\<ClientProgram> in InstallFolder and keeps its handle in the state; an
  // argument with brackets is kept in `CommandArgument`, too. Does not wait.
  void StartEngineCommand(std::string_view argument);

  // Waits for the end of `ClientProcess`, looking every 300 ms and pumping messages in between.
  // There is no limit: without a client (a failed start) the wait goes on, tray and timers alive,
  // until the program ends or a nested exchange brings a client.
  void WaitForClient();

  // StartEngineCommand, WaitForClient, ReadReturnValue.
  std::optional<double> RunEngineCommandAndWait(std::string_view argument);

  // `RetValue` as a number. Nothing when it is empty or no number: the caller's variable keeps what
  // it holds.
  std::optional<double> ReadReturnValue();

 private:
  platform::Platform& machine_;
  AgentState& state_;
};

// Raises each character code by kProfileShift. Empty stays empty; a code that leaves the range ends
// the result there, without a trace line. Nothing in the agent calls it: the engine's own input
// file is written so.
std::string EncryptDLLInput(std::string_view text);

}  // namespace shared
