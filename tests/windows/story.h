// A whole installation for the stories: the closed libraries, the service's batch files and the
// plug-in beside the programs of Installation, and a person's hands at icon, menu and windows.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "lab/screen/window_list.h"
#include "tests/windows/installation.h"

inline constexpr std::string_view kAgentProgram = "SorvaneETray.exe";
inline constexpr std::string_view kStatusWindowClass = "frmStatus";
inline constexpr std::string_view kQuestionClass = "frmGeneralMessage";

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

  // Values of UserName.ini, section Tolvex, and of the profile's section Tolvex.
  std::string Shared(std::string_view key);
  void SetShared(std::string_view key, std::string_view value);
  std::string Setting(std::string_view shifted_key);
  void SetSetting(std::string_view shifted_key, std::string_view value);
  std::string Progress(std::string_view key);
  // `Status` of `Connection Parameters`; -1 without the value.
  int ConnectionStatus();
  // True when a fast tick has run after this call: it has acknowledged the end of a job.
  bool WaitForTick();

  // The hands.
  void DoubleClickIcon();
  // Opens the icon's menu and chooses the item with this caption of a logged-in user's menu by the
  // arrow keys. False when no menu comes up.
  bool Choose(std::string_view item);
  // Rests the mouse on the icon until its tip begins so; a tip ends after 63 characters.
  bool WaitForTip(std::string_view tip);
};

// The visible window of this class; without one, `window` is null.
lab::WindowInfo WindowOf(std::string_view class_name);
bool WaitForWindow(std::string_view class_name);
bool WaitUntilClosed(std::string_view class_name);
// The visible control of the window whose text begins so; without one, `window` is null.
lab::ControlInfo ControlOf(std::string_view class_name, std::string_view text);
bool WaitForText(std::string_view class_name, std::string_view text);
// Waits until the window has the keyboard and presses the key.
bool PressKeyIn(std::string_view class_name, WORD key);
// Waits for the control and clicks it with the mouse. False when it does not appear.
bool Press(std::string_view class_name, std::string_view text);
