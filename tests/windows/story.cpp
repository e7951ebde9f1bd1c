#include "tests/windows/story.h"

#include <algorithm>

#include "lab/engine/login.h"
#include "lab/engine/moments.h"
#include "lab/engine/program_names.h"
#include "lab/screen/mouse.h"
#include "shared/file_names.h"
#include "tests/windows/lab_service.h"

namespace {

constexpr char kMenuClass[] = "#32768";
constexpr std::string_view kMenuItems[] = {"Status",
                                           "Schedule Backup",
                                           "Explorer",
                                           "Activity Log",
                                           "Web Management",
                                           "Continuous Backup",
                                           "Stop Scheduled Backup",
                                           "Disable Automatic Backup",
                                           "Manage all the Scheduled Jobs",
                                           "Backup Now",
                                           "Check for Updates",
                                           "Send Error Report",
                                           "Help",
                                           "Exit"};

struct Part {
  std::string_view built;
  std::string_view name;
};
constexpr Part kParts[] = {{"SorvaneERealTime.dll", "SorvaneERealTime.dll"},
                           {"ShellHlpr.dll", "ShellHlpr.dll"},
                           {"lab_explorer.exe", "LabExplorer.exe"},
                           {"lab_web_plugin.exe", "SorvanePlugin.exe"},
                           {"lab_recorder.exe", "SorvaneELaunchDrive.exe"}};
constexpr std::string_view kBatchVerbs[] = {"Install", "Start", "Stop"};

POINT IconPlace() {
  const auto icons = lab::TrayIcons();
  return icons.empty() ? POINT{} : lab::MiddleOf(icons.front().place);
}

bool MenuIsShown() {
  const HWND menu = FindWindowA(kMenuClass, nullptr);
  return menu && IsWindowVisible(menu);
}

// The menu takes keys once its program is in front.
bool MenuHasTheKeyboard() {
  return MenuIsShown() && lab::ProgramOf(GetForegroundWindow()) == kAgentProgram;
}

// False when no menu comes up, or it does not go with the choice.
bool ChooseByKeys(std::string_view item) {
  // A menu that has lost the keyboard is given up.
  const auto closed = [] { return !MenuIsShown(); };
  if (MenuIsShown() && !ActUntil([] { lab::PressKey(VK_ESCAPE); }, closed)) return false;
  if (!ActUntil(
          [] {
            if (!MenuIsShown()) lab::ClickMouse(IconPlace(), lab::MouseButton::kRight);
          },
          MenuHasTheKeyboard)) {
    return false;
  }
  const auto found = std::find(std::begin(kMenuItems), std::end(kMenuItems), item);
  for (auto at = std::begin(kMenuItems); at <= found; ++at) lab::PressKey(VK_DOWN);
  lab::PressKey(VK_RETURN);
  return WaitUntil(closed, kBeforeActingAgain);
}

int CountOf(std::string_view words, std::string_view text) {
  int count = 0;
  for (std::size_t at = 0; (at = text.find(words, at)) != std::string_view::npos;
       at += words.size()) {
    ++count;
  }
  return count;
}

}  // namespace

Story::Story() {
  RemoveLeftService();
  for (const Part& part : kParts) {
    CopyFileA(InBuild(part.built).c_str(), places().InInstallFolder(part.name).c_str(), FALSE);
  }
  // Without the service, a batch file only notes its call.
  for (const std::string_view verb : kBatchVerbs) {
    const std::string name = std::string(verb) + "SorvaneEService.bat";
    machine().files.Replace(places().InInstallFolder(name),
                            "@echo off\r\necho %~nx0 [%*]>> \"%~dp0LabCalls.txt\"\r\n");
  }
  LogIn();
}

void Story::PlanJobForLater() {
  lab::PutDailySchedule(ports(), places(), kUser, lab::AddMinutes(machine().clock.Now(), 60));
}

bool Story::StartAgentWithJob(int files, int interval) {
  Script("Job", "Files", std::to_string(files));
  Script("Job", "Interval", std::to_string(interval));
  PlanJobDueNow();
  return StartAgent() && WaitUntil([this] { return !Progress(status::kFileCount).empty(); });
}

