// The least program of the agent's kind: a hidden window, an icon in the notification area, a timer
// of three seconds. The agent's private memory is measured against it.
#include <windows.h>
// shellapi.h needs windows.h before it.
#include <shellapi.h>

#include <cstring>

namespace {

constexpr UINT_PTR kTimer = 5;
constexpr UINT kPeriod = 3000;

NOTIFYICONDATAA IconOf(HWND window) {
  NOTIFYICONDATAA icon = {};
  icon.cbSize = NOTIFYICONDATAA_V1_SIZE;
  icon.hWnd = window;
  icon.uFlags = NIF_MESSAGE | NIF_ICON | NIF_TIP;
  icon.uCallbackMessage = WM_MOUSEMOVE;
  icon.hIcon = LoadIconA(nullptr, IDI_APPLICATION);
  std::strcpy(icon.szTip, "bare program");
  return icon;
}

}  // namespace

int WINAPI WinMain(HINSTANCE instance, HINSTANCE, LPSTR, int) {
  WNDCLASSA window_class = {};
  window_class.lpfnWndProc = DefWindowProcA;
  window_class.hInstance = instance;
  window_class.lpszClassName = "BareTray";
  RegisterClassA(&window_class);
  HWND window = CreateWindowA("BareTray", "bare tray", WS_OVERLAPPEDWINDOW, 0, 0, 100, 100, nullptr,
                              nullptr, instance, nullptr);
  NOTIFYICONDATAA icon = IconOf(window);
  Shell_NotifyIconA(NIM_ADD, &icon);
  SetTimer(window, kTimer, kPeriod, nullptr);

  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) {
    if (message.message == WM_TIMER) Shell_NotifyIconA(NIM_MODIFY, &icon);
    DispatchMessageA(&message);
  }
  Shell_NotifyIconA(NIM_DELETE, &icon);
  return 0;
}
