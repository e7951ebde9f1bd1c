#include "status/idle_view.h"

#include <gtest/gtest.h>

#include "tests/status/idle_fixture.h"

namespace status {
namespace {

class IdleViewTest : public testing::Test, public IdleFixture {};

TEST_F(IdleViewTest, TellsTimeAndNextRun) {
  Rules().GetNextTransferTime();
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
  EXPECT_EQ(view.status_points, 10);
  EXPECT_EQ(view.next_line, "Your next backup will occur on  02-15-2011 10:30:00");
  EXPECT_EQ(schedule.asked_for, "02-15-2011 10:30:00");
}

TEST_F(IdleViewTest, TellsTimeInSmallerTypeInLargeFonts) {
  context.large_fonts = true;
  Rules().GetNextTransferTime();
  EXPECT_EQ(view.status_points, 9);
}

TEST_F(IdleViewTest, HandsTheEndOfTheLastRunToTheSchedule) {
  now.last_run = "02-14-2011 10:30:00";
  Rules().GetNextTransferTime();
  EXPECT_EQ(schedule.asked_since, "02-14-2011 10:30:00");
}

TEST_F(IdleViewTest, SaysThatTheScheduleIsDisabledInsteadOfTheTime) {
  now.schedule_disabled = true;
  Rules().GetNextTransferTime();
  EXPECT_EQ(view.status_line, context.texts.schedule_disabled);
  EXPECT_EQ(view.next_line, "before");
}

TEST_F(IdleViewTest, OnlyNamesTheUserWithoutASchedule) {
  now.has_schedule = false;
  now.user = "bert";
  Rules().GetNextTransferTime();
  EXPECT_EQ(view.user_name, "bert");
  EXPECT_EQ(view.status_line, "before");
  EXPECT_EQ(view.quota_text, "");
}

TEST_F(IdleViewTest, TakesTheSecondLineInThisProductAndTheEarliestJobInThePartnersEdition) {
  schedule.next = {"1\b\bSQLSERVERBACKUP\b\b03-01-2011 08:00:00\b\b", "SQL Server"};
  Rules().GetNextTransferTime();
  EXPECT_EQ(view.next_line, "Your next backup will occur on  02-15-2011 10:30:00");
  context.product_number = 1;
  Rules().GetNextTransferTime();
  EXPECT_EQ(view.next_line, "Your next backup(SQL Server) will occur on 03-01-2011 08:00:00");
}

TEST_F(IdleViewTest, StartsAfreshForAnotherUser) {
  now.user = "bert";
  Tick();
  EXPECT_EQ(view.user_name, "bert");
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
}

TEST_F(IdleViewTest, HidesTheQuotaRowOnEveryTickWhileTheQuotaIsUnknown) {
  now.quota = {};
  now.has_schedule = false;
  for (int tick = 0; tick < 3; ++tick) {
    Tick();
    EXPECT_FALSE(view.quota_bar_shown || view.quota_text_shown || view.space_label_shown);
  }
}

TEST_F(IdleViewTest, ShowsTheRunningJobEvenWhenNoBackupIsMarked) {
  now.job_kind = "1";
  transfer.backup = "0";
  Tick();
  EXPECT_EQ(view.status_line, "The scheduled backup job is in progress..");
  EXPECT_FALSE(view.next_line_shown || view.quota_bar_shown || view.quota_text_shown);
  EXPECT_EQ(view.next_line, "");
  EXPECT_EQ(view.quota_text, "");
}

TEST_F(IdleViewTest, SaysThatTheRunningJobIsPaused) {
  now.job_kind = "2";
  now.paused = true;
  Tick();
  EXPECT_EQ(view.status_line, "The scheduled backup job is paused. Click 'Resume' to continue.");
}

TEST_F(IdleViewTest, StopsAllOutcomesForAsLongAsTheStatusWindowIsTwo) {
  now.status_window = 2;
  now.outcome = "done";
  now.indicator = 2;
  memory.force_refresh = true;
  for (int tick = 0; tick < 20; ++tick) Tick();
  EXPECT_EQ(view.status_line, "before");
  EXPECT_EQ(memory.refresh_tick_count, 20);
  EXPECT_TRUE(effects.InOrder().empty());
}

TEST_F(IdleViewTest, TellsTheTimeAndTheQuotaAgainBehindTheTransferView) {
  transfer.in_progress = true;
  transfer.backup = "1";
  transfer.window_status = "0";
  transfer.window_value = 66304;
  Tick();
  EXPECT_EQ(view.status_line, "");
  transfer = {};
  Tick();
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
  EXPECT_TRUE(view.quota_bar_shown && view.quota_text_shown && view.space_label_shown);
}

TEST_F(IdleViewTest, RefreshesOnceAMinute) {
  for (int tick = 1; tick <= 12; ++tick) {
    Tick();
    EXPECT_EQ(schedule.questions, tick < 6 ? 0 : tick < 12 ? 2 : 4) << tick;
  }
}

TEST_F(IdleViewTest, KeepsTheEarlierTextsWhileTheScheduleCannotBeRead) {
  now.schedule_read = false;
  now.job_kind = now.second_line = "";
  memory.force_refresh = true;
  for (int tick = 0; tick < 7; ++tick) Tick();
  EXPECT_EQ(view.status_line, "before");
  EXPECT_EQ(view.next_line, "before");
  EXPECT_TRUE(memory.force_refresh);
  EXPECT_TRUE(effects.InOrder().empty());
  // Also below the message that the quota is exceeded.
  now.quota = {2, 1};
  Tick();
  EXPECT_EQ(view.next_line, "before");
}

TEST_F(IdleViewTest, TellsTheTimeAsSoonAsTheScheduleCanBeRead) {
  view = {};
  memory = {};
  now.schedule_read = false;
  Load();
  EXPECT_EQ(view.status_line, "");
  now.schedule_read = true;
  Tick();
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
}

TEST_F(IdleViewTest, ShowsAForcedOutcomeAsSoonAsItCanBeRead) {
  memory.force_refresh = true;
  now.outcome = std::nullopt;
  Tick();
  EXPECT_EQ(view.status_line, "before");
  EXPECT_TRUE(memory.force_refresh);
  now.outcome = "4 files backed up.";
  Tick();
  EXPECT_EQ(view.status_line, "4 files backed up.");
  EXPECT_FALSE(memory.force_refresh);
}

TEST_F(IdleViewTest, ShowsAnEmptyOutcomeAsItIs) {
  memory.force_refresh = true;
  Tick();
  EXPECT_EQ(view.status_line, "");
  EXPECT_EQ(view.next_line, "Your next backup will occur on  02-15-2011 10:30:00");
}

TEST_F(IdleViewTest, SaysInThePartnersEditionThatTheScheduleIsDisabled) {
  context.product_number = 1;
  now.schedule_disabled = true;
  schedule.next = {"You have disabled your scheduled job.", ""};
  view = {};
  memory = {};
  Load();
  EXPECT_EQ(view.status_line, context.texts.schedule_disabled);
}

TEST_F(IdleViewTest, TellsOfARunningJobThatHasNoNextRun) {
  view = {};
  memory = {};
  now.job_kind = "1";
  now.second_line = "";
  now.user = "bert";
  Rules().ChangeUser();
  EXPECT_EQ(view.status_line, "The scheduled backup job is in progress..");
}

TEST_F(IdleViewTest, ShowsTheBoxAtTheLoadOnlyAtRestAndForScheduledJobs) {
  for (const std::string_view job : {"", "1", "2", "3"}) {
    transfer.in_progress = !job.empty();
    transfer.backup = "1";
    transfer.job = job;
    Load();
    EXPECT_EQ(view.notification_shown, job.empty() || job == "2") << job;
  }
}

TEST_F(IdleViewTest, RefreshesAtOnceWhenForced) {
  memory.force_refresh = true;
  now.outcome = "4 files backed up.";
  Tick();
  EXPECT_EQ(view.status_line, "4 files backed up.");
  EXPECT_EQ(view.status_points, 9);
  EXPECT_FALSE(memory.force_refresh);
  EXPECT_EQ(memory.refresh_tick_count, 0);
}

TEST_F(IdleViewTest, NeverShowsAnUnlimitedAccountAsExceeded) {
  now.quota = {5e12, 5e12 + 1073741824.0};
  now.has_schedule = false;
  Tick();
  EXPECT_NE(view.status_points, 8);
  EXPECT_EQ(view.status_line, context.texts.no_schedule);
  EXPECT_LE(view.quota_bar, 100);
}

TEST_F(IdleViewTest, LeavesTheExceededQuotaToTheBarInThePartnersEdition) {
  context.product_number = 1;
  schedule.next = {std::string(kRecord), ""};
  now.quota = {2, 1};
  Tick();
  EXPECT_EQ(view.status_line, "before");
  EXPECT_TRUE(effects.InOrder().empty());
}

TEST_F(IdleViewTest, KeepsTheOutcomeThatTellsOfTheQuota) {
  now.quota = {2, 1};
  now.indicator = 2;
  now.outcome = "Quota is used up";
  Tick();
  EXPECT_TRUE(effects.InOrder().empty());
  EXPECT_EQ(view.next_line, "Your next backup will occur on  02-15-2011 10:30:00");
}

TEST_F(IdleViewTest, TurnsToTheLoggedOutView) {
  now.user = "";
  view.transfer_shown = true;
  Tick();
  EXPECT_EQ(view.status_line, "Login to the account for which you want to see the status.");
  EXPECT_EQ(view.status_points, 9);
  EXPECT_FALSE(view.notification_shown || view.user_label_shown || view.space_label_shown ||
               view.quota_bar_shown || view.log_enabled || view.transfer_shown);
  EXPECT_EQ(view.user_name + view.quota_text + view.next_line, "");
  EXPECT_TRUE(view.slow_timer && view.fast_timer);
}

TEST_F(IdleViewTest, ComesBackWithTheNextLogin) {
  now.user = "";
  Tick();
  now.user = "bert";
  Tick();
  EXPECT_TRUE(view.user_label_shown && view.notification_shown && view.log_enabled);
  EXPECT_EQ(view.user_name, "bert");
  EXPECT_TRUE(view.quota_bar_shown);
}

TEST_F(IdleViewTest, GivesWayToTheEnginesWindow) {
  transfer.in_progress = true;
  transfer.window_status = "1";
  transfer.window_value = 1;
  Tick();
  EXPECT_TRUE(effects.GivesWay());
  EXPECT_EQ(
      Traces(),
      (std::vector<std::string>{"Backup or restore progress is shown so unload status window"}));
}

struct LoadCase {
  std::string_view name;
  void (*seed)(IdleFixture&);
  std::vector<std::string> traces;
};

TEST(IdleViewLoad, WritesTheLineOfItsBranch) {
  const std::string head = "   [INFORMATION] ";
  const std::vector<LoadCase> cases = {
      {"at rest", [](IdleFixture&) {}, {}},
      {"exceeded",
       [](IdleFixture& f) {
         f.now.quota = {2, 1};
       },
       {"Form-Load Quota is exceeded"}},
      {"no file",
       [](IdleFixture& f) { f.now.has_schedule = false; },
       {"Form-Load: No schedule Data File"}},
      {"no file, disabled",
       [](IdleFixture& f) {
         f.now.has_schedule = false;
         f.now.schedule_disabled = true;
       },
       {"Form-Load: No schedule Data File", "Form-Load: Scheduler is disabled"}},
      {"no time",
       [](IdleFixture& f) { f.now.second_line = ""; },
       {"Form-Load: schedule Data Exists but no schedule Time"}},
      {"indicator", [](IdleFixture& f) { f.now.indicator = 2; }, {"Form-Load: Quota Exceeded"}},
      {"recent",
       [](IdleFixture& f) {
         f.now.status_window = 1;
         f.schedule.difference.recent = true;
       },
       {"Form-Load: Backup completed just before 30min "}},
      {"old",
       [](IdleFixture& f) { f.now.status_window = 1; },
       {"Form-Load: Backup completed 30min ago"}},
      {"running",
       [](IdleFixture& f) { f.now.job_kind = "1"; },
       {"Form-Load: Schedule backup in progress."}},
  };
  for (const LoadCase& one : cases) {
    IdleFixture f;
    one.seed(f);
    f.Load();
    std::vector<std::string> expected = {head + "Loaded Status Form"};
    for (const std::string& line : one.traces) expected.push_back(head + line);
    EXPECT_EQ(f.Traces(), expected) << one.name;
  }
}

TEST_F(IdleViewTest, LetsTheIndicatorAloneDecideAtTheLoad) {
  now.indicator = 2;
  now.status_window = 2;
  now.outcome = "Quota is used up";
  Load();
  EXPECT_EQ(view.status_line, "Quota is used up");
}

TEST_F(IdleViewTest, TakesTheAccountNoticeNotAtOnceAtTheLoad) {
  now.indicator = 4;
  now.status_window = 1;
  now.outcome = "Removed";
  Load();
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
}

TEST_F(IdleViewTest, TicksTheBoxFromItsSetting) {
  Load("1");
  EXPECT_TRUE(view.notification_checked);
  Load("x");
  EXPECT_TRUE(view.notification_checked);
  Load("0");
  EXPECT_FALSE(view.notification_checked);
}

TEST_F(IdleViewTest, LoadsWithTheTimeOfTheNextRun) {
  view = {};
  memory = {};
  Load();
  EXPECT_EQ(view.title, "Sorvane - Scheduled Backup Status");
  EXPECT_EQ(view.user_name, "anna");
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
  EXPECT_EQ(view.quota_text, "1.5 KB out of 4.0 KB");
  EXPECT_TRUE(view.slow_timer);
}

TEST_F(IdleViewTest, ForgetsAtTheLoadThatABackupWasRecent) {
  memory.recent_backup = true;
  Load();
  EXPECT_FALSE(memory.recent_backup);
}

}  // namespace
}  // namespace status
