#include "platform/memory/memory_processes.h"

#include <algorithm>
#include <utility>

namespace platform::memory {
namespace {

constexpr std::uint32_t kAccessDenied = 5;
constexpr std::uint32_t kInvalidParameter = 87;
constexpr std::uint32_t kRightToTerminate = 0x0001;
constexpr ProcessHandle kFirstHandle = 0x10000;

bool IsNamed(const ProcessRecord& process, std::string_view name_or_path) {
  const bool is_path = name_or_path.find('\\') != std::string_view::npos;
  return EqualIgnoreCase(is_path ? process.path : NameOfPath(process.path), name_or_path);
}

}  // namespace

MemoryProcesses::MemoryProcesses(World& world) : world_(world) {
  running_[4] = {4, "System", false, false, true, 0};
  Add("C:\\Windows\\explorer.exe");
  own_id_ = Add(executable_).id;
}

void MemoryProcesses::Walk(std::size_t most,
                           const std::function<bool(const ProcessRecord&)>& visit) const {
  for (auto next = running_.begin(); next != running_.end() && most > 0; --most) {
    // Taken before the visit, which may end the process.
    const ProcessRecord& process = (next++)->second;
    if (!visit(process)) return;
  }
}

void MemoryProcesses::WalkModuleNames(std::size_t most, const ProcessVisitor& visit) {
  if (world_.gate.Fails("processes.WalkModuleNames")) return;
  Walk(most, [&](const ProcessRecord& process) {
    return !process.readable || visit({process.id, std::string(NameOfPath(process.path))});
  });
}

void MemoryProcesses::WalkModulePaths(std::size_t most, const ProcessVisitor& visit) {
  if (world_.gate.Fails("processes.WalkModulePaths")) return;
  Walk(most, [&](const ProcessRecord& process) {
    return !process.readable || visit({process.id, process.path});
  });
}

void MemoryProcesses::WalkSnapshot(const ProcessVisitor& visit) {
  if (world_.gate.Fails("processes.WalkSnapshot")) return;
  Walk(running_.size(), [&](const ProcessRecord& process) {
    return visit({process.id, std::string(NameOfPath(process.path))});
  });
}

std::uint32_t MemoryProcesses::Terminate(ProcessId id, std::uint32_t access) {
  ProcessRecord* process = FindRunning(id);
  std::uint32_t error = 0;
  if (world_.gate.Fails("processes.Terminate", process ? process->path : std::string_view{})) {
    error = kAccessDenied;
  } else if (process == nullptr) {
    error = kInvalidParameter;
  } else if (!process->terminable || (access & kRightToTerminate) == 0) {
    error = kAccessDenied;
  }
  const std::string name =
      process ? std::string(NameOfPath(process->path)) : "process " + std::to_string(id);
  world_.Note("process", "terminate " + name +
                             (error == 0 ? std::string() : " failed " + std::to_string(error)));
  if (error == 0) Finish(*process, 0);
  return error;
}

void MemoryProcesses::ExitSelf(std::uint32_t code) {
  if (!world_.timeline.agent_acts()) {
    if (acting_id_ != 0) End(acting_id_, code);
    return;
  }
  world_.gate.Fails("processes.ExitSelf");
  if (exit_code_) return;
  world_.Note("exit", std::to_string(code));
  exit_code_ = code;
  own_mutexes_.clear();
  if (ProcessRecord* own = FindRunning(own_id_)) Finish(*own, code);
  world_.timeline.EndAgent();
}

std::uint32_t MemoryProcesses::HoldMutex(std::string_view name) {
  if (world_.gate.Fails("processes.HoldMutex", name)) return kAccessDenied;
  if (own_mutexes_.count(name) != 0 || foreign_mutexes_.count(name) != 0) {
    return kErrorAlreadyExists;
  }
  own_mutexes_.insert(std::string(name));
  world_.Note("process", "mutex " + std::string(name));
  return 0;
}

Processes::LoginName MemoryProcesses::CurrentLoginName() {
  if (world_.gate.Fails("processes.CurrentLoginName")) return {{}, kAccessDenied};
  return {login_name_, 0};
}

SystemVersion MemoryProcesses::Version() {
  if (world_.gate.Fails("processes.Version")) return {SystemFamily::kNt, 0, 0};
  return version_;
}

bool MemoryProcesses::SetNormalPriority() {
  if (world_.gate.Fails("processes.SetNormalPriority")) return false;
  normal_priority_ = true;
  return true;
}

bool MemoryProcesses::IsWow64() {
  return !world_.gate.Fails("processes.IsWow64") && wow64_;
}

std::string MemoryProcesses::ExecutableFolder() {
  if (world_.gate.Fails("processes.ExecutableFolder")) return {};
  return std::string(FolderOfPath(executable_));
}

void MemoryProcesses::Install(std::string_view path_or_name, Program program) {
  programs_.insert_or_assign(std::string(path_or_name), std::move(program));
}

bool MemoryProcesses::IsInstalled(std::string_view path) const {
  return ProgramOf(path) != nullptr;
}

ProcessId MemoryProcesses::Start(std::string_view path, std::string_view arguments,
                                 std::string_view folder, WindowShow show) {
  return StartBy(path, {0, std::string(path), std::string(arguments), std::string(folder), show});
}

ProcessId MemoryProcesses::StartBy(std::string_view image, const Launch& launch) {
  Launch started = launch;
  started.id = Add(image).id;
  world_.Note("process",
              "start " + launch.file + (launch.arguments.empty() ? "" : " " + launch.arguments));
  const Program* program = ProgramOf(launch.file);
  if (program != nullptr && *program) RunAs(started.id, [&] { (*program)(started); });
  return started.id;
}

void MemoryProcesses::After(ProcessId id, std::uint32_t delay, std::function<void()> act) {
  const ProcessRecord* process = FindRunning(id);
  if (process == nullptr) return;
  agendas_.emplace(
      id, world_.timeline.At(world_.timeline.now() + delay, std::string(NameOfPath(process->path)),
                             [this, id, act = std::move(act)] { RunAs(id, act); }));
}

void MemoryProcesses::Every(ProcessId id, std::uint32_t period, std::function<void()> act) {
  const ProcessRecord* process = FindRunning(id);
  if (process == nullptr) return;
  agendas_.emplace(id, world_.timeline.Every(period, std::string(NameOfPath(process->path)),
                                             [this, id, act = std::move(act)] { RunAs(id, act); }));
}

void MemoryProcesses::End(ProcessId id, std::uint32_t exit_code) {
  ProcessRecord* process = FindRunning(id);
  if (process == nullptr) return;
  world_.Note("process",
              "end " + std::string(NameOfPath(process->path)) + " " + std::to_string(exit_code));
  Finish(*process, exit_code);
}

ProcessHandle MemoryProcesses::HandleOf(ProcessId id) const {
  return Find(id) == nullptr ? kNoProcess : kFirstHandle + static_cast<ProcessHandle>(id);
}

ProcessId MemoryProcesses::OfHandle(ProcessHandle handle) const {
  const auto id = static_cast<ProcessId>(handle - kFirstHandle);
  return handle > kFirstHandle && Find(id) != nullptr ? id : 0;
}

const ProcessRecord* MemoryProcesses::Find(ProcessId id) const {
  for (const auto* processes : {&running_, &ended_}) {
    const auto found = processes->find(id);
    if (found != processes->end()) return &found->second;
  }
  return nullptr;
}

ProcessId MemoryProcesses::RunningId(std::string_view name_or_path) const {
  for (const auto& [id, process] : running_) {
    if (IsNamed(process, name_or_path)) return id;
  }
  return 0;
}

std::size_t MemoryProcesses::CountRunning(std::string_view name_or_path) const {
  return static_cast<std::size_t>(
      std::count_if(running_.begin(), running_.end(),
                    [&](const auto& entry) { return IsNamed(entry.second, name_or_path); }));
}

void MemoryProcesses::SetReadable(ProcessId id, bool readable) {
  if (ProcessRecord* process = FindRunning(id)) process->readable = readable;
}

void MemoryProcesses::SetTerminable(ProcessId id, bool terminable) {
  if (ProcessRecord* process = FindRunning(id)) process->terminable = terminable;
}

void MemoryProcesses::WhenEnded(std::function<void(ProcessId)> act) {
  when_ended_.push_back(std::move(act));
}

void MemoryProcesses::SetExecutable(std::string_view path) {
  executable_ = path;
  if (ProcessRecord* own = FindRunning(own_id_)) own->path = executable_;
}

void MemoryProcesses::ReleaseMutexElsewhere(std::string_view name) {
  const auto found = foreign_mutexes_.find(name);
  if (found != foreign_mutexes_.end()) foreign_mutexes_.erase(found);
}

void MemoryProcesses::RenewAgent() {
  if (ProcessRecord* own = FindRunning(own_id_)) Finish(*own, 0);
  own_mutexes_.clear();
  exit_code_.reset();
  own_id_ = Add(executable_).id;
}

ProcessRecord& MemoryProcesses::Add(std::string_view path) {
  const ProcessId id = next_id_;
  next_id_ += 4;
  ProcessRecord& process = running_[id];
  process.id = id;
  process.path = path;
  return process;
}

ProcessRecord* MemoryProcesses::FindRunning(ProcessId id) {
  const auto found = running_.find(id);
  return found == running_.end() ? nullptr : &found->second;
}

const Program* MemoryProcesses::ProgramOf(std::string_view path) const {
  auto found = programs_.find(path);
  if (found == programs_.end()) found = programs_.find(NameOfPath(path));
  return found == programs_.end() ? nullptr : &found->second;
}

void MemoryProcesses::Finish(ProcessRecord& process, std::uint32_t exit_code) {
  const ProcessId id = process.id;
  process.running = false;
  process.exit_code = exit_code;
  ended_.insert(running_.extract(id));
  const auto [first, last] = agendas_.equal_range(id);
  for (auto event = first; event != last; ++event) world_.timeline.Cancel(event->second);
  agendas_.erase(first, last);
  for (const auto& act : when_ended_) act(id);
}

// Runs a step of the process under its name.
void MemoryProcesses::RunAs(ProcessId id, const std::function<void()>& act) {
  const ProcessRecord* process = FindRunning(id);
  if (process == nullptr) return;
  const ProcessId before = std::exchange(acting_id_, id);
  world_.timeline.ActAs(NameOfPath(std::string(process->path)), act);
  acting_id_ = before;
}

}  // namespace platform::memory
