// The localised texts: strings by number from the text library TVToolTips.dll of InstallFolder.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

// A text by number with the English literal that stands when the library gives nothing.
struct TextEntry {
  std::uint32_t id;
  std::string_view literal;
};

class Texts {
 public:
  Texts(platform::Platform& machine, const AgentState& state);

  // The library's string with that number; "" without the library or the string.
  std::string GetText(std::uint32_t id);

  // GetText, or the literal when it is empty.
  std::string Get(const TextEntry& entry);

 private:
  platform::Platform& machine_;
  const AgentState& state_;
};

}  // namespace shared
