#include "agent/housekeeping_tick.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "agent/daily_step.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/housekeeping_case.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using platform::ServiceState;
using platform::SystemFamily;
using ::testing::Contains;
using testing::Effects;
using testing::HousekeepingTest;
using testing::InstalledAgent;
using ::testing::IsEmpty;
using ::testing::Not;
namespace keys = shared::keys;

TEST_F(HousekeepingTest, EndsTheSetSizeHelperOnlyWithoutTheMainProgram) {
  auto& processes = agent_.machine.processes();
  const auto helper = processes.Start(agent_.Path("SorvaneEBckupsetSize.exe"));
  const auto main_program = processes.Start(agent_.Path("SorvaneEClassic.exe"));
  Start();
  Tick();
  EXPECT_TRUE(processes.Find(helper)->running);
  processes.End(main_program);
  Tick();
  EXPECT_FALSE(processes.Find(helper)->running);
}

struct LogoffRow {
  const char* log_off;
  const char* standby;
  const char* account;
  bool ends;
};

TEST_F(HousekeepingTest, ALogoffEndsOnlyAnAgentOfTheSystemAccount) {
  constexpr LogoffRow kRows[] = {
      {"1", "1", "SYSTEM", true},  {"1", "", "System", true},  {"1", "1", "system", true},
      {"1", "1", "SyStem", false}, {"1", "1", "ann", false},   {"1", "0", "SYSTEM", false},
      {"0", "1", "SYSTEM", false}, {"", "1", "SYSTEM", false},
  };
  for (const LogoffRow& row : kRows) {
    InstalledAgent agent;
    agent.SetRegistry(keys::kLogOff, row.log_off);
    agent.SetRegistry(keys::kStandbyBackup, row.standby);
    agent.machine.LogOn(row.account);
    ASSERT_TRUE(agent.Start());
    agent.StopTimers();
    Housekeeping(agent.machine.platform(), agent.state(), agent.agent().form().commands())
        .HousekeepingTick();
    EXPECT_EQ(agent.machine.exited(), row.ends) << row.account << row.standby << row.log_off;
    const auto registry = [&](std::string_view key) {
      return agent.machine.files().IniValue(agent.Path("UserName.ini"), "Registry", key);
    };
    EXPECT_EQ(registry(keys::kLogOff), row.ends ? "0" : row.log_off);
    EXPECT_EQ(registry(keys::kTray), row.ends ? "3" : "0");
  }
}

TEST_F(HousekeepingTest, BringsTheBackgroundProcessBackWithinATick) {
  Start();
  agent_.machine.KillProcess("SorvaneEBackground.exe");
  Tick();
  EXPECT_TRUE(agent_.machine.processes().IsRunning("SorvaneEBackground.exe"));
}

TEST_F(HousekeepingTest, OnVistaTheServiceIsLookedAtEveryTenthTick) {
  Start({SystemFamily::kNt, 6, 0});
  agent_.machine.services().Set("SorvaneE Service", ServiceState::kStopped);
  Tick(9);
  EXPECT_EQ(ServiceStarts(), 0u);
  Tick();
  EXPECT_EQ(ServiceStarts(), 1u);
  Tick(30);
  EXPECT_EQ(ServiceStarts(), 2u);
}

TEST_F(HousekeepingTest, OnOtherSystemsTheServiceIsLookedAtOnEachTick) {
  Start({SystemFamily::kNt, 10, 0});
  agent_.machine.services().Set("SorvaneE Service", ServiceState::kStopped);
  Tick();
  EXPECT_EQ(ServiceStarts(), 1u);
  Tick(30);
  EXPECT_EQ(ServiceStarts(), 2u);
}

struct DueRow {
  const char* year;
  const char* month;
  const char* day;
  bool due;
};

TEST_F(HousekeepingTest, TheDailyStepIsDueWhenTheStoredDateIsNotAfterToday) {
  constexpr DueRow kRows[] = {
      {"2024", "3", "1", true},     {"2024", "3", "2", false}, {"2024", "2", "29", true},
      {"2024", "2", "31", true},    {"2024", "4", "1", false}, {"2023", "12", "31", true},
      {"2023", "3", "2", true},     {"2025", "1", "1", false}, {"2025", "3", "1", false},
      {"", "", "", true},           {"", "3", "1", true},      {"", "3", "2", false},
      {"2024", "", "2", false},     {"2024", "", "1", true},   {"2024", "3", "", true},
      {"2023", "", "", true},       {"2025", "", "", false},   {"x", "y", "z", true},
      {"99999", "1", "1", true},    {"0", "0", "0", true},     {"-1", "1", "1", true},
      {" 2024 ", "03", "01", true},
  };
  Start();
  for (const DueRow& row : kRows) {
    SetNextDay(row.year, row.month, row.day);
    EXPECT_EQ(IsDue(), row.due) << row.year << "-" << row.month << "-" << row.day;
  }
}

TEST_F(HousekeepingTest, ADateOfThePastRunsTheDailyStepAtOnce) {
  Start();
  SetNextDay("2020", "1", "1");
  Tick();
  EXPECT_EQ(NextDay(), "2024-3-2 10:0");
}

struct NextDayRow {
  platform::LocalTime now;
  const char* next;
};

