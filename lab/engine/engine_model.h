// The engine client: what one process of it does from its start with an argument to its end.
//
// One source for both worlds: the stand-in executable steps it and sleeps in between, the memory
// machine steps it at its virtual times.
#pragma once

#include <cstdint>
#include <optional>
#include <string_view>
#include <variant>

#include "lab/engine/command_run.h"
#include "lab/engine/transfer_job.h"

namespace lab {

class EngineModel {
 public:
  // `argument` is empty for the scheduled job, "backup" or "restore" for a job of the main program,
  // anything else a numbered command such as " 23< >". An argument that is none of these ends at
  // once.
  EngineModel(const Ports& ports, const Places& places, platform::Clock& clock,
              std::string_view argument);

  // Does the next piece of work. Returns the milliseconds until the step after it, or nothing when
  // the process ends.
  std::optional<std::uint32_t> Step();

  // 0, or 1 after a scripted crash.
  std::uint32_t exit_code() const;

 private:
  std::variant<std::monostate, TransferJob, CommandRun> work_;
};

}  // namespace lab
