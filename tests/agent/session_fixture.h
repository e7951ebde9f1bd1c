// A user's session with the libraries that are told of its end, and what may run in it.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent::testing {

inline constexpr std::string_view kLogoutQuestion =
    "ask Are you sure you want to logout from Sorvane ?";

class SessionFixture : public ::testing::Test {
 protected:
  SessionFixture() {
    agent_.machine.libraries().PutFunction(agent_.Path("ShellHlpr.dll"), "SendMsgToApp",
                                           [](std::int32_t) { return 0; });
    agent_.machine.libraries().PutFunction(agent_.Path("SorvaneERealTime.dll"), "PostCDPStatusMsg",
                                           [](std::int32_t) { return 0; });
    agent_.SetShared(shared::keys::kRealTimeBackup, "1");
  }
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    Commands().SetTrayIcon("before");
    agent_.machine.journal().Clear();
  }
  platform::ProcessId StartProgram(std::string_view name) {
    return agent_.machine.processes().Start(agent_.Path(name));
  }
  void OpenWindow(std::string_view title) {
    platform::memory::ForeignWindow window;
    window.title = title;
    agent_.machine.windows().Add(window);
  }
  bool Runs(platform::ProcessId id) { return agent_.machine.processes().Find(id)->running; }
  void LogOutByMenu() {
    agent_.host.AnswerWith("Continue");
    Commands().MnuLoginClick();
  }
  TrayCommands& Commands() { return agent_.agent().form().commands(); }
  // A transfer with a backup and a restore client, the first from the context menu.
  void StartTransfer() {
    backup_ = StartProgram("SorvaneEClsClient.exe");
    restore_ = StartProgram("SorvaneEClsClient.exe");
    agent_.SetStatus(status::kStatus, "1");
    agent_.SetShifted(shared::keys::kClientPid, std::to_string(backup_));
    agent_.SetShifted(shared::keys::kClientPidRestore, std::to_string(restore_));
    agent_.PutUserFile(shared::files::kContextMenuRun);
  }

  InstalledAgent agent_;
  platform::ProcessId backup_ = 0;
  platform::ProcessId restore_ = 0;
};

}  // namespace agent::testing
