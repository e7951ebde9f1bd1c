#include "platform/win32/processes.h"

#include <windows.h>
// Needs the types of the line before.
#include <lmcons.h>

#include "platform/win32/last_error.h"
#include "platform/win32/process_walk.h"

namespace platform::win32 {
namespace {

static_assert(kErrorAlreadyExists == ERROR_ALREADY_EXISTS);

std::string ExecutablePath() {
  char path[MAX_PATH];
  return {path, GetModuleFileNameA(nullptr, path, sizeof(path))};
}

}  // namespace

void Processes::WalkModuleNames(std::size_t most, const ProcessVisitor& visit) {
  win32::WalkModuleNames(most, visit);
}

void Processes::WalkModulePaths(std::size_t most, const ProcessVisitor& visit) {
  win32::WalkModulePaths(most, visit);
}

void Processes::WalkSnapshot(const ProcessVisitor& visit) {
  win32::WalkSnapshot(visit);
}

std::uint32_t Processes::Terminate(ProcessId id, std::uint32_t access) {
  const ScopedHandle process(OpenProcess(access, FALSE, id));
  if (!process) return LastError();
  return ErrorUnless(TerminateProcess(process.get(), 0) != FALSE);
}

void Processes::ExitSelf(std::uint32_t code) {
  ExitProcess(code);
}

std::uint32_t Processes::HoldMutex(std::string_view name) {
  SetLastError(ERROR_SUCCESS);
  ScopedHandle mutex(CreateMutexA(nullptr, TRUE, std::string(name).c_str()));
  if (!mutex) return LastError();
  if (GetLastError() == ERROR_ALREADY_EXISTS) {
    ReleaseMutex(mutex.get());
    return kErrorAlreadyExists;
  }
  mutex_ = std::move(mutex);
  return 0;
}

Processes::LoginName Processes::CurrentLoginName() {
  char name[UNLEN + 1];
  DWORD size = sizeof(name);
  if (!GetUserNameA(name, &size)) return {.name = "", .error = LastError()};
  return {.name = name, .error = 0};
}

SystemVersion Processes::Version() {
  OSVERSIONINFOA info = {};
  info.dwOSVersionInfoSize = sizeof(info);
  if (!GetVersionExA(&info)) return {};
  return {.family = static_cast<SystemFamily>(info.dwPlatformId),
          .major = info.dwMajorVersion,
          .minor = info.dwMinorVersion};
}

bool Processes::SetNormalPriority() {
  return SetPriorityClass(GetCurrentProcess(), NORMAL_PRIORITY_CLASS) != 0;
}

bool Processes::IsWow64() {
  BOOL wow64 = FALSE;
  return IsWow64Process(GetCurrentProcess(), &wow64) && wow64;
}

std::string Processes::ExecutableFolder() {
  const std::string path = ExecutablePath();
  const std::size_t separator = path.find_last_of('\\');
  return separator == std::string::npos ? "" : path.substr(0, separator);
}

}  // namespace platform::win32
