// A person who opens the tray's menu again and again and takes each of its items once.
#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

#include "tests/agent/installed_agent.h"

namespace agent::testing {

// All items but the separators and MnuExit, which would end the story.
std::vector<std::string> EveryItem(InstalledAgent& agent);

// Opens the menu as a right click does and takes the item, if it may be chosen.
void TakeItem(InstalledAgent& agent, const std::string& item);

// Takes every item, one each `period` milliseconds, the first after `delay`, as soon as the agent
// pumps; `taken` hears of each before it is taken. Returns how many there are.
int TakeEveryItem(
    InstalledAgent& agent, std::uint32_t delay, std::uint32_t period,
    const std::function<void()>& taken = [] {});

}  // namespace agent::testing
