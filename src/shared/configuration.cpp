#include "shared/configuration.h"

#include "shared/character_shift.h"
#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/paths.h"
#include "shared/profile_store.h"

namespace shared {

std::string ReadConfigValue(platform::Platform& machine, AgentState& state,
                            std::string_view section, std::string_view key) {
  ProfileStore store(machine, state);
  const std::string stored =
      machine.profile_files.ReadText(InInstallFolder(state, files::kConfigurationIni), section,
                                     store.EncryptShareText(store.EncryptProfileText(key)));
  return std::string(StripNulls(Trim(ShiftCharacters(stored, -kConfigShift).text)));
}

std::string ScrambleConfigKey(std::string_view key) {
  return ShiftCharacters(ShiftCharacters(key, kProfileShift).text, kShareShift).text;
}

std::string ScrambleConfigValue(std::string_view value) {
  return ShiftCharacters(value, kConfigShift).text;
}

}  // namespace shared
