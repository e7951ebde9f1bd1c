// A whole machine in memory, the same from run to run: files, registry, processes, windows, shell
// and a virtual clock behind the ports of platform/, other programs as actors, verbs of fate,
// faults on demand and a journal of everything that was done.
//
//   platform::memory::Machine machine;
//   machine.files().PutIni("C:\\Sorvane\\UserName.ini", "Registry", "Interactive", "ann");
//   StartAgent(machine.platform());
//   machine.Run(3000);
//   EXPECT_EQ(machine.journal().Excerpt("icon"), ...);
//
// It begins at 2024-03-01 10:00:00 with C:\ and C:\Windows, an explorer.exe, the agent's own
// process (C:\Sorvane\SorvaneETray.exe) and the shell there. See timeline.h for how time moves.
#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "platform/memory/disk.h"
#include "platform/memory/memory_files.h"
#include "platform/memory/memory_other_windows.h"
#include "platform/memory/memory_processes.h"
#include "platform/memory/memory_registry.h"
#include "platform/memory/memory_shell.h"
#include "platform/memory/small_ports.h"
#include "platform/memory/world.h"
#include "platform/platform.h"

namespace platform::memory {

// A message for the agent's top-level windows; `window` 0 is meant for all of them.
using AgentWindow = std::function<void(std::uintptr_t window, std::uint32_t message,
                                       std::uintptr_t wparam, std::intptr_t lparam)>;

class Machine {
 public:
  explicit Machine(std::uint64_t seed = 1);
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  Platform& platform() { return platform_; }

  // The parts, for seeding and looking.
  MemoryFiles& files() { return files_; }
  MemoryRegistry& registry() { return registry_; }
  MemoryProcesses& processes() { return processes_; }
  MemoryServices& services() { return services_; }
  MemoryShell& shell() { return shell_; }
  MemoryOtherWindows& windows() { return windows_; }
  MemoryPower& power() { return power_; }
  MemoryLocale& locale() { return locale_; }
  MemoryLibraries& libraries() { return libraries_; }
  MemoryRandom& random() { return random_; }
  Journal& journal() { return world_.journal; }
  Gate& gate() { return world_.gate; }
  World& world() { return world_; }

  // Time. `time` and `milliseconds` are virtual; `now` counts from the machine's making.
  std::uint64_t now() const { return world_.timeline.now(); }
  LocalTime LocalNow() const { return world_.timeline.LocalNow(); }
  void Run(std::uint64_t milliseconds) { world_.timeline.Run(milliseconds); }
  void Jump(std::uint64_t milliseconds);
  // Sets the wall clock forth or back; what is due stays due.
  void SetClock(const LocalTime& time);
  // More steps than this in one Run end the story; what is pending stands in the journal then.
  void SetStepLimit(std::uint64_t steps) { world_.timeline.SetStepLimit(steps); }
  bool ran_away() const { return world_.timeline.ran_away(); }

  // Other programs: what happens at a time, whether the agent pumps or not.
  EventId At(std::uint64_t time, std::function<void()> act, std::string who = "world");
  EventId Every(std::uint32_t period, std::function<void()> act, std::string who = "world");
  void Cancel(EventId event) { world_.timeline.Cancel(event); }
  // Does something now in the name of another program: past the gate, and under its name in the
  // journal.
  void As(std::string_view who, const std::function<void()>& act) {
    world_.timeline.ActAs(who, act);
  }

  // The agent's side: what runs when it pumps (inputs of the user, for instance), at that time or
  // later, or inside the n-th pump from now, nested ones counted.
  void AtAgent(std::uint64_t time, std::function<void()> act) {
    world_.timeline.AtAgent(time, std::move(act));
  }
  void WhenPumped(std::function<void()> act, std::uint32_t nth = 1) {
    world_.timeline.WhenPumped(std::move(act), nth);
  }
  // Where window messages for the agent go (its form host). Posted ones come when it pumps.
  void SetAgentWindow(AgentWindow window) { agent_window_ = std::move(window); }
  void PostToAgent(std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam = 0,
                   std::intptr_t lparam = 0);
  // A mouse message on the notification icon; nothing without the icon.
  void TouchIcon(std::uint32_t mouse_message);

  // The agent's end: its exit code after ExitSelf; Run and RunUntil have returned.
  bool exited() const { return processes_.exit_code().has_value(); }
  std::optional<std::uint32_t> exit_code() const { return processes_.exit_code(); }
  bool quit() const { return world_.timeline.quit(); }
  // A new process of the agent on the same machine: no timer, icon, mutex or message of the old
  // one is left.
  void RenewAgent();

  // Verbs of fate; each leaves a line in the journal.
  // Ends every process of this name or path.
  void KillProcess(std::string_view name_or_path);
  void StopService(std::string_view name);
  void SetService(std::string_view name, ServiceState state);
  // Another program holds the file open.
  void LockFile(std::string_view path, FileLock lock = FileLock::kAgainstAll);
  void UnlockFile(std::string_view path);
  void MakeReadOnly(std::string_view path, bool read_only = true);
  // Every write to the disk fails, whoever writes.
  void FillDisk(bool full = true);
  // The shell ends, taking the icons along, and comes back, telling all windows so.
  void RestartShell();
  void SetShellPresent(bool present);
  // The machine sleeps for this long; the agent's windows hear of both ends.
  void Suspend(std::uint64_t milliseconds);
  // Windows asks and then tells every window that the session ends.
  void EndSession();
  // Another user's name for the agent's account.
  void LogOn(std::string_view name);

 private:
  DiskNode* Fated(std::string_view path, std::string_view what);

  World world_;
  Disk disk_{world_.timeline};
  MemoryFiles files_{world_, disk_};
  MemoryProfileFiles profile_files_{world_, disk_};
  MemoryRegistry registry_{world_};
  MemoryProcesses processes_{world_};
  MemoryServices services_{world_};
  MemoryShell shell_{world_, disk_, processes_};
  MemoryOtherWindows windows_{world_, processes_};
  MemoryClock clock_{world_};
  MemoryEvents events_{world_, processes_};
  MemoryPower power_{world_};
  MemoryLocale locale_{world_};
  MemoryLibraries libraries_{world_, disk_};
  MemoryRandom random_;
  MemoryInternet internet_{world_};
  AgentWindow agent_window_;
  Platform platform_{files_, profile_files_, registry_, processes_, services_,  shell_,  windows_,
                     clock_, events_,        power_,    locale_,    libraries_, random_, internet_};
};

}  // namespace platform::memory
