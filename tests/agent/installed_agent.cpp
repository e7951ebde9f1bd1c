#include "tests/agent/installed_agent.h"

#include "agent/window_messages.h"
#include "shared/character_shift.h"
#include "shared/configuration.h"
#include "shared/configuration_keys.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"

namespace agent::testing {
namespace {

namespace keys = shared::keys;
namespace sections = shared::sections;
using platform::Hive;

constexpr std::string_view kPictures[] = {"tvlog.ico",    "tvlogyellow.ico", "tvlogyellowp.ico",
                                          "tvlogred.ico", "tvloggreen.ico",  "CDPBlue1.ico",
                                          "CDPBlue2.ico", "QExceed1.ico",    "QExceed2.ico"};

constexpr std::string_view kRegistryRoot = "Software\\Bellwick-Labs\\SorvaneE";
constexpr std::string_view kConnection = "Software\\Bellwick-Labs\\SorvaneE\\Connection Parameters";
constexpr std::string_view kApplication = "Software\\Bellwick-Labs\\SorvaneE\\Application";

std::string Shifted(std::string_view text) {
  return shared::ShiftCharacters(text, shared::kProfileShift).text;
}

}  // namespace

InstalledAgent::InstalledAgent()
    : host(machine.platform().events, [this](const std::string& line) {
        shown.push_back(line);
        machine.world().Note("form", line);
      }) {
  machine.files().PutFolder(kFolder);
  for (const std::string_view picture : kPictures) {
    machine.files().PutPicture(Path("Images\\" + std::string(picture)));
  }
  PutConfigValue(shared::config::kProductInfo, shared::config::kLanguage, "English");
  PutConfigValue(shared::config::kWebLink, shared::config::kAccountUpgradeLink,
                 "https://backup.sorvane.example/account?name=");
  SetRegistry(keys::kDefaultUserName, Shifted(kUser));
  SetRegistry(keys::kTray, "0");
  SetShared(keys::kInteractive, kUser);
  SetShared(keys::kStarted, "0");
  SetShared(keys::kStandard, "1");
  machine.files().PutFolder(UserPath(""));
  SetShifted(keys::kAuthenticated, "1");
  SetShifted(keys::kScheduleDisable, "FALSE");
  SetShifted(keys::kFirstUser, "FALSE");
  machine.registry().PutText(Hive::kCurrentUser, kRegistryRoot, shared::registry::kInstalledFirst,
                             "1");
  machine.registry().PutText(Hive::kCurrentUser, kApplication, shared::registry::kVersion, "5.0");
  LogIn();
  machine.services().Set("SorvaneE Service", platform::ServiceState::kRunning);
  machine.files().Put(Path("SorvaneEClassic.exe"), {});
  machine.processes().Start(Path("SorvaneEBackground.exe"));
  machine.SetAgentWindow([this](std::uintptr_t window, std::uint32_t message, std::uintptr_t wparam,
                                std::intptr_t lparam) {
    const bool ours = window == 0 || window == agent_->form().Window();
    if (ours) host.Send(agent_->form(), message, wparam, lparam);
  });
}

std::string InstalledAgent::Path(std::string_view name) const {
  return std::string(kFolder).append("\\").append(name);
}

std::string InstalledAgent::UserPath(std::string_view name) const {
  return Path(product_folder_ + std::string(kUser)).append("\\").append(name);
}

std::string InstalledAgent::Profile() const {
  return UserPath(product_folder_ + ".ini");
}

void InstalledAgent::MakePartner(bool with_picture) {
  product_folder_ = "Tolvex Professional";
  machine.files().Put(Path("images\\Config.txt"), "Acme\r\nAcme Two\r\nacme.ico\r\n");
  if (with_picture) machine.files().PutPicture(Path("Images\\acme.ico"));
  machine.files().PutFolder(UserPath(""));
  SetShifted(keys::kFirstUser, "FALSE");
}

void InstalledAgent::PutConfigValue(std::string_view section, std::string_view key,
                                    std::string_view value) {
  machine.files().PutIni(Path(shared::files::kConfigurationIni), section,
                         shared::ScrambleConfigKey(key), shared::ScrambleConfigValue(value));
}

void InstalledAgent::LogIn(std::uint32_t status) {
  SetConnectionStatus(status);
}

void InstalledAgent::LogOut() {
  SetConnectionStatus(0);
}

void InstalledAgent::ForgetUser() {
  SetRegistry(keys::kDefaultUserName, "");
}

void InstalledAgent::SetShared(std::string_view key, std::string_view value) {
  machine.files().PutIni(Path(shared::files::kUserNameIni), sections::kTolvex, key, value);
}

void InstalledAgent::SetRegistry(std::string_view key, std::string_view value) {
  machine.files().PutIni(Path(shared::files::kUserNameIni), sections::kRegistry, key, value);
}

void InstalledAgent::SetStatus(std::string_view key, std::string_view value) {
  SetProfile(sections::kBackupStatus, key, value);
}

void InstalledAgent::SetProfile(std::string_view section, std::string_view key,
                                std::string_view value) {
  machine.files().PutIni(Profile(), section, key, value);
}

void InstalledAgent::SetShifted(std::string_view key, std::string_view value) {
  SetProfile(sections::kTolvex, Shifted(key), Shifted(value));
}

void InstalledAgent::SetProgress(std::string_view section, std::string_view key,
                                 std::string_view value) {
  machine.files().PutIni(UserPath(status::kProgressFile), section, key, value);
}

void InstalledAgent::PutUserFile(std::string_view name, std::string_view bytes) {
  machine.files().Put(UserPath(name), bytes);
}

void InstalledAgent::SetConnectionStatus(std::uint32_t status) {
  for (const std::string_view product : {"SorvaneE", "Tolvex Professional"}) {
    const std::string key =
        "Software\\Bellwick-Labs\\" + std::string(product) + "\\Connection Parameters";
    machine.registry().PutNumber(Hive::kCurrentUser, key, shared::registry::kConnectionStatus,
                                 status);
  }
}

std::string InstalledAgent::Shared(std::string_view key) {
  return machine.files().IniValue(Path(shared::files::kUserNameIni), sections::kTolvex, key);
}

std::string InstalledAgent::Status(std::string_view key) {
  return machine.files().IniValue(Profile(), sections::kBackupStatus, key);
}

bool InstalledAgent::HasUserFile(std::string_view name) {
  return machine.files().Has(UserPath(name));
}

std::uint32_t InstalledAgent::ConnectionStatus() {
  return machine.registry().Number(Hive::kCurrentUser, kConnection,
                                   shared::registry::kConnectionStatus);
}

bool InstalledAgent::Start() {
  agent_ = std::make_unique<Agent>(machine.platform(), host);
  return agent_->Main();
}

bool InstalledAgent::StartAgain() {
  machine.RenewAgent();
  agent_.reset();
  return Start();
}

void InstalledAgent::StopTimers() {
  machine.RenewAgent();
  agent_->form().RemoveTrayIcon();
  agent_->form().AddTrayIcon();
}

void InstalledAgent::Tick() {
  agent_->form().tick().TrayTick();
}

void InstalledAgent::Touch(std::uint32_t mouse_message) {
  Send(kIconMessage, 0, static_cast<std::intptr_t>(mouse_message));
}

void InstalledAgent::DoubleClick() {
  Touch(kLeftDoubleClick);
}

void InstalledAgent::RightClick() {
  Touch(kRightButtonUp);
}

std::intptr_t InstalledAgent::Send(std::uint32_t message, std::uintptr_t wparam,
                                   std::intptr_t lparam) {
  return host.Send(agent_->form(), message, wparam, lparam);
}

std::string InstalledAgent::Picture() {
  const auto& icon = machine.shell().icon();
  return icon ? icon->picture_name : std::string();
}

std::string InstalledAgent::Tip() {
  const auto& icon = machine.shell().icon();
  return icon ? icon->tip : std::string();
}

std::size_t InstalledAgent::Traced(std::string_view part) {
  const std::string trace = machine.files().Utf16Content(UserPath(shared::files::kTrayTrace));
  std::size_t count = 0;
  for (std::size_t at = trace.find(part); at != std::string::npos; at = trace.find(part, at + 1)) {
    ++count;
  }
  return count;
}

}  // namespace agent::testing
