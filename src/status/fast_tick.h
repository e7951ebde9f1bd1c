// The fast tick of the status window: the switch between its faces, and the pause state.
#pragma once

#include "status/idle_view.h"
#include "status/status_snapshot.h"
#include "status/status_view.h"

namespace status {

// What the rules of one tick change and what they go by.
struct TickFrame {
  StatusView& view;
  StatusMemory& memory;
  StatusEffects& effects;
  const StatusContext& context;
};

// One tick. `idle` works on the same view, memory and effects, with the files of `user`, the
// default user as just read.
void DecideFastTick(const TickFrame& frame, IdleView& idle, std::string_view user,
                    const TransferSnapshot& transfer);

}  // namespace status
