#include "platform/win32/process_walk.h"

#include <windows.h>
// Both need the types of the line before.
#include <psapi.h>
#include <tlhelp32.h>

#include <optional>
#include <vector>

#include "platform/win32/scoped.h"

namespace platform::win32 {
namespace {

constexpr DWORD kReadModules = PROCESS_QUERY_INFORMATION | PROCESS_VM_READ;
static_assert(kReadModules == 1040);

using ModuleText = DWORD(WINAPI*)(HANDLE, HMODULE, char*, DWORD);

std::vector<DWORD> ProcessIds(std::size_t most) {
  std::vector<DWORD> ids(most);
  DWORD bytes = 0;
  if (!EnumProcesses(ids.data(), static_cast<DWORD>(most * sizeof(DWORD)), &bytes)) return {};
  ids.resize(bytes / sizeof(DWORD));
  return ids;
}

// What `text` says of the first module; nothing when the process cannot be opened or read.
std::optional<std::string> FirstModule(DWORD id, ModuleText text) {
  const ScopedHandle process(OpenProcess(kReadModules, FALSE, id));
  if (!process) return std::nullopt;
  HMODULE first = nullptr;
  DWORD needed = 0;
  if (!EnumProcessModules(process.get(), &first, sizeof(first), &needed)) return std::nullopt;
  char name[MAX_PATH];
  const DWORD length = text(process.get(), first, name, sizeof(name));
  if (length == 0) return std::nullopt;
  return std::string(name, length);
}

void WalkModules(std::size_t most, ModuleText text, const ProcessVisitor& visit) {
  for (const DWORD id : ProcessIds(most)) {
    const auto name = FirstModule(id, text);
    if (name && !visit({.id = id, .name = *name})) return;
  }
}

}  // namespace

void WalkModuleNames(std::size_t most, const ProcessVisitor& visit) {
  WalkModules(most, GetModuleBaseNameA, visit);
}

void WalkModulePaths(std::size_t most, const ProcessVisitor& visit) {
  WalkModules(most, GetModuleFileNameExA, visit);
}

void WalkSnapshot(const ProcessVisitor& visit) {
  const ScopedFile snapshot(CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0));
  if (!snapshot) return;
  PROCESSENTRY32 entry = {};
  entry.dwSize = sizeof(entry);
  if (!Process32First(snapshot.get(), &entry)) return;
  do {
    if (!visit({.id = entry.th32ProcessID, .name = entry.szExeFile})) return;
  } while (Process32Next(snapshot.get(), &entry));
}

}  // namespace platform::win32
