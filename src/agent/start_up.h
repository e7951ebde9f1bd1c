// The program's entry point above the platform: fixes the product's identity, prepares the trace,
// makes sure that only one agent runs, decides what the last login means, and hands over to the
// main form.
//
// Touches: CommonFolder (emptied), TrayTraceFile.txt, TempRecVals.txt, the keys of the login
// decision in UserName.ini and the registry.
#pragma once

#include "agent/frm_tv_win_service.h"
#include "agent/shared_texts.h"
#include "platform/platform.h"
#include "shared/agent_state.h"
#include "shared/texts.h"

namespace agent {

// Nothing is kept of the Main that starts the agent but what it leaves in the state.
class StartUp {
 public:
  StartUp(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
          SharedTexts& shared_texts, frmTVWinService& form);

  // Runs once. False when the process is to end at once, without a message or an icon: without
  // Configuration.ini, or with another agent running.
  bool Main();

 private:
  void RenewCommonFolder();
  void CarryTraceOn();
  void EnterInstallFolder();
  void DecideLogin();

  platform::Platform& machine_;
  shared::AgentState& state_;
  shared::Texts& texts_;
  SharedTexts& shared_texts_;
  frmTVWinService& form_;
};

}  // namespace agent
