#include "agent/continuous_backup.h"

#include <string>

#include "agent/closed_libraries.h"
#include "agent/continuous_login.h"
#include "agent/interactive_clients.h"
#include "shared/convert.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/process_list.h"
#include "status/progress_keys.h"

namespace agent {
namespace {

namespace keys = shared::keys;

constexpr std::string_view kItem = "mnuCDP";
constexpr std::string_view kOn = "1";
constexpr std::string_view kOff = "0";
constexpr std::uint32_t kRoundPause = 100;  // milliseconds
constexpr int kFirstRounds = 20;
constexpr int kFurtherRounds = 50;
constexpr std::uint32_t kRestartPause = 1000;  // milliseconds

constexpr std::string_view kTitle = "Continuous data protection (CDP)";
constexpr std::string_view kLoginFirst =
    "To enable continuous backup login to your Sorvane account.";
constexpr std::string_view kOnQuestion =
    "On enabling this option, files and folders selected for backup will be backed up in real time "
    "on detecting changes.";
constexpr std::string_view kOffQuestion =
    "On disabling this option, your files and folders will be backed up only at the next scheduled "
    "time.";
constexpr shared::TextEntry kTransferRuns{
    1580, "A backup/restore job is in progress. Do you want to cancel it?"};
constexpr shared::TextEntry kDisablingTip{971, "Disabling Continuous Backup."};
constexpr shared::TextEntry kCaption{972, "Continuous Backup"};

}  // namespace

ContinuousBackup::ContinuousBackup(platform::Platform& machine, shared::AgentState& state,
                                   shared::Texts& texts, const SharedTexts& shared_texts,
                                   shared::Messages& messages, TrayMenu& menu,
                                   shared::AgentCommands& tray, forms::Form& form,
                                   forms::Timer& timer)
    : machine_(machine),
      state_(state),
      texts_(texts),
      shared_texts_(shared_texts),
      messages_(messages),
      menu_(menu),
      tray_(tray),
      form_(form),
      timer_(timer),
      profile_(machine, state),
      transfer_(machine, state),
      channel_(machine, state) {}

void ContinuousBackup::mnuCDP_Click() {
  // One switch at a time: the end of the first would stop the timer of a second.
  if (state_.ContinuousSwitchUnderWay) return;
  // 1. Only somebody who is logged in has files to back up.
  if (profile_.ReadUserNameIni(keys::kDefaultUserName).empty()) {
    messages_.ShowMessage({.text = kLoginFirst});
    menu_.Item(kItem).SetChecked(false);
    tray_.MnuOptionsClick();
    return;
  }
  // 2.
  const bool was_on = menu_.Item(kItem).Checked();
  const bool proceed = messages_.ShowMessage({.text = was_on ? kOffQuestion : kOnQuestion,
                                              .first_caption = "Proceed",
                                              .second_caption = "Cancel",
                                              .picture = shared::MessagePicture::kQuestion,
                                              .title = kTitle,
                                              .file_size_note = true});
  // 3. An answer that comes after another switch would do the opposite of what was asked.
  if (!proceed || menu_.Item(kItem).Checked() != was_on) return;
  form_.SetMousePointer(forms::Pointer::kBusy);
  timer_.SetEnabled(true);
}

void ContinuousBackup::CDPTimer() {
  // The waits below pump, and the timer runs on until the end.
  if (state_.ContinuousSwitchUnderWay) return;
  state_.ContinuousSwitchUnderWay = true;
  if (menu_.Item(kItem).Checked()) {
    Disable();
  } else {
    Enable();
  }
  form_.SetMousePointer(forms::Pointer::kDefault);
  timer_.SetEnabled(false);
  state_.ContinuousSwitchUnderWay = false;
}

void ContinuousBackup::Enable() {
  // The user and the engine are waited for: a logout may come meanwhile.
  state_.LoggedOutMeanwhile = false;
  // 1. The engine runs one thing at a time.
  if (!GiveWayToSwitch()) return;
  // 2.
  tray_.SetTrayIcon(shared_texts_.continuous_enabling);
  WriteChoice(kOn);
  form_.SetMousePointer(forms::Pointer::kBusy);
  // 3.
  const bool good = ContinuousLogin(machine_, state_, form_).ValidateContinuousLogin();
  if (!good || state_.LoggedOutMeanwhile) {
    WriteChoice(kOff);
    return;
  }
  // 4. The next popup checks the item by the choice.
  menu_.Item(kItem).SetCaption(texts_.Get(kCaption));
  menu_.Item(kItem).SetChecked(false);
  tray_.SetTrayIcon(tray_.BuildTrayTip());
  profile_.WriteUserNameIni(keys::kCurrentUser, state_.CurrentUser);
  WriteChoice(kOn);
  profile_.WriteUserNameProfile(keys::kRtPausedBySchedule, kOff);
  PostCDPStatusMsg(machine_, state_, ContinuousOrder::kStart);
}

void ContinuousBackup::Disable() {
  // 1.
  tray_.SetTrayIcon(texts_.Get(kDisablingTip));
  form_.SetMousePointer(forms::Pointer::kBusy);
  menu_.Item(kItem).SetChecked(false);
  // 2.
  if (ModuleRuns()) RequestStop();
  // 3.
  WriteChoice(kOff);
  // 4.
  WaitRounds(kFirstRounds);
  // 5.
  if (ModuleRuns()) {
    RequestStop();
    WaitRounds(kFurtherRounds);
  }
  // 6.
  WriteChoice(kOff);
  profile_.WriteUserNameProfile(keys::kRtPausedBySchedule, kOff);
  PostCDPStatusMsg(machine_, state_, ContinuousOrder::kEnd);
  profile_.WriteUserNameProfile(keys::kRtBackup, kOff);
}

// False when a transfer runs and the user keeps it, or has logged out over the question.
bool ContinuousBackup::GiveWayToSwitch() {
  const std::string status = channel_.ReadBackupStatus(status::kStatus);
  if (status != "1" && status != "2") return true;
  const bool give_way = messages_.ShowMessage({.text = texts_.Get(kTransferRuns),
                                               .first_caption = "Yes",
                                               .second_caption = "No",
                                               .picture = shared::MessagePicture::kQuestion});
  if (!give_way || state_.LoggedOutMeanwhile) return false;
  EndTransfer();
  return true;
}

void ContinuousBackup::EndTransfer() {
  EndClientProcess(machine_, state_, transfer_.Trf_ReadUserProfile(keys::kClientPid));
  EndClientProcess(machine_, state_, transfer_.Trf_ReadUserProfile(keys::kClientPidRestore));
  RequestStop();
  shared::ProcessList(machine_, state_)
      .IsProcessRunning(state_.executables.context_menu, shared::WhenFound::kKill);
  machine_.files.Remove(shared::InUserFolder(state_, shared::files::kContextMenuRun));
  channel_.WriteBackupStatus(status::kStatus, status::kStatusStopRequested);
  channel_.WriteProgressValue(status::kProgressRequestSection, status::kProgressCancel, "1");
}

void ContinuousBackup::RequestStop() {
  channel_.WriteBackupStatus(status::kStatus, status::kStatusStopRequested);
  channel_.WriteBackupStatus(status::kDllStatus, status::kDllStopped);
}

// The user's choice, for the other programs and for this user.
void ContinuousBackup::WriteChoice(std::string_view value) {
  profile_.WriteUserNameProfile(keys::kRealTimeBackup, value);
  transfer_.Trf_WriteUserNameProfileEmail(keys::kRealTimeBackup, value);
}

void ContinuousBackup::WaitRounds(int rounds) {
  for (int round = 0; round < rounds && !machine_.events.HasQuit(); ++round) {
    machine_.clock.Sleep(kRoundPause);
    machine_.events.Pump();
  }
}

bool ContinuousBackup::ModuleRuns() {
  return profile_.ReadUserNameProfile(keys::kRtBackup) == kOn;
}

void ContinuousBackup::RestartRealtimeSystem() {
  const auto jobs = shared::ToInt16(profile_.ReadUserNameProfile(keys::kRtPausedBySchedule));
  const int left = jobs.value_or(0) - 1;
  profile_.WriteUserNameProfile(keys::kRtPausedBySchedule, std::to_string(left));
  if (left != 0) return;
  PostCDPStatusMsg(machine_, state_, ContinuousOrder::kStart);
  machine_.clock.Sleep(kRestartPause);
}

}  // namespace agent
