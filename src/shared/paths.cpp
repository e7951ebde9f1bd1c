#include "shared/paths.h"

#include <initializer_list>

#include "shared/file_names.h"

namespace shared {
namespace {

std::string Join(std::initializer_list<std::string_view> pieces) {
  std::string path;
  for (const std::string_view piece : pieces) path += piece;
  return path;
}

}  // namespace

std::string InInstallFolder(const AgentState& state, std::string_view name) {
  return Join({state.InstallFolder, "\\", name});
}

std::string CommonFolder(const AgentState& state) {
  return InInstallFolder(state, state.ProductFolder);
}

std::string UserFolder(const AgentState& state) {
  return CommonFolder(state) + state.CurrentUser;
}

std::string InUserFolder(const AgentState& state, std::string_view name) {
  return Join({UserFolder(state), "\\", name});
}

std::string InCommonFolder(const AgentState& state, std::string_view name) {
  return Join({CommonFolder(state), "\\", name});
}

std::string ProfileIni(const AgentState& state) {
  return InUserFolder(state, state.ProductFolder + ".ini");
}

std::string RelativeProfileIni(const AgentState& state) {
  return Join({state.ProductFolder, state.CurrentUser, "\\", state.ProductFolder, ".ini"});
}

std::string UserNameIni(const AgentState& state) {
  return InInstallFolder(state, files::kUserNameIni);
}

std::string LogFolder(const AgentState& state) {
  return InUserFolder(state, state.ProductFolder + "Log");
}

}  // namespace shared
