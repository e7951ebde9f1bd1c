// The message loop of Windows.
#pragma once

#include <windows.h>

#include <functional>
#include <map>

#include "platform/events.h"
#include "platform/win32/scoped.h"

namespace platform::win32 {

// Sees each message before it is dispatched; returns true when it has dealt with it.
using MessageFilter = std::function<bool(MSG&)>;

class Events final : public platform::Events {
 public:
  Events();
  Events(const Events&) = delete;
  Events& operator=(const Events&) = delete;
  ~Events() override;

  TimerId StartTimer(std::uint32_t period, std::function<void()> tick) override;
  void StopTimer(TimerId timer) override;
  void Pump() override;
  void RunUntil(const std::function<bool()>& done) override;
  void Quit() override;
  bool HasQuit() override { return quit_; }
  WaitResult WaitForProcess(ProcessHandle process, std::uint32_t milliseconds) override;

  // The keyboard of forms works through this. One filter; an empty one takes it away.
  void SetMessageFilter(MessageFilter filter);

 private:
  static LRESULT CALLBACK WindowProcedure(HWND window, UINT message, WPARAM wparam, LPARAM lparam);
  void Tick(TimerId timer);
  void Dispatch(MSG& message);

  ScopedWindow window_;  // owns the system's timers
  std::map<TimerId, std::function<void()>> timers_;
  TimerId last_timer_ = kNoTimer;  // numbers are not used twice: a tick under way may be of a
                                   // stopped timer
  MessageFilter filter_;
  bool quit_ = false;
};

}  // namespace platform::win32
