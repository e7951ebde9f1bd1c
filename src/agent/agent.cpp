#include "agent/agent.h"

namespace agent {

Agent::Agent(platform::Platform& machine, forms::FormHost& host)
    : machine_(machine),
      texts_(machine, state_),
      schedule_(machine, state_),
      messages_(host, state_),
      form_(host, machine, state_, texts_, shared_texts_, schedule_, messages_),
      start_up_(machine, state_, texts_, shared_texts_, form_) {}

void Agent::Run() {
  machine_.events.RunUntil([] { return false; });
}

}  // namespace agent
