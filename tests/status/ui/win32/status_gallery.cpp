// Shows the status window on the real screen, over the files of an installation folder, until it is
// closed. For a person to look at, and for tests that drive it from outside.
//
//   status_gallery FOLDER [DPI]
#include <cstdio>
#include <cstdlib>

#include "forms/frm_general_message.h"
#include "forms/win32/host.h"
#include "platform/win32/machine.h"
#include "schedule/schedule_texts.h"
#include "status/ui/frm_status.h"

namespace {

// What is asked of the tray goes to the console.
class PrintedCommands : public shared::AgentCommands {
 public:
  void SetTrayIcon(std::string_view tip) override { Print("tip", tip); }
  std::string BuildTrayTip() override { return "built"; }
  void DisableStatusEntry() override { Print("disable status", ""); }
  void MnuOptionsClick() override {}
  void StopClick() override { Print("stop", ""); }
  void OpenStatusWindow() override {}
  void OpenSessionLog() override { Print("log", ""); }
  void OpenActivityLog() override {}
  void OpenRecentLog() override {}
  void OpenManageJobs() override {}
  void OpenErrorReport() override {}

 private:
  static void Print(const char* what, std::string_view text) {
    std::printf("%s %.*s\n", what, static_cast<int>(text.size()), text.data());
    std::fflush(stdout);
  }
};

class Boxes : public shared::Messages {
 public:
  explicit Boxes(forms::FormHost& host) : host_(host) {}
  bool ShowMessage(const shared::Message& message) override {
    bool answer = false;
    return forms::frmGeneralMessage(host_, answer)
        .ShowMessage(message.text, message.first_caption, message.second_caption,
                     message.show_first, message.show_second, "question", nullptr);
  }

 private:
  forms::FormHost& host_;
};

}  // namespace

int main(int count, char** arguments) {
  if (count < 2) {
    std::puts("usage: status_gallery FOLDER [DPI]");
    return 1;
  }
  platform::win32::Machine machine;
  forms::win32::Host host(machine.events(), count > 2 ? std::atoi(arguments[2]) : 0);
  shared::AgentState state;
  state.ProductNumber = 2;
  state.ProductName = state.DisplayName = "Sorvane";
  state.ProductFolder = "SorvaneE";
  state.InstallFolder = arguments[1];
  state.ClientProgram = "SorvaneEClsClient.exe";
  schedule::ScheduleTexts schedule(machine.platform(), state);
  PrintedCommands commands;
  Boxes boxes(host);
  status::frmStatus window(host, machine.platform(), state, {schedule, commands, boxes});
  window.Show();
  machine.events().RunUntil([&window] { return !window.Loaded(); });
  return 0;
}
