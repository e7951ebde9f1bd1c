// The status window on a machine and a screen in memory, with a recorder of what is asked of
// others.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "forms/memory/host.h"
#include "status/ui/frm_status.h"
#include "tests/status/controller_fixture.h"

namespace status {

struct FrmStatusFixture : StatusMachine {
  FrmStatusFixture() {
    machine.files().Put(Path("scheduleData.txt"), "0\r\n" + std::string(kRecord) + "\r\n");
    SetQuota("1536", "4096");
  }

  std::string Text(std::string_view control) { return host.Read("frmStatus", control); }
  forms::Control& At(std::string_view control) { return host.At("frmStatus", control); }
  bool Shown(std::string_view control) { return At(control).Shown(); }
  void Click(std::string_view control) { host.Click("frmStatus", control); }
  void ShowBackup() {
    StartTransfer("1");
    SetProgress("BackupProgressInfo", "FileName", "C:\\Users\\anna\\Pictures\\summer.jpg");
    SetProgress("BackupProgressInfo", "Total Progress", "12 MB of 40 MB");
    SetProgress("BackupProgressInfo", "Percentage", "57%");
    SetProgress("BackupProgressInfo", "Backedup Files", "7");
    window.Show();
  }

  // Where the Tab key stops, from the top.
  std::vector<std::string> Stops() const {
    std::vector<std::string> names;
    const forms::Control* const first = window.NextStop(nullptr, false);
    for (const forms::Control* stop = first; stop;) {
      names.push_back(stop->Name());
      stop = window.NextStop(stop, false);
      if (stop == first) break;
    }
    return names;
  }

  ToldSchedule schedule;
  RecordedCommands commands;
  ToldMessages messages;
  std::vector<std::string> seen;
  forms::memory::Host host{machine.platform().events,
                           [this](const std::string& line) { seen.push_back(line); }};
  frmStatus window{host, machine.platform(), state, {schedule, commands, messages}};
};

}  // namespace status
