// The look for a program among many processes, against the same walk by the bare functions of the
// system. It starts processes of its own, as many as the machine lets it.
#include <windows.h>
// Needs the types of the line before.
#include <psapi.h>

#include <cstdio>
#include <string>
#include <vector>

#include "bench/compare.h"
#include "bench/measure.h"
#include "platform/win32/machine.h"
#include "platform/win32/scoped.h"
#include "shared/process_list.h"

namespace {

using platform::win32::ScopedHandle;

constexpr DWORD kWanted = 500;
constexpr DWORD kMost = 1024;         // ids of one walk
constexpr DWORD kPatience = 150'000;  // milliseconds
constexpr DWORD kReadModules = PROCESS_QUERY_INFORMATION | PROCESS_VM_READ;
constexpr int kRuns = 30;
constexpr double kBar = 1.2;

// Ends all its processes when it goes, also when this program is ended.
class Crowd {
 public:
  explicit Crowd(std::string program) : program_(std::move(program)) {
    JOBOBJECT_EXTENDED_LIMIT_INFORMATION limits = {};
    limits.BasicLimitInformation.LimitFlags = JOB_OBJECT_LIMIT_KILL_ON_JOB_CLOSE;
    SetInformationJobObject(job_.get(), JobObjectExtendedLimitInformation, &limits, sizeof limits);
  }
  Crowd(const Crowd&) = delete;
  Crowd& operator=(const Crowd&) = delete;
  ~Crowd() {
    TerminateJobObject(job_.get(), 0);
    for (const ScopedHandle& process : processes_) WaitForSingleObject(process.get(), kPatience);
  }

  bool Add() {
    STARTUPINFOA start = {};
    start.cb = sizeof(start);
    PROCESS_INFORMATION made = {};
    if (!CreateProcessA(program_.c_str(), nullptr, nullptr, nullptr, FALSE, 0, nullptr, nullptr,
                        &start, &made)) {
      return false;
    }
    CloseHandle(made.hThread);
    AssignProcessToJobObject(job_.get(), made.hProcess);
    processes_.emplace_back(made.hProcess);
    return true;
  }

 private:
  std::string program_;
  ScopedHandle job_{CreateJobObjectA(nullptr, nullptr)};
  std::vector<ScopedHandle> processes_;
};

// The names of all first modules, as the system gives them. Returns how many there are.
DWORD WalkBare() {
  DWORD ids[kMost];
  DWORD bytes = 0;
  if (!EnumProcesses(ids, sizeof ids, &bytes)) return 0;
  DWORD named = 0;
  for (DWORD at = 0; at < bytes / sizeof(DWORD); ++at) {
    const HANDLE process = OpenProcess(kReadModules, FALSE, ids[at]);
    if (!process) continue;
    HMODULE first = nullptr;
    DWORD needed = 0;
    char name[MAX_PATH];
    if (EnumProcessModules(process, &first, sizeof first, &needed) &&
        GetModuleBaseNameA(process, first, name, sizeof name)) {
      ++named;
    }
    CloseHandle(process);
  }
  return named;
}

void Gather(Crowd& crowd) {
  const DWORD start = GetTickCount();
  for (DWORD count = WalkBare(); count < kWanted; ++count) {
    if (GetTickCount() - start > kPatience || !crowd.Add()) break;
  }
  // A process has its first module a moment after it was made.
  DWORD before = 0;
  for (DWORD now = WalkBare(); now != before; now = WalkBare()) {
    before = now;
    Sleep(1000);
  }
}

}  // namespace

int main() {
  platform::win32::Machine machine;
  Crowd crowd(machine.platform().processes.ExecutableFolder() + "\\bench_idler.exe");
  Gather(crowd);
  const DWORD processes = WalkBare();

  shared::AgentState state;
  shared::ProcessList list(machine.platform(), state);
  bool found = false;
  const bench::Pair times = bench::TimeInTurn(
      kRuns, [&] { found = list.IsProcessRunning("absent.exe", shared::WhenFound::kLeave); },
      [] { WalkBare(); });
  if (found) return 1;
  std::printf("walk over %lu processes: %.1f us, bare %.1f us\n", processes, times.work,
              times.bare);
  bench::PrintMeasure("process_walk_ratio", times.work / times.bare, kBar);
  bench::PrintMeasure("process_walk_processes", processes, kWanted, bench::Bar::kAtLeast);
}
