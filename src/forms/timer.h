// A timer of a form. It runs while its form is loaded and it is enabled, with an interval above 0.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

#include "platform/events.h"

namespace forms {

class Form;

class Timer {
 public:
  Timer(Form& form, std::string_view name, std::uint32_t interval, bool enabled);
  ~Timer();
  Timer(const Timer&) = delete;
  Timer& operator=(const Timer&) = delete;

  const std::string& Name() const { return name_; }

  // Milliseconds between ticks. A new interval starts to count at once.
  std::uint32_t Interval() const { return interval_; }
  void SetInterval(std::uint32_t milliseconds);

  bool Enabled() const { return enabled_; }
  void SetEnabled(bool enabled);

  std::function<void()> on_tick;

  // For the form: starts the timer when it is due to run, or stops it.
  void Follow(bool form_loaded);

 private:
  void Stop();

  Form& form_;
  const std::string name_;
  std::uint32_t interval_;
  bool enabled_;
  platform::TimerId running_ = platform::kNoTimer;
};

}  // namespace forms
