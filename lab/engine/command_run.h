// One numbered command to the engine client, answered from the lab's script.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>

#include "lab/engine/engine_script.h"
#include "lab/engine/places.h"

namespace lab {

// The command's number in an argument such as " 23< >" or " 20"; nothing for any other text.
std::optional<int> CommandNumber(std::string_view argument);

class CommandRun {
 public:
  CommandRun(const Ports& ports, const Places& places, int command);

  // Does the next piece of work. Returns the milliseconds until the step after it, or nothing when
  // the engine ends.
  std::optional<std::uint32_t> Step();

  bool crashed() const { return answer_.crash; }

 private:
  void Answer();
  void WriteRedirection();

  Ports ports_;
  Places places_;
  int command_;
  CommandAnswer answer_;
  bool started_ = false;
};

}  // namespace lab
