#include "agent/closed_libraries.h"

#include "shared/paths.h"

namespace agent {
namespace {

constexpr std::string_view kPostContinuousOrder = "PostCDPStatusMsg";
constexpr std::string_view kExplorerLibrary = "ShellHlpr.dll";
constexpr std::string_view kSendToExplorer = "SendMsgToApp";
constexpr std::int32_t kLogout = 1034;

}  // namespace

void PostCDPStatusMsg(platform::Platform& machine, const shared::AgentState& state,
                      ContinuousOrder order) {
  machine.libraries.Call(shared::InInstallFolder(state, state.executables.realtime_module),
                         kPostContinuousOrder, static_cast<std::int32_t>(order));
}

void SendLogoutToExplorer(platform::Platform& machine, const shared::AgentState& state) {
  machine.libraries.Call(shared::InInstallFolder(state, kExplorerLibrary), kSendToExplorer,
                         kLogout);
}

}  // namespace agent
