// The status window without a window: its controller on a machine in memory, with a recorder of
// what it shows and asks.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "status/status_controller.h"
#include "tests/status/idle_fixture.h"
#include "tests/status/status_machine.h"

namespace status {

class RecordedScreen : public StatusScreen {
 public:
  bool LargeFontMode() const override { return large_fonts; }
  void Render(const StatusView& view) override {
    views.push_back(view);
    if (when_rendered) when_rendered(view);
  }
  void SetShown(bool shown) override { events.push_back(shown ? "show" : "hide"); }
  void Unload() override { events.push_back("unload"); }

  bool large_fonts = false;
  std::vector<StatusView> views;
  std::vector<std::string> events;
  std::function<void(const StatusView&)> when_rendered;
};

class RecordedCommands : public shared::AgentCommands {
 public:
  void SetTrayIcon(std::string_view tip) override { calls.push_back("tip " + std::string(tip)); }
  std::string BuildTrayTip() override { return "built"; }
  void DisableStatusEntry() override { calls.push_back("disable status"); }
  void MnuOptionsClick() override {}
  void StopClick() override {
    calls.push_back("stop");
    if (when_stopped) when_stopped();
  }
  void OpenStatusWindow() override {}
  void OpenSessionLog() override { calls.push_back("log"); }
  void OpenActivityLog() override {}
  void OpenRecentLog() override {}
  void OpenManageJobs() override {}
  void OpenErrorReport() override {}

  std::vector<std::string> calls;
  std::function<void()> when_stopped;
};

class ToldMessages : public shared::Messages {
 public:
  bool ShowMessage(const shared::Message& message) override {
    questions.push_back(std::string(message.text) + " [" + std::string(message.first_caption) +
                        "|" + std::string(message.second_caption) + "]");
    if (when_asked) when_asked();
    return answer;
  }
  void Dismiss() override { ++dismissed; }

  bool answer = true;
  int dismissed = 0;
  std::vector<std::string> questions;
  std::function<void()> when_asked;
};

class ControllerFixture : public StatusMachine {
 public:
  ControllerFixture() {
    machine.files().Put(Path("scheduleData.txt"), "0\r\n" + std::string(kRecord) + "\r\n");
    SetQuota("1536", "4096");
    window.Load();
    machine.journal().Clear();
  }

  const StatusView& View() const { return window.View(); }

  ToldSchedule schedule;
  RecordedScreen screen;
  RecordedCommands commands;
  ToldMessages messages;
  StatusController window{machine.platform(), state, {schedule, commands, messages}, screen};
};

}  // namespace status
