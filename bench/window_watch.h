// Counts the messages that reach a window and its controls, sent or taken from the queue.
#pragma once

#include <windows.h>

#include "platform/other_windows.h"

namespace bench {

// One at a time, on the window's own thread.
class WindowWatch {
 public:
  explicit WindowWatch(platform::WindowId window);
  WindowWatch(const WindowWatch&) = delete;
  WindowWatch& operator=(const WindowWatch&) = delete;
  ~WindowWatch();

  // Since the watch began. A repaint that is due and not done yet counts as one.
  int Messages() const;

 private:
  static LRESULT CALLBACK OnSent(int code, WPARAM wparam, LPARAM lparam);
  static LRESULT CALLBACK OnTaken(int code, WPARAM wparam, LPARAM lparam);
  static void Count(HWND window);

  static WindowWatch* watch_;
  HWND window_;
  HHOOK sent_;
  HHOOK taken_;
  int messages_ = 0;
};

}  // namespace bench
