// The background scheduler process: looks for the job that is due and starts the engine client.
#pragma once

#include <cstdint>
#include <functional>

#include "lab/engine/places.h"
#include "platform/clock.h"

namespace lab {

class BackgroundModel {
 public:
  // `start_engine` starts the engine client without an argument.
  BackgroundModel(const Ports& ports, const Places& places, platform::Clock& clock,
                  std::function<void()> start_engine);

  // Looks once. A job is started when its time has come, no job runs, and the user has not switched
  // the schedule off. Returns the milliseconds until it looks again.
  std::uint32_t Step();

 private:
  bool ScheduleDisabled(std::string_view user) const;

  Ports ports_;
  Places places_;
  platform::Clock& clock_;
  std::function<void()> start_engine_;
};

}  // namespace lab
