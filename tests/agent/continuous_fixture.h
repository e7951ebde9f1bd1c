// A user who switches continuous backup, with its module and a client that answers by a script.
#pragma once

#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent::testing {

// In place of a result: the client ends without having written one.
inline constexpr std::string_view kNoResult = "(none)";

class ContinuousFixture : public ::testing::Test {
 protected:
  ContinuousFixture() {
    agent_.machine.libraries().PutFunction(agent_.Path("SorvaneERealTime.dll"), "PostCDPStatusMsg",
                                           [this](std::int32_t order) {
                                             orders_.push_back(order);
                                             return 0;
                                           });
    agent_.machine.files().Put(agent_.Path("SorvaneEClsClient.exe"), "");
    agent_.machine.processes().Install(
        "SorvaneEClsClient.exe",
        [this](const platform::memory::Launch& launch) { Answer(launch); });
    agent_.SetShifted(shared::keys::kServerIp, "192.0.2.77");
    agent_.SetShifted(shared::keys::kPort, "4000");
    agent_.SetShifted(shared::keys::kRandom, "12345");
  }
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.journal().Clear();
  }
  // The engine client: the next scripted result, 402 when the script is over.
  void Answer(const platform::memory::Launch& launch) {
    asked_.push_back(launch.arguments);
    const std::string result = script_.empty() ? "402" : script_.front();
    if (!script_.empty()) script_.erase(script_.begin());
    agent_.machine.processes().After(launch.id, 500, [this, result, id = launch.id] {
      if (result != kNoResult) agent_.SetStatus(status::kRetValue, result);
      if (when_answered_) when_answered_();
      agent_.machine.processes().End(id);
    });
  }
  void Click(const char* answer) {
    agent_.host.AnswerWith(answer);
    Commands().MnuCdpClick();
  }
  void SwitchOn() {
    Click("Continue");
    agent_.machine.Run(100);
  }
  void SwitchOff() {
    Item().SetChecked(true);
    Click("Continue");
    agent_.machine.journal().Clear();
    agent_.machine.Run(100);
  }
  std::string Profile(std::string_view key) {
    return agent_.machine.files().IniValue(agent_.UserPath("SorvaneE.ini"),
                                           shared::sections::kTolvex, key);
  }
  TrayCommands& Commands() { return agent_.agent().form().commands(); }
  forms::Pointer Pointer() { return agent_.agent().form().MousePointer(); }
  forms::MenuItem& Item() { return agent_.Item("mnuCDP"); }
  forms::Timer& Timer() { return agent_.agent().form().CDPTimer; }

  InstalledAgent agent_;
  std::vector<std::int32_t> orders_;
  std::vector<std::string> script_;
  std::vector<std::string> asked_;
  std::function<void()> when_answered_;
};

}  // namespace agent::testing
