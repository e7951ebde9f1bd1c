// The real screen, for tests: a message loop, a host, and keys and clicks as the system sends them.
#pragma once

#include <windows.h>

#include <functional>
#include <string>

#include "forms/form.h"
#include "forms/win32/host.h"
#include "platform/win32/events.h"

namespace forms::testing {

struct RealScreen {
  explicit RealScreen(int fixed_dpi = 96) : host(events, fixed_dpi) {}

  platform::win32::Events events;
  win32::Host host;

  // What is pending has been dealt with.
  void Settle() { events.Pump(); }
  // A key that the user presses in a window.
  void Press(HWND window, int key);
  // Presses a key at the window that has the keyboard, as soon as messages are pumped.
  void PressSoon(int key);
  // Runs `act` once, as soon as messages are pumped.
  void Soon(std::function<void()> act);
};

HWND WindowOf(const Form& form);
HWND WindowOf(const Control& control);
std::string ClassOf(HWND window);
std::string TextOf(HWND window);

// The controls whose text does not fit into their windows, by name; empty when all do.
std::string CutTexts(const Form& form, int dpi);

}  // namespace forms::testing
