#include "bench/window_watch.h"

namespace bench {

WindowWatch* WindowWatch::watch_ = nullptr;

WindowWatch::WindowWatch(platform::WindowId window)
    : window_(reinterpret_cast<HWND>(window)),
      sent_(SetWindowsHookExA(WH_CALLWNDPROC, OnSent, nullptr, GetCurrentThreadId())),
      taken_(SetWindowsHookExA(WH_GETMESSAGE, OnTaken, nullptr, GetCurrentThreadId())) {
  watch_ = this;
}

WindowWatch::~WindowWatch() {
  watch_ = nullptr;
  UnhookWindowsHookEx(taken_);
  UnhookWindowsHookEx(sent_);
}

int WindowWatch::Messages() const {
  const bool repaint_due = GetUpdateRect(window_, nullptr, FALSE) != FALSE;
  return messages_ + (repaint_due ? 1 : 0);
}

LRESULT CALLBACK WindowWatch::OnSent(int code, WPARAM wparam, LPARAM lparam) {
  const auto& sent = *reinterpret_cast<const CWPSTRUCT*>(lparam);
  if (code >= 0) Count(sent.hwnd);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

LRESULT CALLBACK WindowWatch::OnTaken(int code, WPARAM wparam, LPARAM lparam) {
  const auto& taken = *reinterpret_cast<const MSG*>(lparam);
  if (code >= 0 && wparam == PM_REMOVE) Count(taken.hwnd);
  return CallNextHookEx(nullptr, code, wparam, lparam);
}

void WindowWatch::Count(HWND window) {
  if (window != watch_->window_ && !IsChild(watch_->window_, window)) return;
  ++watch_->messages_;
}

}  // namespace bench
