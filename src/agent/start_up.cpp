#include "agent/start_up.h"

#include <string>

#include "agent/executable_names.h"
#include "agent/partner_edition.h"
#include "agent/product_config.h"
#include "schedule/default_schedule.h"
#include "schedule/locale_formats.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/profile_store.h"
#include "shared/registry_store.h"
#include "shared/trace.h"
#include "shared/transfer.h"

namespace agent {
namespace {

namespace keys = shared::keys;
using shared::files::kTrayTrace;

constexpr std::uint32_t kSettlePause = 1000;  // milliseconds
constexpr std::uint32_t kEnginePause = 1000;  // time for the engine after a logon

}  // namespace

StartUp::StartUp(platform::Platform& machine, shared::AgentState& state, shared::Texts& texts,
                 SharedTexts& shared_texts, frmTVWinService& form)
    : machine_(machine), state_(state), texts_(texts), shared_texts_(shared_texts), form_(form) {}

bool StartUp::Main() {
  shared::Trace trace(machine_, state_);
  shared::ProfileStore profile(machine_, state_);
  shared::RegistryStore registry(machine_, state_);
  state_.InstallFolder = machine_.processes.ExecutableFolder();

  // 1. Nothing waits for a wake-up.
  state_.CancelWakeWait = false;
  // 2. The product.
  if (!LoadProductConfig(machine_, state_)) return false;
  SetExecutableNames(state_, texts_);
  // 3. Web management and quota.
  state_.WebRetryCount = 0;
  state_.QuotaCheck = 0;
  // 4. The screen cannot be asked for its scale, which stays 0: no screen has small fonts.
  constexpr double kScale = 0;
  state_.LargeFonts = kScale != 1.0;
  // 5. Texts, and how the user writes dates.
  LoadTexts(texts_, shared_texts_);
  schedule::LoadLocaleFormats(machine_.locale, state_);
  state_.ServiceStartTries = 0;
  // 6. and 7. The partner edition.
  ApplyPartnerEdition(machine_.files, state_);
  NameBlankProduct(state_);
  SetExecutableNames(state_, texts_);
  // 8. and 9. The folder of nobody begins empty.
  RenewCommonFolder();
  // 10. No look follows: the line stands alone.
  trace.WriteInformation("checking if " + state_.executables.background + " is running");
  // 11. The default files.
  schedule::ScheduleCreateFiles(machine_, state_).Form_Load();
  trace.WriteInformation("After creating default files...");
  // 12. The user.
  trace.WriteInformation("Default user: " + profile.RefreshCurrentUser());
  // 13. and 14. Left-overs, and the trace of this start.
  machine_.files.Remove(shared::InUserFolder(state_, shared::files::kTempRecordValues));
  CarryTraceOn();
  // 15. The current directory.
  EnterInstallFolder();
  // 16. and 17. A second agent ends here. It has emptied the folder of nobody by then: what lies
  // there is expendable.
  const std::uint32_t held = machine_.processes.HoldMutex(state_.MutexName);
  trace.WriteInformation("after create appmutex");
  if (held == platform::kErrorAlreadyExists) return false;
  // 18. The engine's mode for open files.
  if (registry.ReadOpenFileMode() == "2") registry.WriteOpenFileMode(0);
  // 19. The main form.
  state_.BlinkPhase = false;
  form_.Load();
  form_.MinimiseToTray();
  // 20. The user once more.
  profile.RefreshCurrentUser();
  machine_.clock.Sleep(kSettlePause);
  // 21. What the last login means.
  if (!state_.CurrentUser.empty()) DecideLogin();
  // 22. With or without a user.
  registry.WriteAppValue("TRUE", shared::registry::kFirstTimeUser);
  return true;
}

void StartUp::RenewCommonFolder() {
  const std::string folder = shared::CommonFolder(state_);
  machine_.files.MakeFolder(folder);
  machine_.files.Remove(shared::InCommonFolder(state_, kTrayTrace));
  shared::Trace(machine_, state_).WriteInformation("Started Tray...");
  machine_.files.RemoveFolder(folder);
  machine_.files.MakeFolder(folder);
}

// So that a first login has the trace of the start before it.
void StartUp::CarryTraceOn() {
  const std::string users = shared::InUserFolder(state_, kTrayTrace);
  const std::string common = shared::InCommonFolder(state_, kTrayTrace);
  if (!machine_.files.Exists(users) && machine_.files.Exists(common)) {
    machine_.files.Copy(common, users);
  }
}

void StartUp::EnterInstallFolder() {
  shared::Trace trace(machine_, state_);
  trace.WriteInformation("Default user" + state_.CurrentUser);
  trace.WriteInformation("before Setappdir");
  const std::uint32_t error = machine_.files.ChangeDirectory(state_.InstallFolder);
  if (error != 0) {
    machine_.shell.ShowStopBox("Error initialising setting monitor directory \nReason: " +
                                   machine_.locale.SystemErrorText(error),
                               state_.FailureCaption);
  }
  trace.WriteInformation("after setappdir");
}

void StartUp::DecideLogin() {
  shared::Trace trace(machine_, state_);
  shared::ProfileStore profile(machine_, state_);
  shared::RegistryStore registry(machine_, state_);
  shared::clsTransfer transfer(machine_, state_);
  // 1. For people who read the trace.
  const std::string reconnect = transfer.Trf_ReadUserProfile(keys::kAutoReconnect);
  trace.WriteInformation("Username : " + state_.CurrentUser);
  trace.WriteInformation("ReConnect =" + reconnect);
  // 2. and 3. A moment for the engine; the words promise more than the pause is.
  const std::int16_t status = registry.ReadConnectionStatus();
  if (status == 1 || status == 2) {
    trace.WriteInformation("Connection Parameter = 1/2, so waiting for 20 secs");
    machine_.clock.Sleep(kEnginePause);
  }
  // 4. The value may have changed meanwhile.
  trace.WriteInformation("Connection Parameters =" +
                         std::to_string(registry.ReadConnectionStatus()));
  // 5. The installer has not finished its first run.
  if (registry.ReadAppValue(shared::registry::kInstalledFirst).empty()) return;
  // 6. Logged in as before, or logged out.
  if (transfer.Trf_ReadUserProfile(keys::kAuthenticated) == "1") {
    profile.WriteUserNameIni(keys::kCurrentUser, profile.ReadUserNameIni(keys::kDefaultUserName));
  } else {
    registry.WriteConnectionStatus(0);
  }
}

}  // namespace agent
