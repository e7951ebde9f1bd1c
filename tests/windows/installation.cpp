#include "tests/windows/installation.h"

#include <gtest/gtest.h>
#include <psapi.h>
#include <tlhelp32.h>

#include "lab/engine/login.h"
#include "lab/engine/program_names.h"
#include "lab/screen/picture_book.h"
#include "lab/stage/configuration_text.h"
#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"

namespace {

constexpr char kProductKey[] = "Software\\Bellwick-Labs";

// A path of the build as Windows programs see it.
std::string WindowsPath(std::string path) {
  for (char& c : path) {
    if (c == '/') c = '\\';
  }
  return path.starts_with('\\') ? "Z:" + path : path;
}

std::string PathOf(DWORD process) {
  const HANDLE handle = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, process);
  if (!handle) return "";
  char path[MAX_PATH] = "";
  GetModuleFileNameExA(handle, nullptr, path, MAX_PATH);
  CloseHandle(handle);
  return path;
}

// Ids of the processes whose executable lies in this folder.
std::vector<DWORD> ProcessesIn(const std::string& folder) {
  std::vector<DWORD> ids;
  const HANDLE snapshot = CreateToolhelp32Snapshot(TH32CS_SNAPPROCESS, 0);
  PROCESSENTRY32 entry = {};
  entry.dwSize = sizeof(entry);
  for (BOOL more = Process32First(snapshot, &entry); more; more = Process32Next(snapshot, &entry)) {
    const std::string path = PathOf(entry.th32ProcessID);
    if (shared::EqualsIgnoreCase(path.substr(0, folder.size() + 1), folder + "\\")) {
      ids.push_back(entry.th32ProcessID);
    }
  }
  CloseHandle(snapshot);
  return ids;
}

void CopyPictures(const std::string& to) {
  CreateDirectoryA(to.c_str(), nullptr);
  const std::string from = WindowsPath(SORVANE_ICONS_FOLDER);
  WIN32_FIND_DATAA found;
  const HANDLE search = FindFirstFileA((from + "\\*.ico").c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return;
  do {
    CopyFileA((from + "\\" + found.cFileName).c_str(), (to + "\\" + found.cFileName).c_str(),
              FALSE);
  } while (FindNextFileA(search, &found));
  FindClose(search);
}

}  // namespace

std::string InBuild(std::string_view name) {
  return WindowsPath(SORVANE_LAB_FOLDER) + "\\" + std::string(name);
}

bool WaitUntil(const std::function<bool()>& done, DWORD patience) {
  const DWORD start = GetTickCount();
  while (!done()) {
    if (GetTickCount() - start > patience) return false;
    Sleep(50);
  }
  return true;
}

Installation::Installation() {
  places_.install_folder = "C:\\SorvaneTest" + std::to_string(GetCurrentProcessId());
  RegDeleteTreeA(HKEY_CURRENT_USER, kProductKey);
  // The number of a process comes back; what an earlier one left does not count.
  machine().files.RemoveFolder(places_.install_folder);
  CreateDirectoryA(places_.install_folder.c_str(), nullptr);
  CopyPictures(places_.InInstallFolder("Images"));
  const struct {
    std::string from;
    std::string_view to;
  } programs[] = {{WindowsPath(SORVANE_EXECUTABLE), kAgentProgram},
                  {InBuild("lab_engine_client.exe"), lab::kEngineClient},
                  {InBuild("lab_background.exe"), lab::kBackgroundProcess},
                  {InBuild("lab_main_program.exe"), lab::kMainProgram}};
  for (const auto& program : programs) {
    CopyFileA(program.from.c_str(), places_.InInstallFolder(program.to).c_str(), FALSE);
  }
  machine().files.Replace(places_.InInstallFolder(shared::files::kConfigurationIni),
                          lab::ConfigurationText());
}

Installation::~Installation() {
  EndPrograms();
  for (HANDLE handle : handles_) CloseHandle(handle);
  machine().files.RemoveFolder(places_.install_folder);
}

void Installation::EndPrograms() {
  for (DWORD id : ProcessesIn(places_.install_folder)) {
    const HANDLE handle = OpenProcess(PROCESS_TERMINATE | SYNCHRONIZE, FALSE, id);
    if (!handle) continue;
    TerminateProcess(handle, 0);
    WaitForSingleObject(handle, kPatience);
    CloseHandle(handle);
  }
  // The shell drops an icon whose program was ended when it looks at it next.
  WaitUntil([] { return lab::TrayIcons().empty(); });
}

void Installation::LogIn() {
  lab::LogIn(ports(), machine().registry, places_, kUser);
}

void Installation::PlanJobDueNow() {
  lab::PutDailySchedule(ports(), places_, kUser, machine().clock.Now());
}

HANDLE Installation::Start(std::string_view program, std::string_view arguments) {
  return StartCommand("\"" + places_.InInstallFolder(program) + "\" " + std::string(arguments));
}

HANDLE Installation::StartCommand(std::string command_line) {
  STARTUPINFOA start = {};
  start.cb = sizeof(start);
  PROCESS_INFORMATION process = {};
  if (!CreateProcessA(nullptr, command_line.data(), nullptr, nullptr, FALSE, 0, nullptr,
                      places_.install_folder.c_str(), &start, &process)) {
    return nullptr;
  }
  CloseHandle(process.hThread);
  handles_.push_back(process.hProcess);
  return process.hProcess;
}

bool Installation::StartAgent() {
  agent_ = Start(kAgentProgram);
  return WaitUntil([this] { return Picture() != "none"; });
}

bool Installation::AgentRuns() const {
  return agent_ && WaitForSingleObject(agent_, 0) == WAIT_TIMEOUT;
}

bool Installation::IsRunning(std::string_view program) const {
  const std::string path = places_.InInstallFolder(program);
  for (DWORD id : ProcessesIn(places_.install_folder)) {
    if (shared::EqualsIgnoreCase(PathOf(id), path)) return true;
  }
  return false;
}

std::string Installation::Status(std::string_view key) {
  return machine().profile_files.ReadText(places_.Profile(kUser), status::kBackupStatusSection,
                                          key);
}

void Installation::SetStatus(std::string_view key, std::string_view value) {
  machine().profile_files.WriteText(places_.Profile(kUser), status::kBackupStatusSection, key,
                                    value);
}

std::string Installation::Picture() const {
  const auto icons = lab::TrayIcons();
  if (icons.size() != 1) return icons.empty() ? "none" : "several";
  return lab::PictureBook(places_.InInstallFolder("Images")).NameAt(icons.front().place);
}

std::string Installation::Tip() const {
  const auto icons = lab::TrayIcons();
  return icons.empty() ? "" : icons.front().tip;
}

bool Installation::WaitForPicture(std::string_view name) {
  return WaitUntil([&] { return Picture() == name; });
}
