// The machine: all that the agent asks of the system it runs on, as a bundle of small ports.
//
// Code that needs one or two ports takes just these.
#pragma once

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/internet.h"
#include "platform/libraries.h"
#include "platform/locale.h"
#include "platform/other_windows.h"
#include "platform/power.h"
#include "platform/processes.h"
#include "platform/profile_files.h"
#include "platform/random.h"
#include "platform/registry.h"
#include "platform/services.h"
#include "platform/shell.h"

namespace platform {

struct Platform {
  Files& files;
  ProfileFiles& profile_files;
  Registry& registry;
  Processes& processes;
  Services& services;
  Shell& shell;
  OtherWindows& other_windows;
  Clock& clock;
  Events& events;
  Power& power;
  Locale& locale;
  Libraries& libraries;
  Random& random;
  Internet& internet;
};

}  // namespace platform
