#include "shared/transfer.h"

#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/search_file.h"

namespace shared {

clsTransfer::clsTransfer(platform::Platform& machine, AgentState& state)
    : machine_(machine), state_(state), store_(machine, state) {}

void clsTransfer::Trf_WriteUserProfileDefault(std::string_view section, std::string_view key,
                                              std::string_view value) {
  machine_.profile_files.WriteText(ProfileIni(state_), section, key, value);
}

void clsTransfer::Trf_WriteUserProfile(std::string_view key, std::string_view value) {
  state_.CurrentUser = store_.ReadUserNameProfile(keys::kInteractive);
  WriteShifted(ProfileIni(state_), sections::kTolvex, key, value);
}

void clsTransfer::Trf_WriteUserProfileWithoutEncrypt(std::string_view key, std::string_view value) {
  Trf_WriteUserProfileDefault(sections::kTolvex, store_.EncryptProfileText(key), value);
}

void clsTransfer::Trf_WriteProxyProfile(std::string_view key, std::string_view value) {
  WriteShifted(RelativeProfileIni(state_), sections::kProxy, key, value);
}

void clsTransfer::Trf_WriteDateFormatProfile(std::string_view key, std::string_view value) {
  WriteShifted(RelativeProfileIni(state_), sections::kDateFormat, key, value);
}

std::string clsTransfer::Trf_ReadProxyProfile(std::string_view key) {
  return Decode(machine_.profile_files.ReadText(RelativeProfileIni(state_), sections::kProxy,
                                                store_.EncryptProfileText(key)));
}

void clsTransfer::Trf_CreateLocalDir(std::string_view path) {
  const auto make = [&](std::string_view folder) {
    if (!machine_.files.FolderExists(folder)) machine_.files.MakeFolder(folder);
  };
  for (std::size_t at = path.find('\\'); at != std::string_view::npos;
       at = path.find('\\', at + 1)) {
    make(path.substr(0, at));
  }
  make(path);
}

std::string clsTransfer::ReadSimpleAutofileProfile(std::string_view key) {
  return std::string(Trim(machine_.profile_files.ReadText(
      InUserFolder(state_, files::kSimpleAutoPathIni), sections::kAutoFilePaths, key)));
}

void clsTransfer::Trf_WriteUserProfileWithoutEncryptIdle(std::string_view key,
                                                         std::string_view value) {
  Trf_WriteUserProfileDefault(sections::kTolvex, key, value);
}

std::string clsTransfer::Trf_ReadUserProfileIdle(std::string_view key) {
  return store_.ReadProfileKey(sections::kTolvex, key);
}

std::string clsTransfer::Trf_ReadUserProfile(std::string_view key) {
  return Decode(store_.ReadProfileKey(sections::kTolvex, store_.EncryptProfileText(key)));
}

std::string clsTransfer::Trf_ReadDateFormatProfile(std::string_view key) {
  return Decode(
      machine_.profile_files.ReadText(RelativeProfileIni(state_), sections::kTolvex, key));
}

std::string clsTransfer::Trf_ReadUserNameProfile(std::string_view key) {
  return store_.ReadUserNameProfile(key);
}

void clsTransfer::Trf_WriteUserNameProfile(std::string_view key, std::string_view value) {
  store_.WriteUserNameProfile(key, value);
}

void clsTransfer::Trf_WriteSearchUserNameProfile(std::string_view key, std::string_view value) {
  // The backward direction of the share shift, for a writer too: the readers expect it.
  machine_.profile_files.WriteText(SettingsSearchFile(machine_.files, state_), sections::kTolvex,
                                   key, store_.DecryptShareText(value));
}

void clsTransfer::Trf_WriteSearchProfile(std::string_view key, std::string_view value) {
  machine_.profile_files.WriteText(BrandSearchFile(state_), sections::kSearchEnable, key, value);
}

std::string clsTransfer::Trf_ReadUserProfileWithoutDecrypt(std::string_view key) {
  return store_.ReadProfileKey(sections::kTolvex, key);
}

void clsTransfer::Trf_WriteUserNameProfileEmail(std::string_view key, std::string_view value) {
  Trf_WriteUserProfileDefault(sections::kTolvex, key, value);
}

std::string clsTransfer::Trf_ReadOutputValue(std::string_view section, std::string_view key) {
  return std::string(StripNulls(store_.ReadProfileKey(section, key)));
}

void clsTransfer::Trf_WritePluginUserProfile(std::string_view key, std::string_view value) {
  machine_.profile_files.WriteText(PluginSearchFile(machine_.files, state_), sections::kTolvex, key,
                                   value);
}

std::string clsTransfer::Trf_ReadPluginUserProfile(std::string_view key) {
  return machine_.profile_files.ReadText(PluginSearchFile(machine_.files, state_),
                                         sections::kTolvex, key);
}

std::string clsTransfer::Trf_ReadUserNamePCInfo(std::string_view key) {
  return machine_.profile_files.ReadText(UserNameIni(state_), sections::kPcInfo, key);
}

void clsTransfer::WriteShifted(const std::string& file, std::string_view section,
                               std::string_view key, std::string_view value) {
  machine_.profile_files.WriteText(file, section, store_.EncryptProfileText(key),
                                   store_.EncryptProfileText(value));
}

std::string clsTransfer::Decode(const std::string& stored) {
  if (stored.empty()) return stored;
  return store_.DecryptProfileText(stored);
}

}  // namespace shared
