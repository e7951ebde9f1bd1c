// A whole installation for the stories: the closed libraries, the service's batch files and the
// plug-in beside the programs of Installation, and a person at its icon and menu.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/windows/hands.h"
#include "tests/windows/installation.h"

class Story : public Installation {
 public:
  // Somebody is logged in.
  Story();

  // Plans a daily job that is first due in an hour.
  void PlanJobForLater();
  // A job of this many files is due, one file in `interval` milliseconds, and the agent is started.
  // True once the engine has transferred its first file.
  bool StartAgentWithJob(int files, int interval);

  // The lab's script, LabEngine.ini.
  void Script(std::string_view section, std::string_view key, std::string_view value);

  // How often LabCalls.txt tells of these words so far: a program, a batch file or a call of a
  // library's function, with its arguments.
  int Calls(std::string_view words);
  // How often the agent's trace of the user has this text.
  int Traced(std::string_view text);

  // Ends the program of the folder from outside. False when it does not run.
  bool Kill(std::string_view program);

  // Values of UserName.ini, section Tolvex or another one.
  std::string Shared(std::string_view key, std::string_view section = shared::sections::kTolvex);
  void SetShared(std::string_view key, std::string_view value,
                 std::string_view section = shared::sections::kTolvex);
  // Values of the profile, shifted ones of its section Tolvex, and plain ones.
  std::string Setting(std::string_view shifted_key);
  void SetSetting(std::string_view shifted_key, std::string_view value);
  std::string PlainSetting(std::string_view key,
                           std::string_view section = shared::sections::kTolvex);
  void SetPlainSetting(std::string_view key, std::string_view value,
                       std::string_view section = shared::sections::kTolvex);
  std::string Progress(std::string_view key,
                       std::string_view section = status::kBackupProgressSection);
  // `Status` of `Connection Parameters`; -1 without the value.
  int ConnectionStatus();
  // True when a fast tick has run after this call: it has acknowledged the end of a job.
  bool WaitForTick();
  // True when a slow tick has run after this call: it has brought the background process back,
  // which is ended for this.
  bool WaitForSlowTick();

  // Double clicks the icon until `done`.
  bool DoubleClickIcon(const std::function<bool()>& done);
  // Opens the icon's menu and chooses the item with this caption of a logged-in user's menu by the
  // arrow keys, until `done`. False when that does not come.
  bool Choose(std::string_view item, const std::function<bool()>& done);
  // Chooses an item from which nothing is expected, and lets the agent go on behind it.
  bool ChooseInVain(std::string_view item);
  // The same as Choose for an item that asks a question first, which is answered with this button.
  bool ChooseAndAnswer(std::string_view item, std::string_view button);
  bool OpenStatus();
  // Rests the mouse on the icon until its tip begins so; a tip ends after 63 characters.
  bool WaitForTip(std::string_view tip);
};
