// What a rule does besides changing the view: in the order in which it is to be done.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace status {

class ProgressChannel;

enum class EffectKind {
  kTrace,           // a line for the trace, stamped
  kWriteOutcome,    // the one line of SchStatus.txt
  kWriteIndicator,  // StatusMessageIndicaton
  kRefreshQuota,    // the engine is asked for new quota figures
};

struct Effect {
  EffectKind kind;
  std::string text;
  friend bool operator==(const Effect&, const Effect&) = default;
};

class StatusEffects {
 public:
  void Trace(std::string_view line) { Add(EffectKind::kTrace, line); }
  void WriteOutcome(std::string_view line) { Add(EffectKind::kWriteOutcome, line); }
  void WriteIndicator(std::string_view value) { Add(EffectKind::kWriteIndicator, value); }
  // Once is enough, however often one decision comes to it.
  void RefreshQuota();
  // The engine's own window is up: this one unloads and the menu's entry is greyed.
  void GiveWay() { gives_way_ = true; }

  const std::vector<Effect>& InOrder() const { return effects_; }
  bool GivesWay() const { return gives_way_; }

 private:
  void Add(EffectKind kind, std::string_view text) {
    effects_.push_back({kind, std::string(text)});
  }

  std::vector<Effect> effects_;
  bool gives_way_ = false;
};

}  // namespace status
