#include "shared/search_file.h"

#include "shared/file_names.h"
#include "shared/paths.h"

namespace shared {
namespace {

bool IsPartnerEdition(platform::Files& files, const AgentState& state) {
  return files.Exists(InInstallFolder(state, files::kPartnerConfig));
}

}  // namespace

std::string BrandSearchFile(const AgentState& state) {
  return InInstallFolder(state, state.DisplayName).append(files::kSearchSuffix);
}

std::string SettingsSearchFile(platform::Files& files, const AgentState& state) {
  if (!IsPartnerEdition(files, state)) return BrandSearchFile(state);
  return InInstallFolder(state, files::kPartnerSearchIni);
}

std::string PluginSearchFile(platform::Files& files, const AgentState& state) {
  if (!IsPartnerEdition(files, state)) return BrandSearchFile(state);
  return InInstallFolder(state, state.DisplayName).append(files::kPartnerSearchIni);
}

}  // namespace shared
