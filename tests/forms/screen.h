// A screen in memory: a machine, and windows that leave their lines in its journal.
#pragma once

#include <string>
#include <vector>

#include "forms/memory/host.h"
#include "platform/memory/machine.h"

namespace forms::testing {

struct MemoryScreen {
  platform::memory::Machine machine;
  memory::Host host{machine.platform().events, [this](const std::string& line) {
                      machine.journal().Add(machine.now(), "agent", "form", line);
                    }};

  std::vector<std::string> Journal() const {
    return const_cast<platform::memory::Machine&>(machine).journal().Excerpt("form");
  }
};

}  // namespace forms::testing
