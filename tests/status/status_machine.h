// An installation in memory with one user, for the tests of the status room.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/machine.h"
#include "shared/agent_state.h"
#include "shared/character_shift.h"
#include "status/progress_channel.h"
#include "status/progress_keys.h"

namespace status {

inline constexpr std::string_view kInstall = "C:\\Sorvane";
inline constexpr std::string_view kUserIni = "C:\\Sorvane\\UserName.ini";

class StatusMachine {
 public:
  StatusMachine() {
    state.ProductNumber = 2;
    state.ProductName = "Sorvane";
    state.ProductFolder = "SorvaneE";
    state.DisplayName = "Sorvane";
    state.InstallFolder = kInstall;
    state.ClientProgram = "SorvaneEClsClient.exe";
    state.CurrentUser = "anna";
    machine.files().PutFolder(kInstall);
    LogIn("anna");
  }

  // The name as the main program stores it.
  void LogIn(std::string_view user) {
    machine.files().PutIni(kUserIni, "Registry", "Default User name", Shifted(user));
    machine.files().PutIni(kUserIni, "Tolvex", "Interactive", user);
    machine.files().PutFolder(Folder(user));
  }

  static std::string Shifted(std::string_view text) {
    return shared::ShiftCharacters(text, shared::kProfileShift).text;
  }
  static std::string Folder(std::string_view user = "anna") {
    return std::string(kInstall) + "\\SorvaneE" + std::string(user);
  }
  static std::string Path(std::string_view name, std::string_view user = "anna") {
    return Folder(user) + "\\" + std::string(name);
  }
  static std::string Profile() { return Path("SorvaneE.ini"); }
  static std::string Progress() { return Path("BackupProgress.ini"); }

  void Set(std::string_view key, std::string_view value) {
    machine.files().PutIni(Profile(), "BackupStatus", key, value);
  }
  void SetProgress(std::string_view section, std::string_view key, std::string_view value) {
    machine.files().PutIni(Progress(), section, key, value);
  }
  void SetShared(std::string_view key, std::string_view value) {
    machine.files().PutIni(kUserIni, "Registry", key, value);
  }
  void SetRtBackup(std::string_view value) {
    machine.files().PutIni(kUserIni, "Tolvex", "RTBackup", value);
  }
  void SetQuota(std::string_view used, std::string_view max) {
    machine.files().PutIni(Profile(), "QuotaStatus", "Used", used);
    machine.files().PutIni(Profile(), "QuotaStatus", "Max", max);
  }
  void SetScheduleDisable(std::string_view value) {
    machine.files().PutIni(Profile(), "Tolvex", Shifted("ScheduleDisable"), Shifted(value));
  }
  // A running transfer whose window is the engine's: `status` "0" hidden, "1" on the screen.
  void StartTransfer(std::string_view job, std::string_view status = "0") {
    const bool restore = job == kJobRestore;
    SetProgress(restore ? kRestoreProgressSection : kBackupProgressSection,
                restore ? kRestoreInProgress : kBackupInProgress, "1");
    SetProgress(kProgWndSection, kProgWndJob, job);
    SetProgress(kProgWndSection, kProgWndStatus, status);
    SetProgress(kProgWndSection, kProgWndValue, "66304");
  }

  std::string Read(std::string_view key) {
    return machine.files().IniValue(Profile(), "BackupStatus", key);
  }
  std::vector<std::string> Writes() {
    return machine.journal().Excerpt(std::vector<std::string_view>{"profile", "file"});
  }
  std::string TraceText() { return machine.files().Utf16Content(Path("TrayTraceFile.txt")); }

  platform::memory::Machine machine;
  shared::AgentState state;
};

}  // namespace status
