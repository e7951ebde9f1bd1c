// The agent on a machine in memory: a product installed in C:\Sorvane, the user "ann" logged in,
// no job and no schedule. Tests change what they are about, then Start.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "agent/agent.h"
#include "forms/memory/host.h"
#include "platform/memory/machine.h"

namespace agent::testing {

inline constexpr std::string_view kFolder = "C:\\Sorvane";
inline constexpr std::string_view kUser = "ann";

class InstalledAgent {
 public:
  InstalledAgent();

  // --- before or after Start: what lies on the machine.

  // A path in InstallFolder, in the user's folder.
  std::string Path(std::string_view name) const;
  std::string UserPath(std::string_view name) const;
  // A partner's installation, with its brand file when `with_picture`.
  void MakePartner(bool with_picture = true);
  void PutConfigValue(std::string_view section, std::string_view key, std::string_view value);
  void LogIn(std::uint32_t status = 1);
  void LogOut();
  // Nobody: UserName.ini names no user.
  void ForgetUser();
  // UserName.ini, sections Tolvex and Registry.
  void SetShared(std::string_view key, std::string_view value);
  void SetRegistry(std::string_view key, std::string_view value);
  // The profile: section BackupStatus, any section, or a key with value shifted.
  void SetStatus(std::string_view key, std::string_view value);
  void SetProfile(std::string_view section, std::string_view key, std::string_view value);
  void SetShifted(std::string_view key, std::string_view value);
  // BackupProgress.ini.
  void SetProgress(std::string_view section, std::string_view key, std::string_view value);
  void PutUserFile(std::string_view name, std::string_view bytes = {});
  void SetConnectionStatus(std::uint32_t status);

  std::string Shared(std::string_view key);
  std::string Status(std::string_view key);
  bool HasUserFile(std::string_view name);
  std::uint32_t ConnectionStatus();

  // --- the agent.

  // Makes the process and runs its start-up. What it gives is Main's result.
  bool Start();
  // A further process of the agent on the same machine, the first still there or gone.
  bool StartAgain();
  // From now on no timer of the agent runs: ticks are what a test calls.
  void StopTimers();
  // One tick, without waiting for it.
  void Tick();
  // A mouse message on the icon, dealt with at once.
  void Touch(std::uint32_t mouse_message);
  void DoubleClick();
  void RightClick();
  // A message to the hidden window, dealt with at once; its answer.
  std::intptr_t Send(std::uint32_t message, std::uintptr_t wparam = 0, std::intptr_t lparam = 0);

  // File name of the picture that is shown, "" without an icon; the tip.
  std::string Picture();
  std::string Tip();
  // All lines of the user's trace that hold `part`.
  std::size_t Traced(std::string_view part);

  Agent& agent() { return *agent_; }
  shared::AgentState& state() { return agent_->state(); }
  forms::MenuItem& Item(std::string_view name) { return agent_->form().menu().Item(name); }

  platform::memory::Machine machine;
  std::vector<std::string> shown;  // what a person saw of the forms
  forms::memory::Host host;

 private:
  std::string Profile() const;

  std::string product_folder_ = "SorvaneE";
  std::unique_ptr<Agent> agent_;
};

}  // namespace agent::testing
