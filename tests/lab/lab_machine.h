// A memory machine with the engine's programs installed and a user logged in who has a job due.
#pragma once

#include <string>
#include <string_view>

#include "lab/engine/engine_model.h"
#include "lab/engine/login.h"
#include "lab/engine/memory_programs.h"
#include "lab/engine/program_names.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"

struct LabMachine {
  LabMachine() {
    machine.files().PutFolder(places.install_folder);
    machine.As("main program", [this] {
      lab::LogIn(ports(), machine.platform().registry, places, kUser);
      lab::PutDailySchedule(ports(), places, kUser, machine.LocalNow());
    });
    lab::InstallEnginePrograms(machine, places);
  }

  lab::Ports ports() { return lab::PortsOf(machine); }

  void StartEngine(std::string_view argument = {}) {
    machine.processes().Start(EnginePath(), argument);
  }
  bool EngineRuns() { return machine.processes().IsRunning(EnginePath()); }
  std::string EnginePath() { return places.InInstallFolder(lab::kEngineClient); }

  void Script(std::string_view section, std::string_view key, std::string_view value) {
    machine.files().PutIni(places.InInstallFolder("LabEngine.ini"), section, key, value);
  }
  std::string Status(std::string_view key) {
    return machine.files().IniValue(places.Profile(kUser), status::kBackupStatusSection, key);
  }
  void SetStatus(std::string_view key, std::string_view value) {
    machine.files().PutIni(places.Profile(kUser), status::kBackupStatusSection, key, value);
  }
  std::string Progress(std::string_view key,
                       std::string_view section = status::kBackupProgressSection) {
    return machine.files().IniValue(InUserFolder(status::kProgressFile), section, key);
  }
  std::string InUserFolder(std::string_view name) { return places.InUserFolder(kUser, name); }
  std::string FirstLine() { return lab::ScheduleFile(ports(), places, kUser).FirstLine(); }

  static constexpr std::string_view kUser = "anna";
  platform::memory::Machine machine;
  lab::Places places{.install_folder = "C:\\Sorvane"};
};
