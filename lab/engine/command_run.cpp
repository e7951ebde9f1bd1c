#include "lab/engine/command_run.h"

#include <charconv>

#include "shared/file_names.h"
#include "shared/keys.h"

namespace lab {
namespace {

constexpr int kRefreshQuota = 7;
constexpr int kFetchMailAddress = 105;

// What the account holds, as the lab's server tells it.
constexpr std::string_view kQuotaUsed = "1288490188";
constexpr std::string_view kQuotaMax = "5368709120";
constexpr std::string_view kMailAddress = "user@backup.sorvane.example";

}  // namespace

std::optional<int> CommandNumber(std::string_view argument) {
  while (argument.starts_with(' ')) argument.remove_prefix(1);
  int number = 0;
  const auto [end, error] =
      std::from_chars(argument.data(), argument.data() + argument.size(), number);
  if (error != std::errc() || number <= 0) return std::nullopt;
  const std::string_view payload(end, argument.data() + argument.size());
  const bool bracketed = payload.starts_with('<') && payload.ends_with('>');
  if (!payload.empty() && !bracketed) return std::nullopt;
  return number;
}

CommandRun::CommandRun(const Ports& ports, const Places& places, int command)
    : ports_(ports), places_(places), command_(command) {}

std::optional<std::uint32_t> CommandRun::Step() {
  if (!started_) {
    started_ = true;
    answer_ = EngineScript(ports_, places_).NextAnswer(command_);
    if (answer_.delay > 0) return answer_.delay;
  }
  if (!answer_.crash) Answer();
  return std::nullopt;
}

void CommandRun::Answer() {
  const std::string user = ActingUser(ports_, places_);
  const std::string profile = places_.Profile(user);
  if (!answer_.redirect_port.empty()) WriteRedirection();
  if (command_ == kRefreshQuota) {
    ports_.profile_files.WriteText(profile, shared::sections::kQuotaStatus,
                                   shared::keys::kQuotaUsed, kQuotaUsed);
    ports_.profile_files.WriteText(profile, shared::sections::kQuotaStatus, shared::keys::kQuotaMax,
                                   kQuotaMax);
  }
  if (command_ == kFetchMailAddress) {
    ports_.profile_files.WriteText(places_.UserNameIni(), shared::sections::kTolvex,
                                   shared::keys::kInteractiveLists, kMailAddress);
  }
  if (!answer_.return_value.empty()) {
    ports_.profile_files.WriteText(profile, shared::sections::kBackupStatus,
                                   shared::keys::kReturnValue, answer_.return_value);
  }
}

void CommandRun::WriteRedirection() {
  std::string text = answer_.redirect_port + "\r\n";
  if (!answer_.redirect_address.empty()) text += answer_.redirect_address + "\r\n";
  ports_.files.Replace(
      places_.InUserFolder(ActingUser(ports_, places_), shared::files::kDllOutput1), text);
}

}  // namespace lab
