// The localised texts that several procedures show, loaded once at start-up.
#pragma once

#include <string>

#include "shared/agent_state.h"
#include "shared/texts.h"

namespace agent {

struct SharedTexts {
  std::string status;                    // caption of mnuStatus
  std::string help;                      // caption of MnuHelp
  std::string disable_automatic_backup;  // caption of MnuDisableAutobkup
  std::string login;                     // the word before login
  std::string quota_exceeded;
  std::string scheduled_in_progress;
  std::string no_schedule;
  std::string continuous_running;
  std::string continuous_failed;
  std::string continuous_cancelled;
  std::string continuous_enabling;
  std::string continuous_disabling;
  std::string path_too_long;  // heads the list of files that could not be backed up
};

// Each text from the text library, or its English literal.
void LoadTexts(shared::Texts& texts, SharedTexts& loaded);

// What the tip tells while `ScheduleDisable` is "TRUE". Named after the product as it is now: the
// library's text by ProductName, the literal by DisplayName.
std::string ScheduleDisabledText(shared::Texts& texts, const shared::AgentState& state);

}  // namespace agent
