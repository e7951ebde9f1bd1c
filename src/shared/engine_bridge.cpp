#include "shared/engine_bridge.h"

#include "shared/character_shift.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/transfer.h"

namespace shared {
namespace {

constexpr std::uint32_t kLook = 300;  // milliseconds
constexpr std::uint32_t kBreath = 3;

}  // namespace

EngineBridge::EngineBridge(platform::Platform& machine, AgentState& state)
    : machine_(machine), state_(state) {}

platform::ProcessHandle EngineBridge::LaunchEngineCommand(std::string_view program,
                                                          std::string_view argument,
                                                          std::string_view folder) {
  return machine_.shell
      .Start(platform::ShellVerb::kOpen, program, argument, folder, platform::WindowShow::kHidden)
      .handle;
}

void EngineBridge::StartEngineCommand(std::string_view argument) {
  if (argument.ends_with('>')) state_.CommandArgument = argument;
  state_.ClientProcess = LaunchEngineCommand(InInstallFolder(state_, state_.ClientProgram),
                                             argument, state_.InstallFolder);
}

void EngineBridge::WaitForClient() {
  // The handle is read anew each time: what runs inside the pump may have replaced it.
  while (!machine_.events.HasQuit() &&
         machine_.events.WaitForProcess(state_.ClientProcess, kLook) !=
             platform::WaitResult::kSignalled) {
    machine_.events.Pump();
    machine_.clock.Sleep(kBreath);
  }
}

std::optional<double> EngineBridge::RunEngineCommandAndWait(std::string_view argument) {
  StartEngineCommand(argument);
  WaitForClient();
  return ReadReturnValue();
}

std::optional<double> EngineBridge::ReadReturnValue() {
  return ToDouble(clsTransfer(machine_, state_)
                      .Trf_ReadOutputValue(sections::kBackupStatus, keys::kReturnValue));
}

std::string EncryptDLLInput(std::string_view text) {
  return ShiftCharacters(text, kProfileShift).text;
}

}  // namespace shared
