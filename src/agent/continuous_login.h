// Asks the server, through the engine client, whether the account may switch continuous backup on.
//
// The passwords stay in the profile: the engine reads them there.
// Touches: the server pair and `random` of the profile, DLLOutput.txt, DLLInput.txt,
// DLLOutput1.txt, the engine client.
#pragma once

#include "forms/form.h"
#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/connection_check.h"
#include "shared/engine_bridge.h"

namespace agent {

class ContinuousLogin {
 public:
  // `form` shows the busy pointer while the engine is asked.
  ContinuousLogin(platform::Platform& machine, shared::AgentState& state, forms::Form& form);

  // True when the account may go on. Pumps messages while the client runs; `Interactive` and
  // CurrentUser are put back in every case.
  bool ValidateContinuousLogin();

 private:
  bool Ask();
  void ReadServer();
  void PrepareRandom();
  void RemoveSideFiles();
  bool AskServer();
  double AskAccount();
  void FallBack();

  platform::Platform& machine_;
  shared::AgentState& state_;
  forms::Form& form_;
  shared::EngineBridge engine_;
  shared::ConnectionCheck check_;
};

}  // namespace agent
