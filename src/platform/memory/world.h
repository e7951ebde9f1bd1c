// What the ports of one memory machine share.
#pragma once

#include <string>
#include <string_view>

#include "platform/memory/gate.h"
#include "platform/memory/journal.h"
#include "platform/memory/timeline.h"

namespace platform::memory {

struct World {
  Gate gate;
  Journal journal;
  Timeline timeline{gate, journal};

  // Adds a line of whoever acts now.
  void Note(std::string_view category, std::string text) {
    if (journal.kept()) {
      journal.Add(timeline.now(), timeline.acting(), category, std::move(text));
    }
  }
  // Adds a line of the test's hand.
  void NoteFate(std::string_view category, std::string text) {
    journal.Add(timeline.now(), kFate, category, std::move(text));
  }
};

}  // namespace platform::memory