void Story::Script(std::string_view section, std::string_view key, std::string_view value) {
  machine().profile_files.WriteText(places().InInstallFolder("LabEngine.ini"), section, key, value);
}

int Story::Calls(std::string_view words) {
  return CountOf(
      words, machine().files.Read(places().InInstallFolder("LabCalls.txt"), 1 << 20).value_or(""));
}

int Story::Traced(std::string_view text) {
  std::string trace =
      machine().files.Read(InUserFolder(shared::files::kTrayTrace), 1 << 20).value_or("");
  std::erase(trace, '\0');  // two bytes a character
  return CountOf(text, trace);
}

bool Story::Kill(std::string_view program) {
  const std::string path = places().InInstallFolder(program);
  platform::ProcessId id = 0;
  machine().processes.WalkModulePaths(1024, [&](const platform::ProcessEntry& process) {
    if (lstrcmpiA(process.name.c_str(), path.c_str()) == 0) id = process.id;
    return id == 0;
  });
  return id != 0 && machine().processes.Terminate(id, PROCESS_TERMINATE) == 0 &&
         WaitUntil([&] { return !IsRunning(program); });
}

std::string Story::Shared(std::string_view key, std::string_view section) {
  return machine().profile_files.ReadText(places().UserNameIni(), section, key);
}

void Story::SetShared(std::string_view key, std::string_view value, std::string_view section) {
  machine().profile_files.WriteText(places().UserNameIni(), section, key, value);
}

std::string Story::Setting(std::string_view shifted_key) {
  return lab::Readable(PlainSetting(lab::Stored(shifted_key)));
}

void Story::SetSetting(std::string_view shifted_key, std::string_view value) {
  SetPlainSetting(lab::Stored(shifted_key), lab::Stored(value));
}

std::string Story::PlainSetting(std::string_view key, std::string_view section) {
  return machine().profile_files.ReadText(places().Profile(kUser), section, key);
}

void Story::SetPlainSetting(std::string_view key, std::string_view value,
                            std::string_view section) {
  machine().profile_files.WriteText(places().Profile(kUser), section, key, value);
}

std::string Story::Progress(std::string_view key, std::string_view section) {
  return machine().profile_files.ReadText(InUserFolder(status::kProgressFile), section, key);
}

int Story::ConnectionStatus() {
  const std::string key = std::string(shared::registry::kRoot) + places().product_folder +
                          std::string(shared::registry::kConnectionParameters);
  const auto result = machine().registry.Read(platform::Hive::kCurrentUser, key,
                                              shared::registry::kConnectionStatus, 4,
                                              platform::RegistryAccess::kRead);
  return result.error == platform::kRegistrySuccess ? static_cast<int>(result.value.number) : -1;
}

bool Story::WaitForTick() {
  SetStatus(status::kDllStatus, "2");
  return WaitUntil([this] { return Status(status::kDllStatus) == "0"; });
}

bool Story::WaitForSlowTick() {
  const auto runs = [this] { return IsRunning(lab::kBackgroundProcess); };
  return WaitUntil(runs) && Kill(lab::kBackgroundProcess) && WaitUntil(runs);
}

bool Story::DoubleClickIcon(const std::function<bool()>& done) {
  return ActUntil([] { lab::DoubleClickMouse(IconPlace()); }, done);
}

bool Story::Choose(std::string_view item, const std::function<bool()>& done) {
  return ActUntil([&] { ChooseByKeys(item); }, done);
}

bool Story::ChooseInVain(std::string_view item) {
  return ChooseByKeys(item) && WaitForTick();
}

bool Story::ChooseAndAnswer(std::string_view item, std::string_view button) {
  return Choose(item, [&] { return Shows(kQuestionClass, button); }) &&
         CloseWith(kQuestionClass, button);
}

bool Story::OpenStatus() {
  return Choose("Status", [] { return WindowOf(kStatusWindowClass).window != nullptr; });
}

bool Story::WaitForTip(std::string_view tip) {
  bool aside = false;
  return WaitUntil([&] {
    // A pointer that stays where it is makes no event.
    POINT place = IconPlace();
    place.x += (aside = !aside) ? 1 : 0;
    lab::MoveMouse(place);
    return Tip().starts_with(tip);
  });
}
