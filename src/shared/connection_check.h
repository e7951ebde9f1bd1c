// The questions of a login to the server, asked through the engine client: is it there, does it
// know the account, does it know this machine.
#pragma once

#include <cstdint>
#include <functional>
#include <string>

#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/engine_bridge.h"
#include "shared/engine_commands.h"

namespace shared {

// Whom the client acts for and who is logged in, to be put back after an exchange.
struct ActingUser {
  std::string interactive;
  std::string current_user;
};

class ConnectionCheck {
 public:
  // Shows what the windows hold by now; may set `RandomRenewConfirmed`.
  using RefreshForm = std::function<void()>;

  ConnectionCheck(platform::Platform& machine, AgentState& state, RefreshForm refresh_form);

  // `Interactive` of UserName.ini and CurrentUser as they are now.
  ActingUser SaveActingUser();

  // Asks the server (redirections included), then for the account. Returns 1 when the account is
  // good, -1 when the random digits are unknown and were not renewed, 0 in all other cases. In
  // every case `before`, saved by the caller before it set `Interactive` to the user of the login,
  // is put back. Touches the server keys and `random` of the profile, DLLOutput.txt, DLLInput.txt
  // and DLLOutput1.txt.
  std::int16_t ValidateConnection(const ActingUser& before);

  // Registers new random digits. Refreshes the form twice; returns 2 unless that set
  // `RandomRenewConfirmed`. Then returns 1 when the server took the digits, else 2.
  std::int16_t RenewClientRandom();

 private:
  std::int16_t AskServerAndAccount();
  void PrepareRandom();
  void RemoveSideFiles();
  // False when the engine tells to give up.
  bool AskServer();
  // Runs a command until its result is not "unreachable" any more; returns the last result.
  double AskUntilReached(const EngineCommand& command);

  platform::Platform& machine_;
  AgentState& state_;
  RefreshForm refresh_form_;
  EngineBridge engine_;
};

}  // namespace shared
