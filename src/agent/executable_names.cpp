#include "agent/executable_names.h"

#include <string>
#include <string_view>

namespace agent {
namespace {

using shared::AgentState;
using shared::ExecutableNames;

struct ExecutableRow {
  std::string ExecutableNames::*field;
  std::string_view suffix;   // behind ExeGroup
  std::string_view partner;  // the partner edition's name
};

constexpr ExecutableRow kExecutables[] = {
    {&ExecutableNames::realtime_module, "RealTime.dll", "TVPROFRealTime.dll"},
    {&ExecutableNames::registry_converter, "Reg2ini.exe", "RegistryToIni.exe"},
    {&ExecutableNames::background, "Background.exe", "TVProfBackground.exe"},
    {&ExecutableNames::tray, "Tray.exe", "TVPMonitor.exe"},
    {&ExecutableNames::main_program, "Classic.exe", "TolvexProf.exe"},
    {&ExecutableNames::service, " Service.exe", "TVPService.exe"},
    {&ExecutableNames::set_size_helper, "BckupsetSize.exe", "TVProfBckupsetSize.exe"},
    {&ExecutableNames::context_menu, "ContextMenu.exe", "TVPROFContextMenu.exe"},
    {&ExecutableNames::view_module, "View.dll", ""},
    {&ExecutableNames::explorer_extension, "ContextMenuExt.dll", ""},
    {&ExecutableNames::drive_launcher, "LaunchDrive.exe", ""},
    {&ExecutableNames::service_batch_base, "", "TolvexProfessional"},
};

constexpr std::string_view kClientSuffix = "ClsClient.exe";
constexpr std::string_view kPartnerClient = "TolvexProfClient.exe";
constexpr std::string_view kMutexSuffix = "Trayexe";
constexpr std::string_view kPartnerMutex = "TVPMonitorexe";
constexpr std::string_view kPartnerPlugin = "TVPRDPlugin.exe";
constexpr std::string_view kPluginSuffix = "Plugin.exe";
constexpr std::string_view kOtherPlugin = "PartnerBackupPlugin.exe";

constexpr shared::TextEntry kFailure = {1625, " failure"};
constexpr shared::TextEntry kLogonFailure = {1633, " Logon failure"};

std::string PluginName(const AgentState& state) {
  if (state.ProductNumber == kPartnerEdition) return std::string(kPartnerPlugin);
  if (state.ProductName == "Sorvane") return state.ProductName + std::string(kPluginSuffix);
  return std::string(kOtherPlugin);
}

}  // namespace

void SetExecutableNames(AgentState& state, shared::Texts& texts) {
  const bool partner = state.ProductNumber == kPartnerEdition;
  const auto name = [&](std::string_view suffix, std::string_view fixed) {
    return partner ? std::string(fixed) : state.ExeGroup + std::string(suffix);
  };
  for (const ExecutableRow& row : kExecutables) {
    state.executables.*row.field = name(row.suffix, row.partner);
  }
  state.executables.web_plugin = PluginName(state);
  state.ClientProgram = name(kClientSuffix, kPartnerClient);
  state.MutexName = name(kMutexSuffix, kPartnerMutex);

  const bool own_name =
      state.ProductName == "Sorvane" || state.ProductName == "Tolvex Professional";
  state.DisplayName = own_name ? state.ProductName : state.ProductCaption;
  state.FailureCaption = state.ProductCaption + " " + texts.Get(kFailure);
  state.LogonFailureCaption = state.ProductCaption + " " + texts.Get(kLogonFailure);
}

}  // namespace agent
