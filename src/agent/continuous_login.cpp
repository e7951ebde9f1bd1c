#include "agent/continuous_login.h"

#include <string>

#include "shared/client_random.h"
#include "shared/engine_commands.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/profile_store.h"
#include "shared/server_address.h"
#include "shared/transfer.h"

namespace agent {
namespace {

namespace commands = shared::commands;
namespace keys = shared::keys;
namespace results = shared::results;

constexpr std::uint32_t kPause = 1000;  // milliseconds
constexpr double kNoConnection = -12010;
constexpr std::string_view kLocalServer = "localhost";
constexpr std::int16_t kNotRenewed = 2;

}  // namespace

ContinuousLogin::ContinuousLogin(platform::Platform& machine, shared::AgentState& state,
                                 forms::Form& form)
    : machine_(machine),
      state_(state),
      form_(form),
      engine_(machine, state),
      check_(machine, state, [&machine] { machine.events.Pump(); }) {}

bool ContinuousLogin::ValidateContinuousLogin() {
  const shared::ActingUser before = check_.SaveActingUser();
  // The engine acts for the user who switches, whoever it acted for last.
  shared::ProfileStore(machine_, state_)
      .WriteUserNameProfile(keys::kInteractive, state_.CurrentUser);
  const bool good = Ask();
  shared::ProfileStore(machine_, state_)
      .WriteUserNameProfile(keys::kInteractive, before.interactive);
  state_.CurrentUser = before.current_user;
  return good;
}

bool ContinuousLogin::Ask() {
  // 1. and 2. The proxy and the account are the engine's to read.
  ReadServer();
  // 3.
  PrepareRandom();
  // 4.
  RemoveSideFiles();
  // 5.
  if (!AskServer()) return false;
  // 6.
  shared::FollowRedirection(machine_, state_);
  // 7.
  const double result = AskAccount();
  // 8.
  if (result == results::kSuccess) return true;
  if (result != results::kRandomUnknown) return false;
  state_.LoginUser = state_.CurrentUser;
  if (check_.RenewClientRandom() == kNotRenewed) return false;
  shared::clsTransfer(machine_, state_).Trf_WriteUserProfile(keys::kRandom, state_.ClientRandom);
  return true;
}

void ContinuousLogin::ReadServer() {
  shared::clsTransfer transfer(machine_, state_);
  state_.ServerAddress = transfer.Trf_ReadUserProfile(keys::kServerIp);
  state_.ServerPort = transfer.Trf_ReadUserProfile(keys::kPort);
  if (state_.ServerPort.empty()) {
    state_.ServerAddress = state_.PrimaryServerAddress;
    state_.ServerPort = state_.DefaultPort;
  }
  if (state_.ServerAddress == kLocalServer) state_.ServerPort = shared::kLocalPort;
}

void ContinuousLogin::PrepareRandom() {
  shared::clsTransfer transfer(machine_, state_);
  state_.ClientRandom = transfer.Trf_ReadUserProfile(keys::kRandom);
  if (!state_.ClientRandom.empty()) return;
  state_.ClientRandom = shared::MakeClientRandom(machine_.random);
  transfer.Trf_WriteUserProfile(keys::kRandom, state_.ClientRandom);
}

void ContinuousLogin::RemoveSideFiles() {
  for (const std::string_view name :
       {shared::files::kDllOutput, shared::files::kDllInput, shared::files::kDllOutput1}) {
    machine_.files.Remove(shared::InUserFolder(state_, name));
  }
}

// False when the engine says that it is of no use to go on.
bool ContinuousLogin::AskServer() {
  bool fell_back = false;
  double result = 0;
  for (int round = 0; round < commands::kCheckServer.attempts; ++round) {
    if (machine_.events.HasQuit()) return false;
    result = engine_.RunEngineCommandAndWait(commands::kCheckServer.argument).value_or(result);
    if (result > 0) return true;
    if (result == results::kGiveUp) {
      form_.SetMousePointer(forms::Pointer::kDefault);
      return false;
    }
    if (result == kNoConnection && !fell_back) {
      FallBack();
      fell_back = true;
    }
    machine_.clock.Sleep(kPause);
  }
  return true;
}

double ContinuousLogin::AskAccount() {
  bool fell_back = false;
  double result = 0;
  for (int round = 0; round < commands::kCheckAccount.attempts; ++round) {
    if (machine_.events.HasQuit()) break;
    result = engine_.RunEngineCommandAndWait(commands::kCheckAccount.argument).value_or(result);
    if (result > 0 || result == results::kRandomUnknown || result == results::kGiveUp) break;
    if (result == results::kServerUnreachable && !fell_back) {
      FallBack();
      fell_back = true;
    }
    machine_.clock.Sleep(kPause);
  }
  return result;
}

// The fallback at once, not only at the fifth attempt.
void ContinuousLogin::FallBack() {
  shared::FallBackAfterAttempt(machine_, state_, shared::kAttemptsBeforeFallback);
}

}  // namespace agent
