#include "agent/web_management.h"

#include <string>

#include "shared/keys.h"
#include "shared/process_list.h"
#include "shared/profile_store.h"
#include "shared/registry_store.h"
#include "shared/trace.h"

namespace agent {
namespace {

namespace keys = shared::keys;
namespace sections = shared::sections;

constexpr std::string_view kItem = "WebPlugin";
constexpr std::string_view kTitle = "Web Management";
constexpr std::string_view kOn = "1";
constexpr std::string_view kOff = "0";
constexpr int kAuthRounds = 600;
constexpr std::uint32_t kAuthPause = 100;    // milliseconds
constexpr std::uint32_t kErrorPause = 1000;  // milliseconds

constexpr std::string_view kLoginFirst = "To enable web management login to your Sorvane account.";
constexpr std::string_view kOnQuestion =
    "On enabling this option, you will be able to manage your Backup Set, its Schedule and View "
    "Logs remotely via Web.";
constexpr std::string_view kOffQuestion =
    "On disabling this feature, you will no longer be able to manage your Backup Set and Schedule "
    "via Web.";
constexpr std::uint32_t kLoginToDesktop = 979;

// How an error is told: whether the user is logged out by it, must log in again, and sees it in the
// tip.
struct WebError {
  std::int16_t value;
  bool logs_out;
  std::int16_t login_required;
  bool in_tip;
  bool offers_report;
  std::string_view text;
};

constexpr WebError kErrors[] = {
    {kWebPasswordChanged, true, 1, true, false,
     "Web Manager is disabled as your password has been changed. Login with your new password to "
     "continue."},
    {kWebAccountCancelled, true, 0, false, false,
     "Web Manager is disabled as your Sorvane account is canceled."},
    {kWebError, false, 0, false, true, "Web Manager is disabled as an error has occured"},
};

const WebError* FindError(std::int16_t value) {
  for (const WebError& row : kErrors) {
    if (row.value == value) return &row;
  }
  return nullptr;
}

}  // namespace

WebManagement::WebManagement(platform::Platform& machine, shared::AgentState& state,
                             shared::Texts& texts, shared::Messages& messages, TrayMenu& menu,
                             shared::AgentCommands& tray, forms::Form& form, forms::Timer& timer,
                             forms::frmWelcome& alert)
    : machine_(machine),
      state_(state),
      texts_(texts),
      messages_(messages),
      menu_(menu),
      tray_(tray),
      form_(form),
      timer_(timer),
      alert_(alert),
      transfer_(machine, state) {}

void WebManagement::WebPlugin_Click() {
  // A second switch inside the yield of the first would be shown as the first one's end.
  if (state_.WebSwitchUnderWay) return;
  // 1. Only somebody who is logged in has an account to manage.
  machine_.events.Pump();
  if (!HasUser()) {
    messages_.ShowMessage({.text = kLoginFirst});
    Uncheck();
    ClearError();
    WriteSwitch(kOff);
    tray_.MnuOptionsClick();
    return;
  }
  // 2. and 3.
  const bool was_on = menu_.Item(kItem).Checked();
  const bool proceed = messages_.ShowMessage({.text = was_on ? kOffQuestion : kOnQuestion,
                                              .first_caption = "Proceed",
                                              .second_caption = "Cancel",
                                              .picture = shared::MessagePicture::kQuestion,
                                              .title = kTitle});
  if (!proceed) return;
  state_.WebRetryCount = 0;
  if (was_on) {
    SwitchOff();
  } else {
    SwitchOn();
  }
}

void WebManagement::SwitchOn() {
  state_.WebSwitchUnderWay = true;
  Tell("Enabling WebPlugin");
  ClearError();
  form_.SetMousePointer(forms::Pointer::kBusy);
  WriteSwitch(kOn);
  StartTimer();
  menu_.Item(kItem).SetChecked(true);
  state_.WebSwitchUnderWay = false;
}

void WebManagement::SwitchOff() {
  state_.WebSwitchUnderWay = true;
  Tell("Disabling WebPlugin");
  WriteSwitch(kOff);
  ClearError();
  form_.SetMousePointer(forms::Pointer::kBusy);
  StartTimer();
  Uncheck();
  state_.WebSwitchUnderWay = false;
}

void WebManagement::StartTimer() {
  timer_.SetEnabled(true);
  machine_.events.Pump();
}

void WebManagement::WebMTimer() {
  // The yield of the switch can last longer than the timer: the item shows its new state only then.
  if (state_.WebSwitchUnderWay) return;
  timer_.SetEnabled(false);
  // 1. Who it is for.
  shared::ProfileStore profile(machine_, state_);
  profile.RefreshCurrentUser();
  std::string password = transfer_.Trf_ReadUserProfile(keys::kPassword);
  if (password.empty()) password = profile.ReadProfileKeyDecrypted(keys::kPlainPassword);
  form_.SetMousePointer(forms::Pointer::kDefault);
  if (menu_.Item(kItem).Checked()) {
    // 2. On.
    if (state_.CurrentUser.empty() || password.empty()) {
      const std::string literal = "Login to the " + state_.DisplayName +
                                  " desktop application to enable the 'Web Management' feature.";
      messages_.ShowMessage({.text = texts_.Get({kLoginToDesktop, literal})});
    } else {
      ClearError();
    }
    return;
  }
  // 3. Off.
  ClearError();
  Uncheck();
  shared::ProcessList(machine_, state_).KillPluginProcesses();
  state_.WebState = 0;
  WriteSwitch(kOff);
}

std::int16_t WebManagement::WaitWebManagerAuth() {
  shared::ProfileStore profile(machine_, state_);
  for (int round = 0; round < kAuthRounds; ++round) {
    if (round == 0) machine_.events.Pump();
    const std::int16_t answer = profile.ReadUserNameInt(sections::kRdPlugin, keys::kPluginAuth);
    if (answer == -1 || answer == 1 || answer == -2) return answer;
    machine_.clock.Sleep(kAuthPause);
  }
  return 0;
}

void WebManagement::HandleWebManagerError(std::int16_t error) {
  state_.WebErrorTold = error;
  // 1. Off at once.
  Uncheck();
  WriteSwitch(kOff);
  shared::ProcessList(machine_, state_).KillPluginProcesses();
  state_.WebState = 0;
  shared::Trace(machine_, state_)
      .WriteInformation(" Error occurred in web management " + std::to_string(error));
  machine_.clock.Sleep(kErrorPause);
  // 2. Nobody is there to be told.
  if (!HasUser()) {
    Uncheck();
    ClearError();
    WriteSwitch(kOff);
    return;
  }
  // 3. to 6.
  Alert(error);
}

void WebManagement::Alert(std::int16_t error) {
  const WebError* row = FindError(error);
  if (row == nullptr) return;
  alert_.LoginRequired = row->login_required;
  if (row->logs_out) LogOut();
  alert_.lblInstall.SetText(row->text);
  alert_.OfferErrorReport(row->offers_report);
  if (row->in_tip) tray_.SetTrayIcon(state_.ProductName + " - " + std::string(row->text));
  // A repeat stays silent.
  if (state_.WebRetryCount == 1) return;
  state_.WebRetryCount = 1;
  alert_.Show();
}

// Only the word: what runs for the user goes on.
void WebManagement::LogOut() {
  state_.LoggedOutMeanwhile = true;
  shared::RegistryStore(machine_, state_).WriteConnectionStatus(0);
}

void WebManagement::CheckForError() {
  const std::int16_t error = menu_.WebManagementError().value_or(0);
  // The plug-in's word stays where it is: dealt with again, it would log out whoever logs in.
  if (error == state_.WebErrorTold) return;
  state_.WebErrorTold = error;
  if (error != 0) HandleWebManagerError(error);
}

bool WebManagement::HasUser() {
  return !shared::ProfileStore(machine_, state_).ReadUserNameIni(keys::kDefaultUserName).empty();
}

void WebManagement::Uncheck() {
  menu_.Item(kItem).SetChecked(false);
}

void WebManagement::WriteSwitch(std::string_view value) {
  transfer_.Trf_WriteUserProfileDefault(sections::kWeb, keys::kWebPlugin, value);
}

void WebManagement::ClearError() {
  transfer_.Trf_WriteUserProfileDefault(sections::kOlwa, keys::kWebPluginError, "");
}

void WebManagement::Tell(const char* message) {
  shared::Trace(machine_, state_).WriteInformation(message);
}

}  // namespace agent
