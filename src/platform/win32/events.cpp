#include "platform/win32/events.h"

#include <set>
#include <utility>

namespace platform::win32 {
namespace {

constexpr char kWindowClass[] = "SorvaneTimers";

}  // namespace

Events::Events() {
  const HINSTANCE instance = GetModuleHandleA(nullptr);
  WNDCLASSA window_class = {};
  window_class.lpfnWndProc = WindowProcedure;
  window_class.hInstance = instance;
  window_class.lpszClassName = kWindowClass;
  RegisterClassA(&window_class);  // fails for a second machine of this process, which shares it
  window_ = ScopedWindow(CreateWindowExA(0, kWindowClass, "", 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr,
                                         instance, nullptr));
  SetWindowLongPtrA(window_.get(), GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
}

Events::~Events() {
  SetWindowLongPtrA(window_.get(), GWLP_USERDATA, 0);
}

LRESULT CALLBACK Events::WindowProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam) {
  auto* events = reinterpret_cast<Events*>(GetWindowLongPtrA(window, GWLP_USERDATA));
  if (message != WM_TIMER || events == nullptr) {
    return DefWindowProcA(window, message, wparam, lparam);
  }
  events->Tick(wparam);
  return 0;
}

void Events::Tick(TimerId timer) {
  const auto found = timers_.find(timer);
  // A message of a timer that was stopped after it came due.
  if (found == timers_.end()) return;
  // A copy, because the tick may stop its own timer.
  const std::function<void()> tick = found->second;
  tick();
}

TimerId Events::StartTimer(std::uint32_t period, std::function<void()> tick) {
  const TimerId timer = last_timer_ + 1;
  if (SetTimer(window_.get(), timer, period, nullptr) == 0) return kNoTimer;
  last_timer_ = timer;
  timers_.emplace(timer, std::move(tick));
  return timer;
}

void Events::StopTimer(TimerId timer) {
  if (timers_.erase(timer) != 0) KillTimer(window_.get(), timer);
}

void Events::Dispatch(MSG& message) {
  if (message.message == WM_QUIT) {
    quit_ = true;
    return;
  }
  if (filter_ && filter_(message)) return;
  TranslateMessage(&message);
  DispatchMessageA(&message);
}

void Events::Pump() {
  std::set<WPARAM> ticked;
  MSG message;
  while (!quit_ && PeekMessageA(&message, nullptr, 0, 0, PM_REMOVE)) {
    // A tick slower than its period is due again at once: with it a pump would never end.
    const bool is_tick = message.message == WM_TIMER && message.hwnd == window_.get();
    if (is_tick && !ticked.insert(message.wParam).second) continue;
    Dispatch(message);
  }
}

void Events::RunUntil(const std::function<bool()>& done) {
  MSG message;
  while (!quit_ && !done() && GetMessageA(&message, nullptr, 0, 0) >= 0) Dispatch(message);
}

void Events::Quit() {
  quit_ = true;
  // Wakes the loop, and ends the system's own loops of menus and boxes.
  PostQuitMessage(0);
}

WaitResult Events::WaitForProcess(ProcessHandle process, std::uint32_t milliseconds) {
  // The system takes kNoProcess for the handle of the own process, which does not end meanwhile.
  switch (WaitForSingleObject(reinterpret_cast<HANDLE>(process), milliseconds)) {
    case WAIT_OBJECT_0:
      return WaitResult::kSignalled;
    case WAIT_TIMEOUT:
      return WaitResult::kTimedOut;
    default:
      return WaitResult::kFailed;
  }
}

void Events::SetMessageFilter(MessageFilter filter) {
  filter_ = std::move(filter);
}

}  // namespace platform::win32
