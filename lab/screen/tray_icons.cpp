#include "lab/screen/tray_icons.h"

// The shell's headers need windows.h before them.
#include <commctrl.h>
#include <shellapi.h>

#include <algorithm>
#include <cstddef>

namespace lab {
namespace {

constexpr char kTaskBarClass[] = "Shell_TrayWnd";
constexpr std::size_t kMostText = 256;  // characters
constexpr DWORD kShellStart = 1500;     // milliseconds that a shell takes to come up

// A piece of memory in another process.
class RemoteMemory {
 public:
  RemoteMemory(HWND owner_of_process, std::size_t size) {
    DWORD id = 0;
    GetWindowThreadProcessId(owner_of_process, &id);
    process_ = OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, id);
    if (process_) {
      memory_ = VirtualAllocEx(process_, nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    }
  }
  RemoteMemory(const RemoteMemory&) = delete;
  RemoteMemory& operator=(const RemoteMemory&) = delete;
  ~RemoteMemory() {
    if (memory_) VirtualFreeEx(process_, memory_, 0, MEM_RELEASE);
    if (process_) CloseHandle(process_);
  }

  char* data() const { return static_cast<char*>(memory_); }
  bool Write(const void* from, std::size_t size) {
    return memory_ && WriteProcessMemory(process_, memory_, from, size, nullptr);
  }
  bool Read(void* to, std::size_t offset, std::size_t size) {
    return memory_ && ReadProcessMemory(process_, data() + offset, to, size, nullptr);
  }

 private:
  HANDLE process_ = nullptr;
  void* memory_ = nullptr;
};

std::string AnsiOf(const wchar_t* text) {
  char result[kMostText * 2] = "";
  WideCharToMultiByte(CP_ACP, 0, text, -1, result, sizeof(result), nullptr, nullptr);
  return result;
}

// The first tool of a tool-tip window of the task bar, when it has a place there.
bool ReadTool(HWND tool_tip, HWND task_bar, TrayIcon& icon) {
  struct {
    TTTOOLINFOW tool;
    wchar_t text[kMostText];
  } block = {};
  RemoteMemory remote(tool_tip, sizeof(block));
  if (!remote.data()) return false;
  block.tool.cbSize = sizeof(block.tool);
  block.tool.lpszText = reinterpret_cast<wchar_t*>(remote.data() + offsetof(decltype(block), text));
  remote.Write(&block, sizeof(block));
  if (!SendMessageW(tool_tip, TTM_ENUMTOOLSW, 0, reinterpret_cast<LPARAM>(remote.data()))) {
    return false;
  }
  SendMessageW(tool_tip, TTM_GETTEXTW, kMostText, reinterpret_cast<LPARAM>(remote.data()));
  remote.Read(&block, 0, sizeof(block));
  if (IsRectEmpty(&block.tool.rect)) return false;
  icon.place = block.tool.rect;
  MapWindowPoints(task_bar, nullptr, reinterpret_cast<POINT*>(&icon.place), 2);
  block.text[kMostText - 1] = L'\0';
  icon.tip = AnsiOf(block.text);
  return true;
}

}  // namespace

std::vector<TrayIcon> TrayIcons() {
  std::vector<TrayIcon> icons;
  const HWND task_bar = FindWindowA(kTaskBarClass, nullptr);
  if (!task_bar) return icons;
  for (HWND window = nullptr;
       (window = FindWindowExA(nullptr, window, TOOLTIPS_CLASSA, nullptr)) != nullptr;) {
    TrayIcon icon;
    if (GetWindow(window, GW_OWNER) == task_bar && ReadTool(window, task_bar, icon)) {
      icons.push_back(icon);
    }
  }
  std::sort(icons.begin(), icons.end(), [](const TrayIcon& left, const TrayIcon& right) {
    return left.place.left < right.place.left;
  });
  return icons;
}

void RenewShell(HWND icon_owner) {
  NOTIFYICONDATAA icon = {};
  icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
  icon.hWnd = icon_owner;
  Shell_NotifyIconA(NIM_DELETE, &icon);
  Sleep(kShellStart);
  PostMessageA(HWND_BROADCAST, RegisterWindowMessageA("TaskbarCreated"), 0, 0);
}

}  // namespace lab
