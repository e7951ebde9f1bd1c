// The contract machine of Windows: a temporary folder, a temporary registry root, real programs.
#include <windows.h>

#include <map>
#include <utility>

#include "platform/win32/machine.h"
#include "platform/win32/scoped.h"
#include "tests/platform/contract_machine.h"
#include "tests/platform/win32/contract_services.h"
#include "tests/platform/win32/recording_window.h"

using platform::ProcessId;
using platform::ServiceState;
using platform::WindowId;
using platform::win32::ScopedFile;
using platform::win32::ScopedHandle;

namespace {

std::string Unique() {
  static int made = 0;
  return std::to_string(GetCurrentProcessId()) + "-" + std::to_string(++made);
}

std::string Text(std::string_view text) {
  return std::string(text);
}

std::string CurrentFolder() {
  char path[MAX_PATH];
  return {path, GetCurrentDirectoryA(sizeof(path), path)};
}

std::string NewFolder() {
  char temporary[MAX_PATH];
  const std::string folder =
      std::string(temporary, GetTempPathA(sizeof(temporary), temporary)) + "contract-" + Unique();
  CreateDirectoryA(folder.c_str(), nullptr);
  return folder;
}

// With all that is in it, read-only files too.
void DeleteTree(const std::string& folder) {
  WIN32_FIND_DATAA data;
  const HANDLE find = FindFirstFileA((folder + "\\*").c_str(), &data);
  if (find == INVALID_HANDLE_VALUE) return;
  do {
    const std::string name = data.cFileName;
    const std::string path = folder + "\\" + name;
    if (name == "." || name == "..") continue;
    SetFileAttributesA(path.c_str(), FILE_ATTRIBUTE_NORMAL);
    if (!DeleteFileA(path.c_str())) DeleteTree(path);
  } while (FindNextFileA(find, &data));
  FindClose(find);
  RemoveDirectoryA(folder.c_str());
}

// A file of the folder that the test program lies in.
std::string BesideThisProgram(const std::string& name) {
  char path[MAX_PATH];
  const std::string own(path, GetModuleFileNameA(nullptr, path, sizeof(path)));
  return own.substr(0, own.find_last_of('\\') + 1) + name;
}

ScopedFile OpenForReading(std::string_view path, DWORD share) {
  return ScopedFile(CreateFileA(Text(path).c_str(), GENERIC_READ, share, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
}

class Win32ContractMachine final : public ContractMachine {
 public:
  ~Win32ContractMachine() override {
    for (auto& [id, process] : programs_) EndAndWait(process);
    locks_.clear();
    windows_.clear();
    machine_.reset();  // lets go of the libraries in the folder
    SetCurrentDirectoryA(first_folder_.c_str());
    RegDeleteTreeA(HKEY_CURRENT_USER, key_.c_str());
    DeleteTree(folder_);
  }

  platform::Platform& platform() override { return machine_->platform(); }
  std::string Folder() override { return folder_; }
  std::string RegistryKey() override { return key_; }

  void PutFile(std::string_view path, std::string_view bytes) override {
    const ScopedFile file(CreateFileA(Text(path).c_str(), GENERIC_WRITE, FILE_SHARE_READ, nullptr,
                                      CREATE_ALWAYS, FILE_ATTRIBUTE_NORMAL, nullptr));
    DWORD written = 0;
    WriteFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  }

  std::optional<std::string> FileBytes(std::string_view path) override {
    const ScopedFile file = OpenForReading(path, FILE_SHARE_READ | FILE_SHARE_WRITE);
    if (!file) return std::nullopt;
    std::string bytes(GetFileSize(file.get(), nullptr), '\0');
    DWORD got = 0;
    ReadFile(file.get(), bytes.data(), static_cast<DWORD>(bytes.size()), &got, nullptr);
    return bytes;
  }

  void LockFile(std::string_view path) override { locks_[Text(path)] = OpenForReading(path, 0); }
  void LockForWriting(std::string_view path) override {
    locks_[Text(path)] = OpenForReading(path, FILE_SHARE_READ);
  }
  void UnlockFile(std::string_view path) override { locks_.erase(Text(path)); }

  void SetReadOnly(std::string_view path, bool read_only) override {
    SetFileAttributesA(Text(path).c_str(),
                       read_only ? FILE_ATTRIBUTE_READONLY : FILE_ATTRIBUTE_NORMAL);
  }

  void PutRegistryValue(std::string_view key, std::string_view name, std::uint32_t type,
                        std::string_view bytes) override {
    RegSetKeyValueA(HKEY_CURRENT_USER, Text(key).c_str(), Text(name).c_str(), type, bytes.data(),
                    static_cast<DWORD>(bytes.size()));
  }

  std::optional<StoredValue> RegistryValueBytes(std::string_view key,
                                                std::string_view name) override {
    char bytes[4096];
    DWORD size = sizeof(bytes);
    StoredValue value;
    DWORD type = 0;
    HKEY opened = nullptr;
    if (RegOpenKeyExA(HKEY_CURRENT_USER, Text(key).c_str(), 0, KEY_READ, &opened) != 0) {
      return std::nullopt;
    }
    const platform::win32::ScopedRegistryKey owner(opened);
    if (RegQueryValueExA(opened, Text(name).c_str(), nullptr, &type, reinterpret_cast<BYTE*>(bytes),
                         &size) != 0) {
      return std::nullopt;
    }
    return StoredValue{.type = type, .bytes = std::string(bytes, size)};
  }

  ProcessId StartProgram(std::string_view image_name) override {
    const std::string path = PutCompanion(image_name);
    const std::string event_name = "contract-ready-" + Unique();
    const ScopedHandle ready(CreateEventA(nullptr, FALSE, FALSE, event_name.c_str()));
    std::string command = "\"" + path + "\" linger " + event_name;
    STARTUPINFOA startup = {};
    startup.cb = sizeof(startup);
    PROCESS_INFORMATION process = {};
    CreateProcessA(path.c_str(), command.data(), nullptr, nullptr, FALSE, 0, nullptr,
                   folder_.c_str(), &startup, &process);
    const ScopedHandle thread(process.hThread);
    WaitForSingleObject(ready.get(), 30000);
    programs_.emplace(process.dwProcessId, ScopedHandle(process.hProcess));
    return process.dwProcessId;
  }

  void EndProgram(ProcessId id, std::uint32_t exit_code) override {
    EndAndWait(programs_.at(id), exit_code);
  }

  std::optional<std::uint32_t> ExitCode(ProcessId id) override {
    // A program that was told to end may take a moment.
    if (WaitForSingleObject(programs_.at(id).get(), 500) != WAIT_OBJECT_0) return std::nullopt;
    DWORD code = 0;
    GetExitCodeProcess(programs_.at(id).get(), &code);
    return code;
  }

  std::string ProgramThatEnds(std::string_view image_name, std::uint32_t milliseconds) override {
    const std::string path = PutCompanion(image_name);
    PutFile(path + ".plan", std::to_string(milliseconds));
    return path;
  }

  WindowId OpenWindow(std::string_view class_name, std::string_view title) override {
    auto window = std::make_unique<RecordingWindow>(Text(class_name), Text(title));
    const auto id = reinterpret_cast<WindowId>(window->handle());
    windows_[id] = std::move(window);
    return id;
  }

  void MinimiseWindow(WindowId window) override {
    ShowWindow(reinterpret_cast<HWND>(window), SW_MINIMIZE);
  }

  std::vector<ReceivedMessage> Received(WindowId window, std::uint32_t from) override {
    return windows_.at(window)->Received(from);
  }

  void PutService(std::string_view name, ServiceState state) override {
    services_.Put(Text(name), state);
  }

  void PutLibrary(std::string_view path) override {
    CopyFileA(BesideThisProgram("contract_library.dll").c_str(), Text(path).c_str(), FALSE);
  }

 private:
  std::string PutCompanion(std::string_view image_name) {
    const std::string path = folder_ + "\\" + Text(image_name);
    CopyFileA(BesideThisProgram("contract_companion.exe").c_str(), path.c_str(), FALSE);
    return path;
  }

  static void EndAndWait(const ScopedHandle& process, UINT code = 0) {
    TerminateProcess(process.get(), code);
    WaitForSingleObject(process.get(), 10000);
  }

  std::string first_folder_ = CurrentFolder();
  std::string folder_ = NewFolder();
  std::string key_ = "Software\\ContractSuite\\" + Unique();
  std::unique_ptr<platform::win32::Machine> machine_ = std::make_unique<platform::win32::Machine>();
  std::map<std::string, ScopedFile> locks_;
  std::map<ProcessId, ScopedHandle> programs_;
  std::map<WindowId, std::unique_ptr<RecordingWindow>> windows_;
  ContractServices services_{BesideThisProgram("contract_companion.exe")};
};

}  // namespace

std::unique_ptr<ContractMachine> MakeContractMachine() {
  return std::make_unique<Win32ContractMachine>();
}
