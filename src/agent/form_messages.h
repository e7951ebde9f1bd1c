// The product's own question box as the rooms below the windows ask for it.
#pragma once

#include "forms/form_host.h"
#include "forms/frm_general_message.h"
#include "shared/agent_state.h"
#include "shared/messages.h"

namespace agent {

class FormMessages : public shared::Messages {
 public:
  FormMessages(forms::FormHost& host, shared::AgentState& state);

  bool ShowMessage(const shared::Message& message) override;
  void Dismiss() override;

 private:
  static bool Show(forms::frmGeneralMessage& box, const shared::Message& message);

  forms::FormHost& host_;
  shared::AgentState& state_;
  forms::Form* open_ = nullptr;  // the box on the screen
};

}  // namespace agent
