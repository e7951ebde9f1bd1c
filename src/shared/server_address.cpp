#include "shared/server_address.h"

#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/text_file.h"
#include "shared/transfer.h"

namespace shared {
namespace {

constexpr std::int16_t kPartnerEdition = 1;

}  // namespace

void SwitchServerAddress(platform::Files& files, AgentState& state, int attempt) {
  if (attempt % kAttemptsBeforeFallback != 0) return;
  // 1.
  if (files.Exists(InInstallFolder(state, files::kLocalHost))) {
    state.ServerPort = kLocalPort;
    return;
  }
  state.ServerPort = state.DefaultPort;
  // 2.
  if (state.ProductNumber == kPartnerEdition) return;
  // 3.
  if (state.ServerAddress == state.SecondaryServerAddress) return;
  // 4.
  state.ServerAddress = state.PrimaryServerAddress;
}

void WriteServerKeys(platform::Platform& machine, AgentState& state) {
  clsTransfer transfer(machine, state);
  transfer.Trf_WriteUserProfileDefault(sections::kTolvex, keys::kPlainAddress, state.ServerAddress);
  transfer.Trf_WriteUserProfileDefault(sections::kTolvex, keys::kPlainPort, state.ServerPort);
  transfer.Trf_WriteUserProfile(keys::kServerIp, state.ServerAddress);
  transfer.Trf_WriteUserProfile(keys::kPort, state.ServerPort);
}

void FallBackAfterAttempt(platform::Platform& machine, AgentState& state, int attempt) {
  if (attempt % kAttemptsBeforeFallback != 0) return;
  SwitchServerAddress(machine.files, state, attempt);
  WriteServerKeys(machine, state);
}

void FollowRedirection(platform::Platform& machine, AgentState& state) {
  const std::string path = InUserFolder(state, files::kDllOutput1);
  if (!machine.files.Exists(path)) return;
  const std::string text = machine.files.Read(path, kTextFileLimit).value_or("");
  // A line that is not there leaves its part of the pair as it is.
  if (const auto port = FindLine(text, 0)) state.ServerPort = *port;
  if (const auto address = FindLine(text, 1)) state.ServerAddress = *address;
  WriteServerKeys(machine, state);
}

}  // namespace shared
