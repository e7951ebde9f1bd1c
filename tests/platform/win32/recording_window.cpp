#include "tests/platform/win32/recording_window.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr char kOwnClass[] = "ContractWindow";
constexpr UINT kComeIn = WM_APP + 0x3FFE;  // posted behind all else, to know that it is through
constexpr UINT kEnd = WM_APP + 0x3FFF;

void RegisterWindowClass(const std::string& name, WNDPROC procedure) {
  WNDCLASSA window_class = {};
  window_class.lpfnWndProc = procedure;
  window_class.hInstance = GetModuleHandleA(nullptr);
  window_class.lpszClassName = name.c_str();
  RegisterClassA(&window_class);
}

}  // namespace

RecordingWindow::RecordingWindow(const std::string& class_name, const std::string& title)
    : came_in_(CreateEventA(nullptr, FALSE, FALSE, nullptr)) {
  const HANDLE ready = CreateEventA(nullptr, FALSE, FALSE, nullptr);
  thread_ = std::thread([=, this] { Run(class_name, title, ready); });
  WaitForSingleObject(ready, INFINITE);
  CloseHandle(ready);
}

RecordingWindow::~RecordingWindow() {
  PostMessageA(window_, kEnd, 0, 0);
  thread_.join();
  CloseHandle(came_in_);
}

void RecordingWindow::Run(const std::string& class_name, const std::string& title, HANDLE ready) {
  const std::string name = class_name.empty() ? kOwnClass : class_name;
  RegisterWindowClass(name, Procedure);
  window_ = CreateWindowExA(0, name.c_str(), title.c_str(), WS_OVERLAPPEDWINDOW, 40, 40, 300, 120,
                            nullptr, nullptr, GetModuleHandleA(nullptr), nullptr);
  SetWindowLongPtrA(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetEvent(ready);
  MSG message;
  while (GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
}

LRESULT CALLBACK RecordingWindow::Procedure(HWND window, UINT message, WPARAM wparam,
                                            LPARAM lparam) {
  auto* self = reinterpret_cast<RecordingWindow*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (message == WM_DESTROY) PostQuitMessage(0);
  if (message == WM_CLOSE || message == kEnd) {
    if (self != nullptr && message == WM_CLOSE) self->Keep(message, wparam, lparam);
    DestroyWindow(window);
    return static_cast<LRESULT>(message);
  }
  if (self == nullptr || !self->Keep(message, wparam, lparam)) {
    return DefWindowProcA(window, message, wparam, lparam);
  }
  return static_cast<LRESULT>(message);
}

bool RecordingWindow::Keep(UINT message, WPARAM wparam, LPARAM lparam) {
  if (message == kComeIn) {
    SetEvent(came_in_);
    return true;
  }
  if (message < WM_USER && message != WM_CLOSE) return false;
  const std::scoped_lock lock(mutex_);
  received_.push_back({.message = message, .wparam = wparam, .lparam = lparam});
  return true;
}

std::vector<ReceivedMessage> RecordingWindow::Received(std::uint32_t from) {
  // The thread has no queue any more once its window is closed.
  if (IsWindow(window_) && PostMessageA(window_, kComeIn, 0, 0)) {
    while (WaitForSingleObject(came_in_, 50) == WAIT_TIMEOUT && IsWindow(window_)) {
    }
  }
  const std::scoped_lock lock(mutex_);
  std::vector<ReceivedMessage> chosen;
  std::copy_if(received_.begin(), received_.end(), std::back_inserter(chosen),
               [from](const ReceivedMessage& message) { return message.message >= from; });
  return chosen;
}
