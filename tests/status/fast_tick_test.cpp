#include "status/fast_tick.h"

#include <gtest/gtest.h>

#include "tests/status/idle_fixture.h"

namespace status {
namespace {

class FastTickTest : public testing::Test, public IdleFixture {
 protected:
  FastTickTest() { memory.user = "anna"; }

  void Fast() {
    IdleView rules = Rules();
    DecideFastTick({view, memory, effects, context}, rules, now.user, transfer);
  }
  void Transfer(std::string_view job, std::string_view status, std::int32_t value) {
    transfer.in_progress = true;
    transfer.backup = job == "3" ? "0" : "1";
    transfer.restore = job == "3" ? "1" : "0";
    transfer.job = job;
    transfer.window_status = status;
    transfer.window_value = value;
  }
};

TEST_F(FastTickTest, ChangesOnlyTheTitleAtRest) {
  view.title = "Sorvane - Scheduled Backup Status";
  const StatusView before = view;
  Fast();
  EXPECT_EQ(view, before);
  EXPECT_TRUE(effects.InOrder().empty());
}

TEST_F(FastTickTest, ReadsNothingOfTheIdleViewAtRest) {
  int reads = 0;
  IdleView rules(
      view, memory, effects,
      [&] {
        ++reads;
        return now;
      },
      context, schedule);
  DecideFastTick({view, memory, effects, context}, rules, "anna", transfer);
  EXPECT_EQ(reads, 0);
}

TEST_F(FastTickTest, NoticesAnotherUserDuringATransfer) {
  Transfer("1", "0", 66304);
  now.user = "bert";
  Fast();
  EXPECT_EQ(Traces(), (std::vector<std::string>{" [INFORMATION] User login has been changed "}));
  EXPECT_EQ(view.user_name, "bert");
  EXPECT_TRUE(view.transfer_shown);
  Fast();
  EXPECT_EQ(Traces().size(), 1u);
}

TEST_F(FastTickTest, TurnsToTheLoggedOutView) {
  now.user = "";
  now.has_schedule = false;
  Fast();
  EXPECT_EQ(view.status_line, context.texts.log_in);
  EXPECT_FALSE(view.log_enabled);
  EXPECT_TRUE(view.slow_timer && view.fast_timer);
}

struct TitleCase {
  std::string_view job;
  bool running;
  std::string_view title;
  bool notification;
};

constexpr TitleCase kTitles[] = {
    {"", false, "Sorvane - Scheduled Backup Status", true},
    {"1", false, "Sorvane - Scheduled Backup Status", true},
    {"1", true, "Sorvane - Status", false},
    {"3", true, "Sorvane - Status", false},
    {"2", true, "as it was", true},
    {"0", true, "as it was", false},
};

TEST_F(FastTickTest, SetsTheTitleAndTheBoxByTheJob) {
  for (const TitleCase& one : kTitles) {
    view.title = "as it was";
    transfer = {};
    if (one.running) Transfer(one.job, "0", 0);
    transfer.job = one.job;
    Fast();
    EXPECT_EQ(view.title, one.title) << one.job;
    EXPECT_EQ(view.notification_shown, one.notification) << one.job;
  }
}

TEST_F(FastTickTest, ShowsTheTransferWhoseWindowIsHidden) {
  Transfer("2", "0", 66304);
  Fast();
  EXPECT_TRUE(view.transfer_shown);
  EXPECT_EQ(view.status_line, "");
}

TEST_F(FastTickTest, GivesWayToTheEnginesWindow) {
  Transfer("1", "1", 66304);
  Fast();
  EXPECT_TRUE(effects.GivesWay());
}

TEST_F(FastTickTest, TellsOfATransferWithoutAWindow) {
  Transfer("1", "0", 0);
  transfer.rt_backup = 1;
  Fast();
  EXPECT_EQ(view.status_line, "Continuous Backup is in Progress...");
  transfer.rt_backup = 0;
  Fast();
  EXPECT_EQ(view.status_line, context.texts.job_in_progress);
  Transfer("3", "0", 0);
  Fast();
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
}

TEST_F(FastTickTest, ClearsTheTextOfTheRunningJobWhenItHasEnded) {
  view.transfer_shown = true;
  view.status_line = context.texts.job_in_progress;
  view.log_enabled = false;
  Fast();
  EXPECT_FALSE(view.transfer_shown);
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
  EXPECT_TRUE(view.log_enabled);
}

TEST_F(FastTickTest, SaysAtOnceThatNothingIsScheduledForTheUserWhoLoggedIn) {
  now.user = "";
  Fast();
  now.user = "bert";
  now.has_schedule = false;
  Fast();
  EXPECT_EQ(view.status_line, context.texts.no_schedule);
  EXPECT_FALSE(view.next_line_shown);
  EXPECT_EQ(view.quota_text, "1.5 KB out of 4.0 KB");
}

TEST_F(FastTickTest, LeavesNothingOfTheFormerUserInTheNextLine) {
  view.next_line = "Your next backup will occur on  01-01-2011 10:30:00";
  now.user = "bert";
  now.schedule_disabled = true;
  Fast();
  EXPECT_EQ(view.status_line, context.texts.schedule_disabled);
  EXPECT_EQ(view.next_line, "");
}

TEST_F(FastTickTest, SaysAtOnceBehindATransferThatNothingIsScheduled) {
  now.has_schedule = false;
  for (const std::int32_t window : {66304, 0}) {
    Transfer("1", "0", window);
    Fast();
    EXPECT_EQ(view.transfer_shown, window > 0);
    transfer = {};
    Fast();
    EXPECT_EQ(view.status_line, context.texts.no_schedule);
    EXPECT_TRUE(view.quota_bar_shown && view.space_label_shown);
  }
}

TEST_F(FastTickTest, TakesTheContinuousBackupsTextAwayWithItsRun) {
  Transfer("", "0", 0);
  transfer.rt_backup = 1;
  Fast();
  transfer.in_progress = false;
  Fast();
  EXPECT_EQ(view.title, "Sorvane - Scheduled Backup Status");
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
}

TEST_F(FastTickTest, TakesTheScheduledJobsTextAwayWhenTheScheduleSaysThatItEnded) {
  for (const bool paused : {false, true}) {
    now.job_kind = "1";
    now.paused = paused;
    Tick();
    const std::string running = view.status_line;
    Fast();
    EXPECT_EQ(view.status_line, running);
    now.schedule_read = false;  // the engine is writing it
    now.job_kind = "";
    Fast();
    EXPECT_EQ(view.status_line, running);
    now.schedule_read = true;
    now.job_kind = "0";
    Fast();
    EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
    EXPECT_TRUE(view.next_line_shown && view.quota_bar_shown && view.quota_text_shown);
  }
}

TEST_F(FastTickTest, SaysDuringAnUnseenRestoreWithoutAScheduleThatThereIsNone) {
  now.has_schedule = false;
  Transfer("3", "0", 66304);
  Fast();
  transfer.window_value = 0;
  Fast();
  EXPECT_EQ(view.status_line, context.texts.no_schedule);
  EXPECT_TRUE(view.space_label_shown && view.quota_text_shown);
  now.quota = {};
  Fast();
  Tick();
  EXPECT_EQ(view.space_label_shown, view.quota_text_shown);
}

TEST_F(FastTickTest, TellsTheTimeAndTheQuotaAgainBehindTheTransferView) {
  Transfer("1", "0", 66304);
  Fast();
  EXPECT_FALSE(view.quota_bar_shown);
  transfer = {};
  Fast();
  EXPECT_FALSE(view.transfer_shown);
  EXPECT_EQ(view.status_line, "Backup will start in next 2 hour(s).");
  EXPECT_TRUE(view.quota_bar_shown && view.quota_text_shown && view.space_label_shown);
}

TEST_F(FastTickTest, LeavesAnyOtherTextWhenTheTransferHasEnded) {
  view.transfer_shown = true;
  view.status_line = "4 files backed up.";
  Fast();
  EXPECT_FALSE(view.transfer_shown);
  EXPECT_EQ(view.status_line, "4 files backed up.");
}

}  // namespace
}  // namespace status
