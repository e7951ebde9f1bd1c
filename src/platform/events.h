// The message loop of the agent's one thread.
#pragma once

#include <cstdint>
#include <functional>

#include "platform/shell.h"

namespace platform {

using TimerId = std::uintptr_t;
inline constexpr TimerId kNoTimer = 0;

enum class WaitResult { kSignalled, kTimedOut, kFailed };

class Events {
 public:
  virtual ~Events() = default;

  // Calls `tick` every `period` milliseconds from now, whenever messages are pumped, until
  // StopTimer. A tick that came due several times while nothing was pumped is called once. Returns
  // kNoTimer on failure.
  virtual TimerId StartTimer(std::uint32_t period, std::function<void()> tick) = 0;

  // Stops a timer; safe inside its own tick, and for a timer that is stopped.
  virtual void StopTimer(TimerId timer) = 0;

  // Runs what is pending, timers included, and returns. Calls may nest.
  virtual void Pump() = 0;

  // Pumps, asleep between messages, until `done` gives true (asked after each message) or the
  // program is to end.
  virtual void RunUntil(const std::function<bool()>& done) = 0;

  // Makes every RunUntil return. The pumping of messages ends for good.
  virtual void Quit() = 0;

  // True once Quit was called or the process has ended: whoever loops around Pump leaves its loop.
  virtual bool HasQuit() = 0;

  // Waits up to `milliseconds` for the end of a process without pumping. kNoProcess never ends: the
  // time just passes. kFailed at once for any other bad handle.
  virtual WaitResult WaitForProcess(ProcessHandle process, std::uint32_t milliseconds) = 0;
};

}  // namespace platform
