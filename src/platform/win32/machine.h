// The real machine: every port on the functions of Windows. One for a program, on its one thread.
#pragma once

#include "platform/platform.h"
#include "platform/win32/clock.h"
#include "platform/win32/events.h"
#include "platform/win32/files.h"
#include "platform/win32/internet.h"
#include "platform/win32/libraries.h"
#include "platform/win32/locale.h"
#include "platform/win32/other_windows.h"
#include "platform/win32/power.h"
#include "platform/win32/processes.h"
#include "platform/win32/profile_files.h"
#include "platform/win32/random.h"
#include "platform/win32/registry.h"
#include "platform/win32/services.h"
#include "platform/win32/shell.h"

namespace platform::win32 {

class Machine {
 public:
  Machine();
  Machine(const Machine&) = delete;
  Machine& operator=(const Machine&) = delete;

  Platform& platform() { return platform_; }

  // The message loop, for the filter that forms set.
  Events& events() { return events_; }

 private:
  Files files_;
  ProfileFiles profile_files_;
  Registry registry_;
  Processes processes_;
  Services services_;
  Shell shell_;
  OtherWindows other_windows_;
  Clock clock_;
  Events events_;
  Power power_;
  Locale locale_;
  Libraries libraries_;
  Random random_;
  Internet internet_;
  Platform platform_;
};

}  // namespace platform::win32
