// The slow tick on an installed agent whose timers stand still: every tick is what a test calls.
#pragma once

#include <gtest/gtest.h>

#include <string>
#include <string_view>

#include "agent/daily_step.h"
#include "agent/housekeeping_tick.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent::testing {

namespace keys = shared::keys;

inline constexpr platform::LocalTime kNow = {2024, 3, 1, 10, 0, 0};

class HousekeepingTest : public ::testing::Test {
 protected:
  void Start(const platform::SystemVersion& version = {platform::SystemFamily::kNt, 6, 1}) {
    InstallClient();
    agent_.machine.processes().SetVersion(version);
    agent_.machine.files().Put(agent_.Path("SorvaneEBackground.exe"), "");
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.machine.SetClock(kNow);
    SetNextDay("2024", "3", "2");
    agent_.state().ServiceStartTries = 0;
    agent_.machine.journal().Clear();
  }
  void SetNextDay(std::string_view year, std::string_view month, std::string_view day) {
    agent_.SetShared(keys::kTrayIconYear, year);
    agent_.SetShared(keys::kTrayIconMonth, month);
    agent_.SetShared(keys::kTrayIconDay, day);
  }
  std::string NextDay() {
    return agent_.Shared(keys::kTrayIconYear) + "-" + agent_.Shared(keys::kTrayIconMonth) + "-" +
           agent_.Shared(keys::kTrayIconDay) + " " + agent_.Shared(keys::kTrayIconHour) + ":" +
           agent_.Shared(keys::kTrayIconMinute);
  }
  Housekeeping Make() {
    return Housekeeping(agent_.machine.platform(), agent_.state(),
                        agent_.agent().form().commands());
  }
  void Tick(int times = 1) {
    for (int i = 0; i < times; ++i) Make().HousekeepingTick();
  }
  bool IsDue() {
    return DailyStep(agent_.machine.platform(), agent_.state(), agent_.agent().form().commands())
        .IsDailyDue();
  }
  // A client that answers every question with success.
  void InstallClient() {
    agent_.machine.files().Put(agent_.Path("SorvaneEClsClient.exe"), "");
    agent_.machine.processes().Install(
        "SorvaneEClsClient.exe", [this](const platform::memory::Launch& launch) {
          agent_.SetStatus(status::kRetValue, "402");
          agent_.machine.processes().After(
              launch.id, 200, [this, id = launch.id] { agent_.machine.processes().End(id); });
        });
  }
  std::size_t ServiceStarts() {
    return agent_.machine.journal().Count("shell", "StartSorvaneEService.bat");
  }

  InstalledAgent agent_;
};

}  // namespace agent::testing
