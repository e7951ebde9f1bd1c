// Where the search file lies, which the agent shares with the explorer's view module.
#pragma once

#include <string>

#include "platform/files.h"
#include "shared/agent_state.h"

namespace shared {

// <InstallFolder>\<DisplayName>Search.ini
std::string BrandSearchFile(const AgentState& state);

// The same; in the partner edition (images\Config.txt is there) <InstallFolder>\Tolvex
// ProfessionalSearch.ini.
std::string SettingsSearchFile(platform::Files& files, const AgentState& state);

// The same; in the partner edition <InstallFolder>\<DisplayName>Tolvex ProfessionalSearch.ini.
std::string PluginSearchFile(platform::Files& files, const AgentState& state);

}  // namespace shared
