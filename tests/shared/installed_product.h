// A product installed on the machine in memory, with anna logged in.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "platform/memory/machine.h"
#include "shared/agent_state.h"
#include "shared/character_shift.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"

namespace shared {

inline std::string Shifted(std::string_view text) {
  return ShiftCharacters(text, kProfileShift).text;
}

class InstalledProduct : public ::testing::Test {
 protected:
  static constexpr std::string_view kInstall = "C:\\Sorvane";
  static constexpr std::string_view kUserNameIniPath = "C:\\Sorvane\\UserName.ini";
  static constexpr std::string_view kAnnasFolder = "C:\\Sorvane\\SorvaneEanna\\";
  static constexpr std::string_view kAnnasProfile = "C:\\Sorvane\\SorvaneEanna\\SorvaneE.ini";
  static constexpr std::string_view kBensProfile = "C:\\Sorvane\\SorvaneEben\\SorvaneE.ini";

  InstalledProduct() {
    state_.ProductNumber = 2;
    state_.ProductName = "Sorvane";
    state_.ProductFolder = "SorvaneE";
    state_.ProductCaption = "Sorvane Classic";
    state_.DisplayName = "Sorvane";
    state_.ExeGroup = "SorvaneE";
    state_.ClientProgram = "SorvaneEClsClient.exe";
    state_.InstallFolder = kInstall;
    state_.CurrentUser = "anna";
    state_.PrimaryServerAddress = "192.0.2.10";
    state_.SecondaryServerAddress = "192.0.2.20";
    state_.DefaultPort = "11905";
    state_.ServerAddress = "192.0.2.99";
    state_.ServerPort = "4000";
    machine_.files().PutFolder("C:\\Sorvane\\SorvaneE");
    machine_.files().PutFolder("C:\\Sorvane\\SorvaneEanna");
    machine_.files().PutFolder("C:\\Sorvane\\SorvaneEben");
    machine_.files().PutIni(kUserNameIniPath, sections::kRegistry, keys::kDefaultUserName,
                            Shifted("anna"));
    machine_.files().PutIni(kUserNameIniPath, sections::kTolvex, keys::kInteractive, "anna");
    machine_.platform().files.ChangeDirectory(kInstall);
    machine_.journal().Clear();
  }

  static std::string InAnnasFolder(std::string_view name) {
    return std::string(kAnnasFolder).append(name);
  }
  static std::string InInstall(std::string_view name) {
    return std::string(kInstall).append("\\").append(name);
  }

  // A value as it stands in a file.
  std::string Ini(std::string_view file, std::string_view section, std::string_view key) {
    return machine_.files().IniValue(file, section, key);
  }

  std::string TraceOfAnna() {
    return machine_.files().Utf16Content(InAnnasFolder(files::kTrayTrace));
  }

  platform::Platform& platform() { return machine_.platform(); }

  platform::memory::Machine machine_;
  AgentState state_;
};

}  // namespace shared
