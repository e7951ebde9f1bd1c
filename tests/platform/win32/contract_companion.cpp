// The other program of the contract suites: a guest that runs until it is ended, a program that
// notes how it was started, or a service that stands in one state.
#include <windows.h>

#include <cstdlib>
#include <string>
#include <string_view>

namespace {

std::string OwnPath() {
  char path[MAX_PATH];
  return {path, GetModuleFileNameA(nullptr, path, sizeof(path))};
}

std::string CurrentFolder() {
  char path[MAX_PATH];
  return {path, GetCurrentDirectoryA(sizeof(path), path)};
}

std::string ReadAll(const std::string& path) {
  const HANDLE file =
      CreateFileA(path.c_str(), GENERIC_READ, FILE_SHARE_READ, nullptr, OPEN_EXISTING, 0, nullptr);
  if (file == INVALID_HANDLE_VALUE) return "";
  char bytes[64];
  DWORD got = 0;
  ReadFile(file, bytes, sizeof(bytes), &got, nullptr);
  CloseHandle(file);
  return {bytes, got};
}

// Appears complete or not at all.
void WriteAll(const std::string& path, std::string_view bytes) {
  const std::string making = path + ".making";
  const HANDLE file =
      CreateFileA(making.c_str(), GENERIC_WRITE, 0, nullptr, CREATE_ALWAYS, 0, nullptr);
  DWORD written = 0;
  WriteFile(file, bytes.data(), static_cast<DWORD>(bytes.size()), &written, nullptr);
  CloseHandle(file);
  MoveFileExA(making.c_str(), path.c_str(), MOVEFILE_REPLACE_EXISTING);
}

// What stands behind the quoted or plain first word of a command line.
std::string_view WithoutProgram(std::string_view line) {
  const char end = line.starts_with('"') ? '"' : ' ';
  const std::size_t stop = line.find(end, 1);
  if (stop == std::string_view::npos) return "";
  line.remove_prefix(stop + (end == '"' ? 1 : 0));
  while (line.starts_with(' ')) line.remove_prefix(1);
  return line;
}

int NoteAndEnd(const std::string& own_path, DWORD milliseconds, std::string_view arguments) {
  WriteAll(own_path + ".seen", std::string(arguments) + "|" + CurrentFolder());
  Sleep(milliseconds);
  return 0;
}

int Linger(const std::string& ready_event) {
  const HANDLE ready = OpenEventA(EVENT_MODIFY_STATE, FALSE, ready_event.c_str());
  if (ready != nullptr) SetEvent(ready);
  Sleep(INFINITE);
  return 0;
}

SERVICE_STATUS_HANDLE service = nullptr;

void Tell(DWORD state) {
  SERVICE_STATUS status = {};
  status.dwServiceType = SERVICE_WIN32_OWN_PROCESS;
  status.dwCurrentState = state;
  SetServiceStatus(service, &status);
}

// An order of the user's range gives the state to stand in from now on.
DWORD WINAPI ServiceControl(DWORD order, DWORD, void*, void*) {
  constexpr DWORD kFirstUserOrder = 128;
  if (order > kFirstUserOrder) Tell(order - kFirstUserOrder);
  return NO_ERROR;
}

void WINAPI ServiceMain(DWORD, char**) {
  char name[] = "";
  service = RegisterServiceCtrlHandlerExA(name, ServiceControl, nullptr);
  Tell(SERVICE_RUNNING);
  Sleep(INFINITE);
}

int Serve() {
  char name[] = "";
  const SERVICE_TABLE_ENTRYA table[] = {{name, ServiceMain}, {nullptr, nullptr}};
  return StartServiceCtrlDispatcherA(table) ? 0 : 1;
}

}  // namespace

int WINAPI WinMain(HINSTANCE, HINSTANCE, char*, int) {
  const std::string own_path = OwnPath();
  const std::string_view arguments = WithoutProgram(GetCommandLineA());
  const std::string plan = ReadAll(own_path + ".plan");
  if (!plan.empty()) {
    return NoteAndEnd(own_path, static_cast<DWORD>(std::atoi(plan.c_str())), arguments);
  }
  const std::size_t blank = arguments.find(' ');
  const std::string word(arguments.substr(0, blank));
  const std::string rest(blank == std::string_view::npos ? "" : arguments.substr(blank + 1));
  if (word == "linger") return Linger(rest);
  if (word == "serve") return Serve();
  return 2;
}
