#include "lab/engine/memory_programs.h"

#include <memory>

#include "lab/engine/background_model.h"
#include "lab/engine/engine_model.h"
#include "lab/engine/program_names.h"

namespace lab {
namespace {

using platform::memory::Launch;
using platform::memory::Machine;

void StepEngine(Machine& machine, platform::ProcessId id,
                const std::shared_ptr<EngineModel>& engine) {
  if (const auto wait = engine->Step()) {
    machine.processes().After(id, *wait,
                              [&machine, id, engine] { StepEngine(machine, id, engine); });
  } else {
    machine.processes().End(id, engine->exit_code());
  }
}

void StepBackground(Machine& machine, platform::ProcessId id,
                    const std::shared_ptr<BackgroundModel>& background) {
  const std::uint32_t wait = background->Step();
  machine.processes().After(
      id, wait, [&machine, id, background] { StepBackground(machine, id, background); });
}

}  // namespace

Ports PortsOf(Machine& machine) {
  return {machine.platform().files, machine.platform().profile_files};
}

void InstallEnginePrograms(Machine& machine, const Places& places) {
  const std::string engine_path = places.InInstallFolder(kEngineClient);
  machine.processes().Install(engine_path, [&machine, places](const Launch& launch) {
    StepEngine(machine, launch.id,
               std::make_shared<EngineModel>(PortsOf(machine), places, machine.platform().clock,
                                             launch.arguments));
  });
  machine.processes().Install(
      places.InInstallFolder(kBackgroundProcess),
      [&machine, places, engine_path](const Launch& launch) {
        const auto start_engine = [&machine, engine_path] {
          if (!machine.processes().IsRunning(engine_path)) machine.processes().Start(engine_path);
        };
        StepBackground(machine, launch.id,
                       std::make_shared<BackgroundModel>(PortsOf(machine), places,
                                                         machine.platform().clock, start_engine));
      });
}

}  // namespace lab
