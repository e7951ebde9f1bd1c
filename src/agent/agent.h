// The whole agent on a machine: its state, its texts, the main form and start-up.
#pragma once

#include "agent/form_messages.h"
#include "agent/frm_tv_win_service.h"
#include "agent/shared_texts.h"
#include "agent/start_up.h"
#include "forms/form_host.h"
#include "platform/platform.h"
#include "schedule/schedule_texts.h"
#include "shared/agent_state.h"
#include "shared/texts.h"

namespace agent {

class Agent {
 public:
  Agent(platform::Platform& machine, forms::FormHost& host);

  // Start-up. False when the process is to end at once.
  bool Main() { return start_up_.Main(); }

  // Reacts to timers and messages until the program ends.
  void Run();

  shared::AgentState& state() { return state_; }
  frmTVWinService& form() { return form_; }

 private:
  platform::Platform& machine_;
  shared::AgentState state_;
  shared::Texts texts_;
  SharedTexts shared_texts_;
  schedule::ScheduleTexts schedule_;
  FormMessages messages_;
  frmTVWinService form_;
  StartUp start_up_;
};

}  // namespace agent
