#include "shared/daily_sync.h"

#include <cstdio>
#include <string>

#include "shared/convert.h"
#include "shared/engine_bridge.h"
#include "shared/engine_commands.h"
#include "shared/keys.h"
#include "shared/profile_store.h"
#include "shared/server_address.h"
#include "shared/trace.h"
#include "shared/transfer.h"

namespace shared {
namespace {

constexpr std::uint32_t kPause = 200;  // milliseconds

bool IsBlank(std::string_view text) {
  return Trim(text).empty();
}

void StoreNextDate(platform::Platform& machine, AgentState& state, const Day& day) {
  clsTransfer transfer(machine, state);
  const auto write = [&](std::string_view key, int part) {
    transfer.Trf_WriteUserProfileDefault(sections::kTolvex, key, std::to_string(part));
  };
  write(keys::kSyncDay, day.day);
  write(keys::kSyncMonth, day.month);
  write(keys::kSyncYear, day.year);
}

void FallBackToSecondary(platform::Platform& machine, AgentState& state, int attempt) {
  if (attempt % kAttemptsBeforeFallback != 0) return;
  state.ServerPort = state.DefaultPort;
  state.ServerAddress = state.SecondaryServerAddress;
  WriteServerKeys(machine, state);
}

std::string NumberText(double number) {
  char text[40];
  const int length = std::snprintf(text, sizeof text, "%.15g", number);
  return std::string(text, static_cast<std::size_t>(length));
}

}  // namespace

Day NextSyncDate(platform::Platform& machine, AgentState& state, const Day& today) {
  ProfileStore store(machine, state);
  const auto part = [&](std::string_view key, int of_today) -> int {
    const std::string text = store.ReadProfileKey(sections::kTolvex, key);
    if (IsBlank(text)) return of_today;
    return ToInt16(text).value_or(0);
  };
  return {part(keys::kSyncYear, today.year), part(keys::kSyncMonth, today.month),
          part(keys::kSyncDay, today.day)};
}

void RunDailySync(platform::Platform& machine, AgentState& state) {
  ProfileStore store(machine, state);
  if (IsBlank(store.ReadUserNameIni(keys::kDefaultUserName))) return;
  Trace trace(machine, state);
  const Day today = DayOf(machine.clock.Now());
  if (IsBlank(store.ReadProfileKey(sections::kTolvex, keys::kSyncDay))) {
    StoreNextDate(machine, state, Tomorrow(today));
    trace.WriteInformation("Next DB Date is set ");
    return;
  }
  if (NextSyncDate(machine, state, today) > today) return;
  // The next day is stored first: a tick inside the wait below must not start this anew.
  StoreNextDate(machine, state, Tomorrow(today));
  CheckUserType(machine, state);
  machine.clock.Sleep(kPause);
  trace.WriteInformation(" Calling client(20) for the autoSync");
  EngineBridge(machine, state).StartEngineCommand(commands::kDailySync.argument);
}

void CheckUserType(platform::Platform& machine, AgentState& state) {
  EngineBridge engine(machine, state);
  Trace trace(machine, state);
  double result = 0;
  for (int counter = 0; counter < commands::kCheckUserType.attempts && !machine.events.HasQuit();) {
    // 1.
    trace.WriteInformation(" Calling client(38) to check the user type");
    if (const auto answer = engine.RunEngineCommandAndWait(commands::kCheckUserType.argument)) {
      result = *answer;
    }
    // 2.
    if (result > 0) break;
    // 3.
    ++counter;
    FallBackToSecondary(machine, state, counter);
  }
  // The command is another by now; people search the traces for these words.
  trace.WriteInformation("apiremoteretval for CMD LINE arg 40 : " + NumberText(result));
  if (result == results::kSuccess) {
    ProfileStore(machine, state).WriteUserNameProfile(keys::kShowWelcome, "1");
  }
}

}  // namespace shared
