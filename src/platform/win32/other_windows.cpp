#include "platform/win32/other_windows.h"

#include <windows.h>

#include <string>

namespace platform::win32 {
namespace {

// How long a program may be busy with a message before it is asked whether it responds at all.
constexpr UINT kPatience = 30000;  // milliseconds

HWND ToHandle(WindowId window) {
  return reinterpret_cast<HWND>(window);
}

}  // namespace

WindowId OtherWindows::Find(std::string_view class_name, std::string_view title) {
  const std::string name(class_name);
  const HWND window =
      FindWindowA(name.empty() ? nullptr : name.c_str(), std::string(title).c_str());
  return reinterpret_cast<WindowId>(window);
}

std::intptr_t OtherWindows::Send(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                                 std::intptr_t lparam) {
  // Window 0 would mean a call to nobody, and 0xFFFF every window there is.
  if (!IsWindow(ToHandle(window))) return 0;
  // A hung program would hold this one for ever; one that asks its user something may take its
  // time.
  constexpr UINT kUnlessHung = SMTO_ABORTIFHUNG | SMTO_NOTIMEOUTIFNOTHUNG;
  DWORD_PTR answer = 0;
  SendMessageTimeoutA(ToHandle(window), message, wparam, lparam, kUnlessHung, kPatience, &answer);
  return static_cast<std::intptr_t>(answer);
}

bool OtherWindows::Post(WindowId window, std::uint32_t message, std::uintptr_t wparam,
                        std::intptr_t lparam) {
  if (!IsWindow(ToHandle(window))) return false;
  return PostMessageA(ToHandle(window), message, wparam, lparam) != FALSE;
}

bool OtherWindows::IsMinimised(WindowId window) {
  return IsIconic(ToHandle(window)) != FALSE;
}

void OtherWindows::Restore(WindowId window) {
  ShowWindow(ToHandle(window), SW_RESTORE);
}

void OtherWindows::BringToFront(WindowId window) {
  SetForegroundWindow(ToHandle(window));
}

std::uint32_t OtherWindows::RegisterMessage(std::string_view name) {
  return RegisterWindowMessageA(std::string(name).c_str());
}

}  // namespace platform::win32
