#include "shared/connection_check.h"

#include <algorithm>
#include <utility>

#include "shared/client_random.h"
#include "shared/engine_commands.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/profile_store.h"
#include "shared/server_address.h"
#include "shared/transfer.h"

namespace shared {
namespace {

constexpr std::uint32_t kPause = 1000;  // milliseconds

constexpr std::int16_t kGood = 1;
constexpr std::int16_t kFailed = 0;
constexpr std::int16_t kNotRenewed = -1;

constexpr std::int16_t kRenewed = 1;
constexpr std::int16_t kNotConfirmed = 2;

bool IsWorthAnotherTry(double result) {
  return result == results::kServerUnreachable || result == results::kServerRefused ||
         std::ranges::find(results::kProxyFailures, result) != std::end(results::kProxyFailures);
}

}  // namespace

ConnectionCheck::ConnectionCheck(platform::Platform& machine, AgentState& state,
                                 RefreshForm refresh_form)
    : machine_(machine),
      state_(state),
      refresh_form_(std::move(refresh_form)),
      engine_(machine, state) {}

ActingUser ConnectionCheck::SaveActingUser() {
  return {ProfileStore(machine_, state_).ReadUserNameProfile(keys::kInteractive),
          state_.CurrentUser};
}

std::int16_t ConnectionCheck::ValidateConnection(const ActingUser& before) {
  const std::int16_t result = AskServerAndAccount();
  // 10.
  ProfileStore(machine_, state_).WriteUserNameProfile(keys::kInteractive, before.interactive);
  state_.CurrentUser = before.current_user;
  return result;
}

std::int16_t ConnectionCheck::AskServerAndAccount() {
  // 1. to 3.
  PrepareRandom();
  // 4.
  machine_.files.Remove(InUserFolder(state_, files::kDllOutput1));
  // 5.
  if (!AskServer()) return kFailed;
  // 6.
  machine_.clock.Sleep(kPause);
  FollowRedirection(machine_, state_);
  // 7.
  const double result = AskUntilReached(commands::kCheckAccount);
  // 8.
  if (result == results::kSuccess) return kGood;
  // 9.
  if (result != results::kRandomUnknown) return kFailed;
  state_.LoginUser = state_.CurrentUser;
  if (RenewClientRandom() == kNotConfirmed) return kNotRenewed;
  clsTransfer(machine_, state_).Trf_WriteUserProfile(keys::kRandom, state_.ClientRandom);
  return kGood;
}

void ConnectionCheck::PrepareRandom() {
  clsTransfer transfer(machine_, state_);
  // 1.
  state_.ClientRandom = transfer.Trf_ReadUserProfile(keys::kRandom);
  if (state_.ClientRandom.empty()) {
    state_.ClientRandom = MakeClientRandom(machine_.random);
    if (!state_.LoginUser.empty()) {
      transfer.Trf_WriteUserProfile(keys::kRandom, state_.ClientRandom);
    }
  }
  // 2.
  RemoveSideFiles();
  // 3.
  state_.ClientRandom = transfer.Trf_ReadUserProfile(keys::kRandom);
  if (state_.ClientRandom.empty()) {
    state_.ClientRandom =
        ProfileStore(machine_, state_)
            .ReadUserNameIniPlain(state_.ProductFolder + std::string(keys::kSystemRandomSuffix));
  }
}

void ConnectionCheck::RemoveSideFiles() {
  const std::string folder = CommonFolder(state_) + state_.LoginUser + "\\";
  for (const std::string_view name : {files::kDllOutput, files::kDllInput}) {
    machine_.files.Remove(folder + std::string(name));
  }
}

bool ConnectionCheck::AskServer() {
  double result = 0;
  for (int counter = 0; counter < commands::kCheckServer.attempts && !machine_.events.HasQuit();) {
    if (const auto answer = engine_.RunEngineCommandAndWait(commands::kCheckServer.argument)) {
      result = *answer;
    }
    if (result == results::kGiveUp) return false;
    if (!IsWorthAnotherTry(result)) break;
    ++counter;
    FallBackAfterAttempt(machine_, state_, counter);
    machine_.clock.Sleep(kPause);
  }
  return true;
}

double ConnectionCheck::AskUntilReached(const EngineCommand& command) {
  double result = 0;
  for (int counter = 0; counter < command.attempts && !machine_.events.HasQuit();) {
    if (const auto answer = engine_.RunEngineCommandAndWait(command.argument)) result = *answer;
    if (result != results::kServerUnreachable) break;
    ++counter;
    FallBackAfterAttempt(machine_, state_, counter);
  }
  return result;
}

std::int16_t ConnectionCheck::RenewClientRandom() {
  state_.RandomRenewConfirmed = 0;
  for (int times = 0; times < 2 && refresh_form_; ++times) refresh_form_();
  if (state_.RandomRenewConfirmed == 0) return kNotConfirmed;
  ProfileStore store(machine_, state_);
  // 1.
  state_.ClientRandom = MakeClientRandom(machine_.random);
  clsTransfer(machine_, state_).Trf_WriteUserProfile(keys::kRandom, state_.ClientRandom);
  // 2.
  if (!state_.LoginUser.empty()) state_.CurrentUser = state_.LoginUser;
  // 3.
  machine_.files.Remove(InUserFolder(state_, files::kDllOutput));
  // 4.
  const std::string interactive = store.ReadUserNameProfile(keys::kInteractive);
  store.WriteUserNameProfile(keys::kInteractive, state_.LoginUser);
  // 5.
  const double result = AskUntilReached(commands::kRegisterRandom);
  // 6.
  store.WriteUserNameProfile(keys::kInteractive, interactive);
  // 7.
  const bool taken = result == results::kSuccess || result == results::kRandomAccepted;
  return taken ? kRenewed : kNotConfirmed;
}

}  // namespace shared
