#include "agent/icon_events.h"

#include <string>
#include <string_view>
#include <utility>

#include "agent/executable_names.h"
#include "agent/main_tick.h"
#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

constexpr std::string_view kSpanishSuffix = " &country=ES&lang=es";
constexpr std::string_view kDisplayNameGap = "{DisplayName}";

struct FailureText {
  std::int16_t job_state;
  std::uint32_t text;
  std::string_view literal;
};

constexpr FailureText kFailures[] = {
    {12, 973,
     "The backup operation has been stopped as the same username has been used on another computer "
     "where the backup operation is in progress. To proceed further, register after the backup "
     "operation on the other computer is over"},
    {13, 974,
     "The Continuous Data Backup operation has failed as the password was changed from the "
     "website. Login with the new Password and try again."},
    {15, 976,
     "The Continuous Backup Operation has failed to connect to the {DisplayName} server. The "
     "application will automatically try to enable the operation again after 24 hours."},
    {17, 977, "The Continuous Data Backup Operation has failed as the username was canceled."},
    {18, 1576, "Check the proxy setting and enable the Continuous Data Backup operation again."},
    {19, 978,
     "The {DisplayName} server is under maintenance. The application will automatically try to "
     "enable the Continuous Data Backup operation after 24 hours."},
    {20, 978,
     "The {DisplayName} server is under maintenance. The application will automatically try to "
     "enable the Continuous Data Backup operation after 24 hours."},
};

// Instead of the row of 15 when `CDP_RETRY` is "2".
constexpr std::int16_t kConnectionFailure = 15;
constexpr FailureText kRetryInTwoHours = {
    kConnectionFailure, 975,
    "The Continuous Backup Operation has failed to connect to the {DisplayName} server. The "
    "application will automatically try to enable the operation again after 2 hours."};

const FailureText* FailureFor(std::int16_t job_state) {
  for (const FailureText& row : kFailures) {
    if (row.job_state == job_state) return &row;
  }
  return nullptr;
}

}  // namespace

IconEvents::IconEvents(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
                       shared::Messages& messages, TrayMenu& menu, forms::Form& form)
    : machine_(machine),
      state_(state),
      texts_(texts),
      messages_(messages),
      menu_(menu),
      form_(form) {}

void IconEvents::DoubleClick() {
  // 1. The user has seen the end of the job.
  ForgetEndOfJob();
  // 2. An exceeded quota leads to the account's page and to nothing else.
  if (IsQuotaExceeded()) {
    OpenAccountPage();
    machine_.files.Remove(shared::InUserFolder(state_, shared::files::kQuotaExceeded));
    if (state_.JobState == kContinuousQuota) ResetContinuousCode();
    return;
  }
  // 3. Once more: another job may have ended meanwhile.
  ForgetEndOfJob();
  // 4. A failure of continuous backup is told.
  if (TellContinuousFailure()) return;
  // 5. The main program.
  BringMainProgramForward();
}

bool IconEvents::BeginRightClick() {
  return !std::exchange(menu_is_coming_, true);
}

void IconEvents::RightClick() {
  // 1. All items by their state.
  menu_.UpdateTrayMenu();
  // 2. and 3. The item of the quota.
  if (state_.ProductNumber == kPartnerEdition) {
    menu_.HideForPartner();
  } else {
    menu_.MarkQuotaExceeded(IsQuotaExceeded());
  }
  // 4. The job's items.
  menu_.EnableJobItems();
  // 5. The popup.
  menu_is_coming_ = false;
  SysTrayMouseEventHandler();
}

void IconEvents::SysTrayMouseEventHandler() {
  menu_.MarkDefaultItem();
  form_.PopUp(menu_.Popup());
}

void IconEvents::ForgetEndOfJob() {
  status::ProgressChannel channel(machine_, state_);
  const std::string dll_status = channel.ReadBackupStatus(status::kDllStatus);
  if (dll_status == "3" || dll_status == "4" || dll_status == "7") {
    channel.WriteBackupStatus(status::kDllStatus, status::kDllNothing);
  }
}

bool IconEvents::IsQuotaExceeded() {
  return !state_.CurrentUser.empty() &&
         shared::RegistryStore(machine_, state_).ReadConnectionStatus() != 0 &&
         status::ProgressChannel(machine_, state_).IsQuotaMarked();
}

// The page is opened twice, and a third time when no program was associated: browsers of old lost
// the first request while they started.
void IconEvents::OpenAccountPage() {
  std::string page = state_.links.account_upgrade + state_.CurrentUser;
  if (state_.Language == "Spanish") page += kSpanishSuffix;
  const auto open = [&] {
    return machine_.shell.Open(page, "", "", platform::WindowShow::kNormal);
  };
  if (open() == platform::kShellNoAssociation) open();
  open();
}

bool IconEvents::TellContinuousFailure() {
  const FailureText* failure = FailureFor(state_.JobState);
  if (failure == nullptr) return false;
  if (failure->job_state == kConnectionFailure) {
    const std::string retry =
        shared::ProfileStore(machine_, state_)
            .ReadProfileKey(shared::sections::kTolvex, shared::keys::kCdpRetry);
    if (retry == "2") failure = &kRetryInTwoHours;
  }
  ResetContinuousCode();
  const std::string text = texts_.GetText(failure->text);
  messages_.ShowMessage(
      {.text = text.empty()
                   ? shared::ReplaceAll(failure->literal, kDisplayNameGap, state_.DisplayName)
                   : text});
  return true;
}

void IconEvents::ResetContinuousCode() {
  shared::ProfileStore(machine_, state_).WriteUserNameProfile(shared::keys::kRtBackup, "0");
  state_.JobState = 0;
}

void IconEvents::BringMainProgramForward() {
  const std::string interactive =
      shared::ProfileStore(machine_, state_).ReadUserNameProfile(shared::keys::kInteractive);
  const std::string version = shared::RegistryStore(machine_, state_).ReadApplicationVersion();
  const platform::WindowId window = machine_.other_windows.Find(
      "", state_.ProductCaption + " " + version + " (" + interactive + ")");
  if (window == platform::kNoWindow) {
    machine_.shell.Open(shared::InInstallFolder(state_, state_.executables.main_program), "",
                        state_.InstallFolder, platform::WindowShow::kNormal);
    return;
  }
  if (machine_.other_windows.IsMinimised(window)) machine_.other_windows.Restore(window);
  machine_.other_windows.BringToFront(window);
}

}  // namespace agent
