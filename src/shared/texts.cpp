#include "shared/texts.h"

#include "shared/file_names.h"
#include "shared/paths.h"

namespace shared {

Texts::Texts(platform::Platform& machine, const AgentState& state)
    : machine_(machine), state_(state) {}

std::string Texts::GetText(std::uint32_t id) {
  return machine_.libraries.ReadString(InInstallFolder(state_, files::kTextLibrary), id);
}

std::string Texts::Get(const TextEntry& entry) {
  std::string text = GetText(entry.id);
  if (text.empty()) text = entry.literal;
  return text;
}

}  // namespace shared
