#include "lab/engine/engine_model.h"

namespace lab {
namespace {

struct JobWord {
  std::string_view argument;
  JobKind kind;
};
constexpr JobWord kJobWords[] = {
    {"", JobKind::kScheduledBackup},
    {"backup", JobKind::kInteractiveBackup},
    {"restore", JobKind::kRestore},
};

}  // namespace

EngineModel::EngineModel(const Ports& ports, const Places& places, platform::Clock& clock,
                         std::string_view argument) {
  for (const JobWord& word : kJobWords) {
    if (word.argument == argument) {
      work_.emplace<TransferJob>(ports, places, clock, word.kind,
                                 EngineScript(ports, places).Job());
      return;
    }
  }
  if (const auto command = CommandNumber(argument)) {
    work_.emplace<CommandRun>(ports, places, *command);
  }
}

std::optional<std::uint32_t> EngineModel::Step() {
  if (auto* job = std::get_if<TransferJob>(&work_)) return job->Step();
  if (auto* command = std::get_if<CommandRun>(&work_)) return command->Step();
  return std::nullopt;
}

std::uint32_t EngineModel::exit_code() const {
  const auto* job = std::get_if<TransferJob>(&work_);
  const auto* command = std::get_if<CommandRun>(&work_);
  return (job && job->crashed()) || (command && command->crashed()) ? 1 : 0;
}

}  // namespace lab
