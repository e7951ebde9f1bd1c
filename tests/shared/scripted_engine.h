// An engine client on the machine in memory whose answers a test writes down, run by run.
#pragma once

#include <cstdint>
#include <deque>
#include <functional>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "platform/memory/machine.h"
#include "shared/keys.h"

namespace shared {

struct EngineReply {
  std::optional<std::string> ret_value;  // nothing: the client writes none
  std::uint32_t runs_for = 1000;         // milliseconds; 0 for ever
  std::function<void()> also = {};       // done just before the end
};

class ScriptedEngine {
 public:
  static constexpr std::string_view kPath = "C:\\Sorvane\\SorvaneEClsClient.exe";

  ScriptedEngine(platform::memory::Machine& machine, std::string_view profile)
      : machine_(machine), profile_(profile) {
    machine_.processes().Install(
        kPath, [this](const platform::memory::Launch& launch) { Answer(launch); });
  }

  // Adds the answer to one more run with this argument. The last answer stands for all further
  // runs.
  void Reply(std::string_view argument, EngineReply reply) {
    replies_[std::string(argument)].push_back(std::move(reply));
  }
  void Reply(std::string_view argument, std::string_view ret_value) {
    Reply(argument, EngineReply{.ret_value = std::string(ret_value)});
  }

  const std::vector<platform::memory::Launch>& runs() const { return runs_; }
  std::size_t CountRuns(std::string_view argument) const {
    std::size_t count = 0;
    for (const auto& run : runs_) count += run.arguments == argument;
    return count;
  }

 private:
  void Answer(const platform::memory::Launch& launch) {
    runs_.push_back(launch);
    std::deque<EngineReply>& replies = replies_[launch.arguments];
    const EngineReply reply = replies.empty() ? EngineReply{} : replies.front();
    if (replies.size() > 1) replies.pop_front();
    if (reply.runs_for == 0) return;
    machine_.processes().After(launch.id, reply.runs_for, [this, reply, id = launch.id] {
      if (reply.ret_value) {
        machine_.files().PutIni(profile_, sections::kBackupStatus, keys::kReturnValue,
                                *reply.ret_value);
      }
      if (reply.also) reply.also();
      machine_.processes().End(id);
    });
  }

  platform::memory::Machine& machine_;
  std::string profile_;
  std::map<std::string, std::deque<EngineReply>> replies_;
  std::vector<platform::memory::Launch> runs_;
};

}  // namespace shared
