// What the status window can be in, for tests that hold everywhere.
#pragma once

#include <string_view>

#include "tests/status/status_machine.h"

namespace status {

struct State {
  std::string_view name;
  void (*seed)(StatusMachine&);
};

inline constexpr State kStates[] = {
    {"at rest", [](StatusMachine&) {}},
    {"logged out", [](StatusMachine& m) { m.LogIn(""); }},
    {"quota exceeded", [](StatusMachine& m) { m.SetQuota("5000", "4096"); }},
    {"quota unknown", [](StatusMachine& m) { m.SetQuota("", ""); }},
    {"no schedule", [](StatusMachine& m) { m.machine.files().Delete(m.Path("scheduleData.txt")); }},
    {"schedule disabled", [](StatusMachine& m) { m.SetScheduleDisable("TRUE"); }},
    {"scheduled job",
     [](StatusMachine& m) { m.machine.files().Put(m.Path("scheduleData.txt"), "1\r\n"); }},
    {"continuous backup",
     [](StatusMachine& m) {
       m.SetRtBackup("1");
       m.SetProgress("BackupProgressInfo", "BackupInProgress", "1");
     }},
    {"backup", [](StatusMachine& m) { m.StartTransfer("1"); }},
    {"scheduled backup", [](StatusMachine& m) { m.StartTransfer("2"); }},
    {"restore", [](StatusMachine& m) { m.StartTransfer("3"); }},
    {"paused",
     [](StatusMachine& m) {
       m.StartTransfer("2");
       m.Set("Paused", "1");
     }},
    {"auto-pause",
     [](StatusMachine& m) {
       m.StartTransfer("2");
       m.SetShared("BackupIdle", "1");
       m.SetShared("BackupIdleState", "1");
     }},
};

}  // namespace status
