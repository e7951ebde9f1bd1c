// The processes of the machine in memory: the agent's own and those of other programs, which act
// at due times of the virtual time line.
//
// Gate names "processes.<Function>", about the id or name. Journal: category "process" ("start
// <path> <arguments>", "terminate <name>", "end <name> <code>", "mutex <name>") and "exit"
// ("<code>").
#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/text.h"
#include "platform/memory/world.h"
#include "platform/processes.h"
#include "platform/shell.h"

namespace platform::memory {

// How a program was started.
struct Launch {
  ProcessId id = 0;
  std::string file;  // full path where one is known
  std::string arguments;
  std::string folder;
  WindowShow show = WindowShow::kNormal;
};

// What a program does when it starts, at the start itself: usually it lays down its agenda with
// After and Every of its process.
using Program = std::function<void(const Launch&)>;

struct ProcessRecord {
  ProcessId id = 0;
  std::string path;        // of the image
  bool readable = true;    // may be opened for reading
  bool terminable = true;  // may be opened for ending
  bool running = true;
  std::uint32_t exit_code = 0;
};

class MemoryProcesses : public Processes {
 public:
  explicit MemoryProcesses(World& world);

  void WalkModuleNames(std::size_t most, const ProcessVisitor& visit) override;
  void WalkModulePaths(std::size_t most, const ProcessVisitor& visit) override;
  void WalkSnapshot(const ProcessVisitor& visit) override;
  std::uint32_t Terminate(ProcessId id, std::uint32_t access) override;
  void ExitSelf(std::uint32_t code) override;
  std::uint32_t HoldMutex(std::string_view name) override;
  LoginName CurrentLoginName() override;
  SystemVersion Version() override;
  bool IsWow64() override;
  bool SetNormalPriority() override;
  std::string ExecutableFolder() override;

  // Programs that can be started: by full path, or by file name alone for any folder. A started
  // program without an entry runs until it is ended.
  void Install(std::string_view path_or_name, Program program);
  // True when a program of this path or name is installed here.
  bool IsInstalled(std::string_view path) const;

  // Starts a process; its program, when installed, is called at once as that process.
  ProcessId Start(std::string_view path, std::string_view arguments = {},
                  std::string_view folder = {}, WindowShow show = WindowShow::kNormal);
  // A batch file or document run by another program: the process is `image`.
  ProcessId StartBy(std::string_view image, const Launch& launch);
  // The agenda of a process; dropped when it ends. `delay` and `period` in milliseconds.
  void After(ProcessId id, std::uint32_t delay, std::function<void()> act);
  void Every(ProcessId id, std::uint32_t period, std::function<void()> act);
  // The process ends by itself.
  void End(ProcessId id, std::uint32_t exit_code = 0);
  // A handle to wait on, as the starter of the process gets it.
  ProcessHandle HandleOf(ProcessId id) const;
  ProcessId OfHandle(ProcessHandle handle) const;

  // nullptr for an id that never was.
  const ProcessRecord* Find(ProcessId id) const;
  // The first running process whose image has this name or path; 0 when there is none.
  ProcessId RunningId(std::string_view name_or_path) const;
  bool IsRunning(std::string_view name_or_path) const { return RunningId(name_or_path) != 0; }
  std::size_t CountRunning(std::string_view name_or_path) const;
  void SetReadable(ProcessId id, bool readable);
  void SetTerminable(ProcessId id, bool terminable);
  // Called with the id of each process that ended.
  void WhenEnded(std::function<void(ProcessId)> act);

  // Facts about the agent's own process and its user.
  void SetExecutable(std::string_view path);
  void SetLoginName(std::string_view name) { login_name_ = name; }
  void SetVersion(const SystemVersion& version) { version_ = version; }
  void SetWow64(bool wow64) { wow64_ = wow64; }
  // Another program lowered the agent; and whether it is back.
  void LowerPriority() { normal_priority_ = false; }
  bool normal_priority() const { return normal_priority_; }
  // Another process has this mutex.
  void HoldMutexElsewhere(std::string_view name) { foreign_mutexes_.insert(std::string(name)); }
  void ReleaseMutexElsewhere(std::string_view name);
  ProcessId own_id() const { return own_id_; }
  std::optional<std::uint32_t> exit_code() const { return exit_code_; }
  // A new run of the agent after its exit.
  void RenewAgent();

 private:
  using Names = std::set<std::string, std::less<>>;

  void Walk(std::size_t most, const std::function<bool(const ProcessRecord&)>& visit) const;
  ProcessRecord& Add(std::string_view path);
  ProcessRecord* FindRunning(ProcessId id);
  const Program* ProgramOf(std::string_view path) const;
  void Finish(ProcessRecord& process, std::uint32_t exit_code);
  void RunAs(ProcessId id, const std::function<void()>& act);

  World& world_;
  // Apart, so that a month of programs that came and went does not slow down the walks.
  std::map<ProcessId, ProcessRecord> running_;
  std::map<ProcessId, ProcessRecord> ended_;
  std::map<std::string, Program, IgnoreCaseLess> programs_;
  std::multimap<ProcessId, EventId> agendas_;
  std::vector<std::function<void(ProcessId)>> when_ended_;
  ProcessId next_id_ = 1000;
  ProcessId own_id_ = 0;
  ProcessId acting_id_ = 0;
  std::string executable_ = "C:\\Sorvane\\SorvaneETray.exe";
  std::string login_name_ = "User";
  SystemVersion version_{SystemFamily::kNt, 6, 2};
  bool wow64_ = false;
  bool normal_priority_ = true;
  Names own_mutexes_;
  Names foreign_mutexes_;
  std::optional<std::uint32_t> exit_code_;
};

}  // namespace platform::memory
