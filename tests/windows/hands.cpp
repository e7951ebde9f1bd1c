#include "tests/windows/hands.h"

#include "lab/screen/mouse.h"
#include "tests/windows/installation.h"

namespace {

constexpr int kMostAttempts = 8;

}  // namespace

bool ActUntil(const std::function<void()>& act, const std::function<bool()>& done) {
  for (int attempt = 0; attempt < kMostAttempts; ++attempt) {
    act();
    if (WaitUntil(done, kBeforeActingAgain)) return true;
  }
  return false;
}

lab::WindowInfo WindowOf(std::string_view class_name) {
  for (const lab::WindowInfo& window : lab::VisibleWindows()) {
    if (window.class_name == class_name) return window;
  }
  return {};
}

lab::ControlInfo ControlOf(std::string_view class_name, std::string_view text) {
  for (const lab::ControlInfo& control : WindowOf(class_name).controls) {
    if (control.visible && control.text.starts_with(text)) return control;
  }
  return {};
}

bool Shows(std::string_view class_name, std::string_view text) {
  return ControlOf(class_name, text).window != nullptr;
}

bool WaitForWindow(std::string_view class_name) {
  return WaitUntil([&] { return WindowOf(class_name).window != nullptr; });
}

bool WaitUntilClosed(std::string_view class_name) {
  return WaitUntil([&] { return WindowOf(class_name).window == nullptr; });
}

bool WaitForText(std::string_view class_name, std::string_view text) {
  return WaitUntil([&] { return Shows(class_name, text); });
}

bool Press(std::string_view class_name, std::string_view text, const std::function<bool()>& done) {
  if (!WaitForText(class_name, text)) return false;
  const HWND window = WindowOf(class_name).window;
  return ActUntil(
      [&] {
        const lab::ControlInfo control = ControlOf(class_name, text);
        if (WindowOf(class_name).window != window || !control.window) return;
        lab::ClickMouse(lab::MiddleOf(control.place));
      },
      done);
}

bool CloseWith(std::string_view class_name, std::string_view button) {
  if (!WaitForText(class_name, button)) return false;
  const HWND window = WindowOf(class_name).window;
  return Press(class_name, button, [&] { return WindowOf(class_name).window != window; });
}

std::string KeyboardIn(std::string_view class_name) {
  GUITHREADINFO info = {};
  info.cbSize = sizeof(info);
  const HWND window = WindowOf(class_name).window;
  if (!window || !GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &info)) return "";
  char name[64] = "";
  GetClassNameA(info.hwndFocus, name, sizeof(name));
  return name;
}

bool PressKeyIn(std::string_view class_name, WORD key, const std::function<bool()>& done) {
  if (!WaitUntil([&] { return GetForegroundWindow() == WindowOf(class_name).window; })) {
    return false;
  }
  return ActUntil(
      [&] {
        if (GetForegroundWindow() == WindowOf(class_name).window) lab::PressKey(key);
      },
      done);
}
