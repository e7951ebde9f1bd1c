// Where everything lies. A folder or path here has no final backslash.
#pragma once

#include <string>
#include <string_view>

#include "shared/agent_state.h"

namespace shared {

// <InstallFolder>\<name>
std::string InInstallFolder(const AgentState& state, std::string_view name);

// <InstallFolder>\<ProductFolder>: what belongs to no user.
std::string CommonFolder(const AgentState& state);

// <InstallFolder>\<ProductFolder><CurrentUser>, the words joined without a separator. With nobody
// logged in this is CommonFolder, and callers rely on that.
std::string UserFolder(const AgentState& state);

// <UserFolder>\<name>
std::string InUserFolder(const AgentState& state, std::string_view name);

// <CommonFolder>\<name>
std::string InCommonFolder(const AgentState& state, std::string_view name);

// The user's profile: <UserFolder>\<ProductFolder>.ini, named after the product, never after the
// user.
std::string ProfileIni(const AgentState& state);

// The same file by its path from the current directory, which start-up makes InstallFolder.
std::string RelativeProfileIni(const AgentState& state);

// <InstallFolder>\UserName.ini, the profile of the machine.
std::string UserNameIni(const AgentState& state);

// <UserFolder>\<ProductFolder>Log: the session logs.
std::string LogFolder(const AgentState& state);

}  // namespace shared
