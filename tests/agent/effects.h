// What the agent did, in order, in words short enough to compare whole procedures.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "tests/agent/installed_agent.h"

namespace agent::testing {

// Every effect of the agent since the journal was cleared, one line each:
//   "write BackupStatus.Status=0"     a profile key (of whichever ini file), in plain words
//   "registry Status=0"               a registry value
//   "trace Explorer logout"           a trace line, without stamp and prefix blanks
//   "end SorvaneEClassic.exe"         a process was ended
//   "remove QuotaExceeded.txt"        a file; also "replace", "copy"
//   "tip ..."                         the icon's tip
//   "ask <text>"                      the product's own box was shown
//   "show frmStatus"                  another window; also "unload"
//   "call ...", "send ...", "post ...", "start ...", "open ..."
// Pictures of the icon and created registry keys are left out.
std::vector<std::string> Effects(InstalledAgent& agent);

}  // namespace agent::testing
