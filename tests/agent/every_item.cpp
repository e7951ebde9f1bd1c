#include "tests/agent/every_item.h"

namespace agent::testing {

std::vector<std::string> EveryItem(InstalledAgent& agent) {
  std::vector<std::string> names;
  for (const auto& item : agent.agent().form().menu().Popup().Items()) {
    if (!item.Separator() && item.Name() != "MnuExit") names.push_back(item.Name());
  }
  return names;
}

void TakeItem(InstalledAgent& agent, const std::string& item) {
  agent.host.ChooseFromMenu(item);
  agent.RightClick();
}

int TakeEveryItem(InstalledAgent& agent, std::uint32_t delay, std::uint32_t period,
                  const std::function<void()>& taken) {
  std::uint64_t due = agent.machine.now() + delay;
  int count = 0;
  for (const std::string& name : EveryItem(agent)) {
    agent.machine.AtAgent(due, [&agent, name, taken] {
      taken();
      TakeItem(agent, name);
    });
    due += period;
    ++count;
  }
  return count;
}

}  // namespace agent::testing
