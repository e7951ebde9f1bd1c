// Shows one window on the real screen until it is closed, for a person to look at.
//
//   forms_gallery FORM [DPI]      FORM: sample, message, note, long, welcome
#include <cstdio>
#include <cstdlib>
#include <string_view>

#include "forms/frm_general_message.h"
#include "forms/frm_welcome.h"
#include "forms/win32/host.h"
#include "tests/forms/sample_form.h"

namespace {

using forms::FormHost;
using forms::frmGeneralMessage;

void ShowSample(FormHost& host) {
  forms::testing::frmSample form(host);
  form.ShowModal(nullptr);
}

void ShowMessage(FormHost& host) {
  bool answer = false;
  frmGeneralMessage(host, answer)
      .ShowMessage("Are you sure you want to cancel the backup operation ?", "Yes", "No", true,
                   true, "question", nullptr);
}

void ShowNote(FormHost& host) {
  bool answer = false;
  frmGeneralMessage box(host, answer);
  box.ShowNote();
  box.ShowMessageTitled(
      "Continuous data protection (CDP)",
      "On enabling this option, files and folders selected for backup will be backed up in real "
      "time on detecting changes.",
      "Proceed", "Cancel", true, true, "question", nullptr);
}

void ShowLong(FormHost& host) {
  bool answer = false;
  frmGeneralMessage(host, answer)
      .ShowMessage(
          "The backup operation has been stopped as the same username has been used on another "
          "computer where the backup operation is in progress. To proceed further, register after "
          "the backup operation on the other computer is over",
          "OK", "Close", false, true, "warn", nullptr);
}

void ShowWelcome(FormHost& host) {
  forms::frmWelcome form(host, {[] {}, [] {}, [](std::string_view) {}});
  form.ShowModal(nullptr);
}

struct Entry {
  std::string_view name;
  void (*show)(FormHost& host);
};

constexpr Entry kEntries[] = {{"sample", ShowSample},
                              {"message", ShowMessage},
                              {"note", ShowNote},
                              {"long", ShowLong},
                              {"welcome", ShowWelcome}};

}  // namespace

int main(int count, char** arguments) {
  const std::string_view wanted = count > 1 ? arguments[1] : "";
  platform::win32::Events events;
  forms::win32::Host host(events, count > 2 ? std::atoi(arguments[2]) : 0);
  for (const Entry& entry : kEntries) {
    if (entry.name != wanted) continue;
    entry.show(host);
    return 0;
  }
  std::puts("usage: forms_gallery sample|message|note|long|welcome [DPI]");
  return 1;
}
