// The product's own question box as the rooms below the windows ask for it.
#pragma once

#include "forms/form_host.h"
#include "shared/agent_state.h"
#include "shared/messages.h"

namespace agent {

class FormMessages : public shared::Messages {
 public:
  FormMessages(forms::FormHost& host, shared::AgentState& state);

  bool ShowMessage(const shared::Message& message) override;

 private:
  forms::FormHost& host_;
  shared::AgentState& state_;
};

}  // namespace agent
