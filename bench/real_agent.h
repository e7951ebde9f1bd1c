// The real agent on the real machine, in the folder of this executable, which must be a staged
// installation with a user logged in. No timer of the agent runs: ticks are called by hand.
#pragma once

#include "agent/agent.h"
#include "bench/recorder.h"
#include "bench/recording_platform.h"
#include "forms/win32/host.h"
#include "platform/win32/machine.h"

namespace bench {

class RealAgent {
 public:
  RealAgent() = default;
  RealAgent(const RealAgent&) = delete;
  RealAgent& operator=(const RealAgent&) = delete;

  // False, with a word on stderr, when the agent ends at once or nobody is logged in.
  bool Start();

  // The machine as the agent sees it, its calls noted by the recorder.
  platform::Platform& platform() { return recording_.platform(); }
  Recorder& recorder() { return recorder_; }
  forms::FormHost& host() { return host_; }
  agent::Agent& agent() { return agent_; }

 private:
  platform::win32::Machine machine_;
  Recorder recorder_;
  RecordingPlatform recording_{machine_.platform(), recorder_};
  forms::win32::Host host_{machine_.events()};
  agent::Agent agent_{recording_.platform(), host_};
};

}  // namespace bench
