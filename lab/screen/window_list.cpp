#include "lab/screen/window_list.h"

#include <psapi.h>

namespace lab {
namespace {

constexpr int kMostText = 1024;
constexpr char kShellProgram[] = "explorer.exe";

std::string ClassOf(HWND window) {
  char name[256] = "";
  GetClassNameA(window, name, sizeof(name));
  return name;
}

// The text of a window of another process, also of a text box.
std::string TextOf(HWND window) {
  char text[kMostText] = "";
  DWORD_PTR copied = 0;
  SendMessageTimeoutA(window, WM_GETTEXT, kMostText, reinterpret_cast<LPARAM>(text),
                      SMTO_ABORTIFHUNG, 500, &copied);
  return text;
}

BOOL CALLBACK AddControl(HWND window, LPARAM list) {
  ControlInfo control;
  control.window = window;
  control.id = GetDlgCtrlID(window);
  control.class_name = ClassOf(window);
  control.text = TextOf(window);
  control.visible = IsWindowVisible(window) != FALSE;
  control.enabled = IsWindowEnabled(window) != FALSE;
  GetWindowRect(window, &control.place);
  reinterpret_cast<std::vector<ControlInfo>*>(list)->push_back(control);
  return TRUE;
}

BOOL CALLBACK AddVisible(HWND window, LPARAM list) {
  if (IsWindowVisible(window) && ProgramOf(window) != kShellProgram) {
    reinterpret_cast<std::vector<WindowInfo>*>(list)->push_back(Describe(window));
  }
  return TRUE;
}

}  // namespace

std::string ProgramOf(HWND window) {
  DWORD id = 0;
  GetWindowThreadProcessId(window, &id);
  const HANDLE process = OpenProcess(PROCESS_QUERY_INFORMATION | PROCESS_VM_READ, FALSE, id);
  if (!process) return "";
  char name[MAX_PATH] = "";
  GetModuleBaseNameA(process, nullptr, name, MAX_PATH);
  CloseHandle(process);
  return name;
}

WindowInfo Describe(HWND window) {
  WindowInfo info;
  info.window = window;
  info.class_name = ClassOf(window);
  info.title = TextOf(window);
  info.program = ProgramOf(window);
  GetWindowRect(window, &info.place);
  EnumChildWindows(window, AddControl, reinterpret_cast<LPARAM>(&info.controls));
  return info;
}

std::vector<WindowInfo> VisibleWindows() {
  std::vector<WindowInfo> windows;
  EnumWindows(AddVisible, reinterpret_cast<LPARAM>(&windows));
  return windows;
}

}  // namespace lab