TEST_F(HousekeepingTest, TheNextDateIsTomorrowOverTheEndsOfMonthsAndYears) {
  constexpr NextDayRow kRows[] = {
      {{2024, 2, 28, 23, 59, 59}, "2024-2-29 23:59"}, {{2023, 2, 28, 0, 0, 0}, "2023-3-1 0:0"},
      {{2024, 12, 31, 8, 5, 0}, "2025-1-1 8:5"},      {{2024, 4, 30, 12, 0, 0}, "2024-5-1 12:0"},
      {{2024, 2, 29, 1, 2, 3}, "2024-3-1 1:2"},
  };
  Start();
  for (const NextDayRow& row : kRows) {
    agent_.machine.SetClock(row.now);
    SetNextDay("2000", "1", "1");
    Tick();
    EXPECT_EQ(NextDay(), row.next);
  }
}

TEST_F(HousekeepingTest, AClockSetBackWaitsForTheStoredDay) {
  Start();
  SetNextDay("2024", "3", "1");
  Tick();
  agent_.machine.SetClock({2024, 2, 20, 10, 0, 0});
  agent_.machine.journal().Clear();
  Tick();
  EXPECT_EQ(NextDay(), "2024-3-2 10:0");
  agent_.machine.SetClock({2024, 3, 2, 0, 0, 0});
  Tick();
  EXPECT_EQ(NextDay(), "2024-3-3 0:0");
}

TEST_F(HousekeepingTest, TheDailyStepNeedsTrayToBeZeroOrEmpty) {
  Start();
  SetNextDay("2020", "1", "1");
  agent_.SetRegistry(keys::kTray, "3");
  Tick();
  EXPECT_EQ(agent_.Shared(keys::kTrayIconYear), "2020");
  agent_.SetRegistry(keys::kTray, "");
  Tick();
  EXPECT_EQ(agent_.Shared(keys::kTrayIconYear), "2024");
}

TEST_F(HousekeepingTest, TheDailyStepAndTheSynchronisationRunOnceADay) {
  InstallClient();
  agent_.machine.SetClock({2024, 3, 1, 23, 50, 0});
  ASSERT_TRUE(agent_.Start());
  agent_.machine.Run(5 * 60 * 1000);
  const auto day_steps = [this] {
    return agent_.machine.journal().Count("profile", "[Tolvex] TrayIconDay=");
  };
  const auto checks = [this] { return agent_.machine.journal().Count("shell", " 38"); };
  const auto steps_before = day_steps();
  const auto checks_before = checks();
  agent_.machine.Run(20 * 60 * 1000);
  EXPECT_EQ(day_steps() - steps_before, 1u);
  EXPECT_EQ(checks() - checks_before, 1u);
}

// --- the notice of backups that have not run

struct NoticeRow {
  const char* days;
  const char* threshold;
  const char* enabled;
  bool told;
  const char* days_after;
};

class Notices : public shared::AgentCommands {
 public:
  void SetTrayIcon(std::string_view) override {}
  std::string BuildTrayTip() override { return {}; }
  void DisableStatusEntry() override {}
  void MnuOptionsClick() override {}
  void StopClick() override {}
  void OpenStatusWindow() override {}
  void OpenSessionLog() override {}
  void OpenActivityLog() override {}
  void OpenRecentLog() override {}
  void OpenManageJobs() override {}
  void OpenErrorReport() override {}
  void ShowFailureNotification(std::string_view sentence) override {
    sentences.emplace_back(sentence);
  }

  std::vector<std::string> sentences;
};

TEST_F(HousekeepingTest, TellsOfMissingBackupsFromTheThresholdOn) {
  constexpr NoticeRow kRows[] = {
      {"7", "", "", true, "0"},      {"6", "", "", false, "6"},    {"8", "30", "", false, "8"},
      {"12", "7", "1", true, "0"},   {"12", "7", "0", false, "0"}, {"0", "0", "", false, "0"},
      {"", "", "", false, ""},       {"x", "1", "", false, "x"},   {"7", "x", "", true, "0"},
      {"-1", "-5", "", false, "-1"},
  };
  Start();
  for (const NoticeRow& row : kRows) {
    agent_.SetStatus(status::kBackupFailureDays, row.days);
    agent_.SetStatus(status::kUserDays, row.threshold);
    agent_.SetStatus(status::kUserDaysEnabled, row.enabled);
    Notices notices;
    DailyStep(agent_.machine.platform(), agent_.state(), notices).Run();
    EXPECT_EQ(notices.sentences.size(), row.told ? 1u : 0u) << row.days << " of " << row.threshold;
    EXPECT_EQ(agent_.Status(status::kBackupFailureDays), row.days_after);
  }
}

TEST_F(HousekeepingTest, TheNoticeCarriesTheTrueCount) {
  Start();
  agent_.SetStatus(status::kBackupFailureDays, "12");
  Notices notices;
  DailyStep(agent_.machine.platform(), agent_.state(), notices).Run();
  EXPECT_THAT(notices.sentences,
              ::testing::ElementsAre("The scheduled backup has not taken place for the past 12 "
                                     "day(s). Do you want to"));
}

}  // namespace
}  // namespace agent
