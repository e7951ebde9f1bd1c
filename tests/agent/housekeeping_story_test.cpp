// The slow tick as a whole, over weeks, and on machines that refuse.

#include <gmock/gmock.h>

#include <algorithm>
#include <string>
#include <vector>

#include "tests/agent/effects.h"
#include "tests/agent/housekeeping_case.h"

namespace agent {
namespace {

using platform::ServiceState;
using platform::SystemFamily;
using ::testing::Contains;
using testing::Effects;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::HousekeepingTest;
using ::testing::Not;
namespace keys = shared::keys;

constexpr platform::SystemVersion kXp = {SystemFamily::kNt, 5, 1};
constexpr std::uint64_t kMinute = 60'000;
constexpr std::uint64_t kDay = 24 * 60 * kMinute;

// Looks for each part behind the one before.
void ExpectInOrder(const std::vector<std::string>& effects, const std::vector<std::string>& parts) {
  auto from = effects.begin();
  for (const std::string& part : parts) {
    from = std::find_if(from, effects.end(), [&](const std::string& effect) {
      return effect.find(part) != std::string::npos;
    });
    ASSERT_NE(from, effects.end()) << part << " in " << ::testing::PrintToString(effects);
    ++from;
  }
}

TEST_F(HousekeepingTest, RunsAllItsStepsInTheirOrder) {
  agent_.machine.files().Put(agent_.Path("StartSorvaneEService.bat"), "");
  Start(kXp);
  agent_.machine.processes().Start(agent_.Path("SorvaneEBckupsetSize.exe"));
  agent_.machine.KillProcess("SorvaneEBackground.exe");
  agent_.machine.services().Set("SorvaneE Service", ServiceState::kStopped);
  SetNextDay("2020", "1", "1");
  agent_.SetStatus(status::kBackupFailureDays, "9");
  agent_.SetShifted(keys::kFirstUser, "TRUE");
  agent_.machine.journal().Clear();
  Tick();
  ExpectInOrder(Effects(agent_), {
                                     "end SorvaneEBckupsetSize.exe",
                                     "Service is stopped",
                                     "open C:\\Sorvane\\StartSorvaneEService.bat",
                                     "open C:\\Sorvane\\SorvaneEBackground.exe",
                                     "Service is stopped",
                                     "open C:\\Sorvane\\StartSorvaneEService.bat",
                                     "write BackupStatus.BackupFailureDays=0",
                                     "write Tolvex.TrayIconDay=2",
                                     "write Tolvex.TrayIconMonth=3",
                                     "write Tolvex.TrayIconYear=2024",
                                     "write Tolvex.TrayIconHour=10",
                                     "write Tolvex.TrayIconMinute=0",
                                     "replace scheduleData.txt",
                                     "trace Next DB Date is set ",
                                 });
}

TEST_F(HousekeepingTest, ALogoffIsTheLastThingOfItsTick) {
  Start();
  agent_.machine.processes().Start(agent_.Path("SorvaneEBckupsetSize.exe"));
  agent_.machine.KillProcess("SorvaneEBackground.exe");
  agent_.SetRegistry(keys::kLogOff, "1");
  agent_.machine.LogOn("SYSTEM");
  agent_.machine.journal().Clear();
  Tick();
  EXPECT_THAT(Effects(agent_), ElementsAre("end SorvaneEBckupsetSize.exe",
                                           "write Registry.LogOff=0", "write Registry.Tray=3"));
  EXPECT_EQ(agent_.machine.exit_code(), 0u);
}

TEST_F(HousekeepingTest, AnAccountThatTheSystemDoesNotTellIsTracedAndTheTickGoesOn) {
  Start();
  SetNextDay("2020", "1", "1");
  agent_.SetRegistry(keys::kLogOff, "1");
  agent_.machine.gate().FailAll("processes.CurrentLoginName");
  agent_.machine.gate().Start();
  Tick();
  EXPECT_THAT(Effects(agent_), Contains("trace A system call returned an error code of 5"));
  EXPECT_FALSE(agent_.machine.exited());
  EXPECT_EQ(NextDay(), "2024-3-2 10:0");
}

// --- the background process

TEST_F(HousekeepingTest, ABackgroundProcessKilledEachMinuteOfAWeekIsBackUnlessABackupRuns) {
  agent_.machine.files().Put(agent_.Path("SorvaneEBackground.exe"), "");
  InstallClient();
  ASSERT_TRUE(agent_.Start());
  agent_.machine.journal().Keep(false);
  for (int minute = 0; minute < 7 * 24 * 60; ++minute) {
    // Each quarter of a day a backup of five minutes, after which the other side has turned both.
    const int of_quarter = minute % 360;
    const bool engine_works = of_quarter >= 300 && of_quarter < 305;
    const bool turned = of_quarter >= 305;
    agent_.SetShared(keys::kStandard, turned ? "0" : "1");
    agent_.SetShared(keys::kStarted, engine_works || turned ? "1" : "0");
    agent_.machine.KillProcess("SorvaneEBackground.exe");
    agent_.machine.Run(20'000);
    ASSERT_EQ(agent_.machine.processes().CountRunning("SorvaneEBackground.exe"),
              engine_works ? 0u : 1u)
        << minute;
    ASSERT_EQ(agent_.Shared(keys::kStandard), "1") << minute;
    agent_.machine.Run(40'000);
  }
}

TEST_F(HousekeepingTest, AmongFiveThousandProcessesThereIsOneBackgroundProcess) {
  for (int i = 0; i < 5000; ++i) agent_.machine.processes().Start("C:\\Other\\other.exe");
  Start();
  agent_.machine.KillProcess("SorvaneEBackground.exe");
  Tick(30);
  EXPECT_EQ(agent_.machine.processes().CountRunning("SorvaneEBackground.exe"), 1u);
}

// --- the service

TEST_F(HousekeepingTest, AServiceManagerThatRefusesIsAskedAgainAndTheTickGoesOn) {
  agent_.machine.files().Put(agent_.Path("StartSorvaneEService.bat"), "");
  Start(kXp);
  agent_.machine.services().Set("SorvaneE Service", ServiceState::kStopped);
  agent_.machine.services().DenyAll(true);
  SetNextDay("2020", "1", "1");
  Tick(5);
  EXPECT_THAT(Effects(agent_), Not(Contains(HasSubstr("Service"))));
  EXPECT_EQ(agent_.state().ServiceStartTries, 0);
  EXPECT_EQ(NextDay(), "2024-3-2 10:0");
  agent_.machine.services().DenyAll(false);
  Tick();
  EXPECT_EQ(ServiceStarts(), 1u);
}

// --- days

struct Nights {
  platform::LocalTime evening;
  std::vector<std::string> next_days;  // a minute after each midnight
};

TEST_F(HousekeepingTest, TheDailyStepRunsSoonAfterEveryMidnight) {
  const Nights kNights[] = {
      {{2024, 2, 27, 23, 59, 0}, {"2024-2-29", "2024-3-1", "2024-3-2"}},
      {{2023, 12, 29, 23, 59, 0}, {"2023-12-31", "2024-1-1", "2024-1-2"}},
      {{2023, 2, 26, 23, 59, 0}, {"2023-2-28", "2023-3-1", "2023-3-2"}},
  };
  for (const Nights& nights : kNights) {
    testing::InstalledAgent agent;
    agent.machine.SetClock(nights.evening);
    agent.ForgetUser();
    ASSERT_TRUE(agent.Start());
    agent.machine.Run(kMinute / 2);
    agent.machine.journal().Clear();
    agent.machine.Run(kMinute + kMinute / 2);
    for (const std::string& next : nights.next_days) {
      EXPECT_EQ(agent.Shared(keys::kTrayIconYear) + "-" + agent.Shared(keys::kTrayIconMonth) + "-" +
                    agent.Shared(keys::kTrayIconDay),
                next);
      EXPECT_EQ(agent.machine.journal().Count("profile", "TrayIconDay="), 1u);
      agent.machine.journal().Clear();
      agent.machine.Run(kDay);
    }
  }
}

}  // namespace
}  // namespace agent
