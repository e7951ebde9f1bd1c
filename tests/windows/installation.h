// A real installation on the disk of the Wine prefix, with the built executable and the lab's
// stand-ins, in a folder of this test program alone.
#pragma once

#include <windows.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "lab/engine/places.h"
#include "lab/screen/tray_icons.h"
#include "platform/win32/machine.h"

inline constexpr std::string_view kAgentProgram = "SorvaneETray.exe";
inline constexpr DWORD kPatience = 60'000;  // milliseconds

// Waits until `done` gives true; false after `patience` milliseconds.
bool WaitUntil(const std::function<bool()>& done, DWORD patience = kPatience);

// A file of the lab's build as Windows programs see it.
std::string InBuild(std::string_view name);

class Installation {
 public:
  // Lays everything out anew; nobody is logged in, the product's registry keys are gone.
  Installation();
  Installation(const Installation&) = delete;
  Installation& operator=(const Installation&) = delete;
  // Ends every program that runs from the folder and removes it.
  ~Installation();

  static constexpr std::string_view kUser = "anna";
  void LogIn();
  void PlanJobDueNow();

  // Starts a program of the folder. The handle is closed with the installation.
  HANDLE Start(std::string_view program, std::string_view arguments = {});
  HANDLE StartCommand(std::string command_line);
  // Starts the agent and waits for its icon.
  bool StartAgent();
  HANDLE agent() const { return agent_; }
  bool AgentRuns() const;
  bool IsRunning(std::string_view program) const;

  const lab::Places& places() const { return places_; }
  lab::Ports ports() { return {machine_.platform().files, machine_.platform().profile_files}; }
  platform::Platform& machine() { return machine_.platform(); }
  std::string InUserFolder(std::string_view name) const {
    return places_.InUserFolder(kUser, name);
  }

  // Values of the user's profile, section BackupStatus.
  std::string Status(std::string_view key);
  void SetStatus(std::string_view key, std::string_view value);

  // What the notification area shows: the file name of the one icon's picture, "none" without an
  // icon, "several" with more than one.
  std::string Picture() const;
  std::string Tip() const;
  bool WaitForPicture(std::string_view name);

 private:
  void EndPrograms();

  platform::win32::Machine machine_;
  lab::Places places_;
  std::vector<HANDLE> handles_;
  HANDLE agent_ = nullptr;
};
