#include "forms/timer.h"

#include "forms/form.h"

namespace forms {

Timer::Timer(Form& form, std::string_view name, std::uint32_t interval, bool enabled)
    : form_(form), name_(name), interval_(interval), enabled_(enabled) {
  form.Adopt(*this);
}

Timer::~Timer() {
  Stop();
}

void Timer::SetInterval(std::uint32_t milliseconds) {
  if (interval_ == milliseconds) return;
  interval_ = milliseconds;
  Stop();
  Follow(form_.Loaded());
}

void Timer::SetEnabled(bool enabled) {
  if (enabled_ == enabled) return;
  enabled_ = enabled;
  Follow(form_.Loaded());
}

void Timer::Follow(bool form_loaded) {
  const bool due = form_loaded && enabled_ && interval_ > 0;
  if (!due) return Stop();
  if (running_ != platform::kNoTimer) return;
  running_ = form_.Host().Events().StartTimer(interval_, [this] {
    if (on_tick) on_tick();
  });
}

void Timer::Stop() {
  if (running_ == platform::kNoTimer) return;
  form_.Host().Events().StopTimer(running_);
  running_ = platform::kNoTimer;
}

}  // namespace forms
