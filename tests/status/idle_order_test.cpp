// Crosses all states of the channel and compares each resulting view with the order of decisions,
// written down here as a table: the first row that applies says what is shown and written.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "tests/status/idle_fixture.h"

namespace status {
namespace {

constexpr std::string_view kOutcome = "4 files backed up.";
constexpr std::string_view kTime = "Backup will start in next 2 hour(s).";
constexpr std::string_view kNext = "Your next backup will occur on  02-15-2011 10:30:00";

enum class Quota { kUnknown, kRoom, kFull, kExceeded, kStale };
enum class Schedule { kMissing, kNoRun, kRunning, kReady };
enum class Running { kNothing, kHere, kEngine, kContinuous, kBackup, kRestore };

struct Case {
  bool load = false;
  std::string user;
  Quota quota = Quota::kRoom;
  Schedule schedule = Schedule::kReady;
  std::int16_t status_window = 0;
  std::int16_t indicator = 0;
  bool has_outcome = false;
  bool disabled = false;
  Running running = Running::kNothing;
  std::int16_t edition = 2;
  bool recent = false;
  bool forced = false;
  bool due = false;  // the sixth tick since the last refresh

  bool Exceeded() const { return quota == Quota::kExceeded; }
  std::string Outcome() const { return std::string(has_outcome ? kOutcome : ""); }
  bool RefreshesNow() const {
    return status_window == 1 || (status_window <= 0 && (due || forced));
  }
  bool MessageIsForMe() const { return indicator == 2 || indicator == 4; }
};

struct Expected {
  std::string row;
  std::string line;  // of the status line, when `checks_line`
  bool checks_line = true;
  bool transfer_shown = false;
  bool gives_way = false;
  std::vector<Effect> writes;
  bool consumes_force = false;
};

constexpr std::string_view kTwoLines =
    "Your data could not be backed up as you have utilized\r\n"
    "the allocated quota. Upgrade and try again.";

// What the quota row makes of the status line; nothing when it leaves it.
std::string AfterQuotaRow(const Case& c, std::string line) {
  if (c.quota == Quota::kExceeded) return std::string(kTwoLines);
  if (c.quota == Quota::kStale) return EnglishTexts().quota_exceeded;
  return line;
}

std::string NoScheduleLine(const Case& c) {
  if (c.disabled) return EnglishTexts().schedule_disabled;
  if (c.MessageIsForMe() && c.has_outcome) return std::string(kOutcome);
  return EnglishTexts().no_schedule;
}

std::string TimeLine(const Case& c, std::string before) {
  if (c.schedule == Schedule::kMissing) return before;
  const bool dated = c.schedule != Schedule::kNoRun;
  if (dated) before = c.disabled ? EnglishTexts().schedule_disabled : std::string(kTime);
  return AfterQuotaRow(c, before);
}

using Writes = std::vector<Effect>;

Writes WithRefresh(const Case& c, Writes writes, bool first) {
  if (c.quota == Quota::kStale) {
    writes.insert(first ? writes.begin() : writes.end(), Effect{EffectKind::kRefreshQuota, ""});
  }
  return writes;
}

struct Row {
  std::string_view name;
  std::function<bool(const Case&)> applies;
  std::function<void(const Case&, Expected&)> expect;
};

const std::vector<Row>& Order() {
  static const std::vector<Row> rows = {
      {"logged out", [](const Case& c) { return c.user.empty(); },
       [](const Case&, Expected& e) { e.line = EnglishTexts().log_in; }},
      {"the engine shows it", [](const Case& c) { return c.running == Running::kEngine; },
       [](const Case&, Expected& e) {
         e.line = "";
         e.gives_way = true;
       }},
      {"transfer view", [](const Case& c) { return c.running == Running::kHere; },
       [](const Case&, Expected& e) {
         e.line = "";
         e.transfer_shown = true;
       }},
      {"continuous backup", [](const Case& c) { return c.running == Running::kContinuous; },
       [](const Case&, Expected& e) { e.line = "Continuous Backup is in Progress..."; }},
      {"backup without a window", [](const Case& c) { return c.running == Running::kBackup; },
       [](const Case&, Expected& e) { e.line = EnglishTexts().job_in_progress; }},
      {"restore without a window", [](const Case& c) { return c.running == Running::kRestore; },
       [](const Case& c, Expected& e) {
         e.line = TimeLine(c, "before");
         if (c.schedule != Schedule::kMissing) e.writes = WithRefresh(c, {}, true);
       }},
      {"quota exceeded", [](const Case& c) { return c.Exceeded() && c.edition != 1; },
       [](const Case& c, Expected& e) {
         e.line = kTwoLines;
         if (c.indicator == 2 && c.has_outcome) return;
         e.writes = {{EffectKind::kWriteOutcome, EnglishTexts().quota_exceeded},
                     {EffectKind::kWriteIndicator, "2"}};
       }},
      {"no schedule", [](const Case& c) { return c.schedule == Schedule::kMissing; },
       [](const Case& c, Expected& e) {
         e.line = NoScheduleLine(c);
         e.writes = WithRefresh(c, {}, true);
       }},
      {"job running", [](const Case& c) { return c.schedule == Schedule::kRunning; },
       [](const Case&, Expected& e) { e.line = EnglishTexts().job_in_progress + "."; }},
      {"no next run", [](const Case& c) { return c.schedule == Schedule::kNoRun; },
       [](const Case& c, Expected& e) {
         e.line = NoScheduleLine(c);
         e.writes = WithRefresh(c, {}, true);
       }},
      {"message at once",
       [](const Case& c) {
         return c.load ? c.indicator == 2 : c.status_window == 1 && c.MessageIsForMe();
       },
       [](const Case& c, Expected& e) {
         e.line = AfterQuotaRow(c, c.Outcome());
         e.writes = WithRefresh(c, {}, true);
       }},
      {"message at the refresh",
       [](const Case& c) { return c.status_window != 1 && c.RefreshesNow() && c.indicator == 2; },
       [](const Case& c, Expected& e) {
         e.line = AfterQuotaRow(c, c.Outcome());
         e.writes = WithRefresh(c, {}, true);
       }},
      {"outcome", [](const Case& c) { return c.RefreshesNow() && (c.recent || c.forced); },
       [](const Case& c, Expected& e) {
         e.line = c.Outcome();
         e.writes = WithRefresh(c, {}, true);
         e.consumes_force = true;
       }},
      {"outcome is old", [](const Case& c) { return c.RefreshesNow(); },
       [](const Case& c, Expected& e) {
         e.line = TimeLine(c, "");
         e.writes = WithRefresh(
             c, {{EffectKind::kWriteOutcome, ""}, {EffectKind::kWriteIndicator, "0"}}, true);
       }},
      {"nothing more", [](const Case&) { return true; },
       [](const Case&, Expected& e) { e.line = "before"; }},
  };
  return rows;
}

Expected ExpectedOf(const Case& c) {
  Expected expected;
  for (const Row& row : Order()) {
    if (!row.applies(c)) continue;
    expected.row = row.name;
    row.expect(c, expected);
    break;
  }
  // The load leaves its own sentence when there is no schedule.
  const bool at_home = !c.user.empty() && !expected.gives_way;
  if (c.load && at_home && c.schedule == Schedule::kMissing) {
    expected.line = EnglishTexts().no_schedule;
  }
  return expected;
}

void Seed(const Case& c, IdleFixture& f) {
  f.now.user = c.user;
  f.view.user_name = c.user;
  f.memory.idle_user = c.user;
  f.context.product_number = c.edition;
  if (c.quota == Quota::kUnknown) f.now.quota = {};
  if (c.quota == Quota::kFull) f.now.quota = {4096, 4096};
  if (c.quota == Quota::kExceeded) f.now.quota = {4097, 4096};
  if (c.quota == Quota::kStale) f.now.ret_value = "-432";
  f.now.has_schedule = c.schedule != Schedule::kMissing;
  f.now.job_kind = c.schedule == Schedule::kRunning ? "1" : "0";
  const bool has_run = c.schedule == Schedule::kRunning || c.schedule == Schedule::kReady;
  f.now.second_line = has_run ? kRecord : "";
  f.schedule.next = {f.now.second_line, ""};
  f.now.status_window = c.status_window;
  f.now.indicator = c.indicator;
  f.now.outcome = c.Outcome();
  f.now.schedule_disabled = c.disabled;
  f.schedule.difference.recent = c.recent;
  f.memory.force_refresh = c.forced;
  f.memory.refresh_tick_count = c.due ? 5 : 0;
  f.transfer.in_progress = c.running != Running::kNothing;
  f.transfer.backup = c.running == Running::kRestore || !f.transfer.in_progress ? "0" : "1";
  f.transfer.restore = c.running == Running::kRestore ? "1" : "0";
  f.transfer.rt_backup = c.running == Running::kContinuous ? 1 : 0;
  f.transfer.window_status = c.running == Running::kEngine ? "1" : "0";
  const bool window = c.running == Running::kHere || c.running == Running::kEngine;
  f.transfer.window_value = window ? 66304 : 0;
}

void Check(const Case& c) {
  IdleFixture f;
  Seed(c, f);
  const Expected expected = ExpectedOf(c);
  if (c.load) {
    f.Load();
  } else {
    f.Tick();
  }
  SCOPED_TRACE(testing::Message() << expected.row << ": load " << c.load << " quota "
                                  << int(c.quota) << " schedule " << int(c.schedule) << " window "
                                  << c.status_window << " indicator " << c.indicator << " outcome "
                                  << c.has_outcome << " disabled " << c.disabled << " running "
                                  << int(c.running) << " edition " << c.edition << " recent "
                                  << c.recent << " forced " << c.forced << " due " << c.due);
  ASSERT_EQ(f.view.status_line, expected.line);
  ASSERT_EQ(f.view.transfer_shown, expected.transfer_shown);
  ASSERT_EQ(f.effects.GivesWay(), expected.gives_way);
  ASSERT_EQ(f.Writes(), expected.writes);
  ASSERT_EQ(f.memory.force_refresh, c.forced && !expected.consumes_force);
  ASSERT_TRUE(f.view.fast_timer);
  ASSERT_TRUE(!c.load || f.view.slow_timer);
}

template <class Visit>
void ForEachChannel(Case c, const Visit& visit) {
  for (int quota = 0; quota < 5; ++quota) {
    for (int schedule = 0; schedule < 4; ++schedule) {
      for (const int window : {-1, 0, 1, 2}) {
        for (const int indicator : {0, 2, 3, 4}) {
          for (int running = 0; running < 6; ++running) {
            c.quota = static_cast<Quota>(quota);
            c.schedule = static_cast<Schedule>(schedule);
            c.status_window = static_cast<std::int16_t>(window);
            c.indicator = static_cast<std::int16_t>(indicator);
            c.running = static_cast<Running>(running);
            visit(c);
            if (testing::Test::HasFatalFailure()) return;
          }
        }
      }
    }
  }
}

TEST(IdleOrder, DecidesEveryCrossedStateByTheFirstRowThatApplies) {
  for (int flags = 0; flags < 128; ++flags) {
    Case c;
    c.load = (flags & 1) != 0;
    c.user = (flags & 2) != 0 ? "" : "anna";
    c.has_outcome = (flags & 4) != 0;
    c.disabled = (flags & 8) != 0;
    c.edition = (flags & 16) != 0 ? 1 : 2;
    c.recent = (flags & 32) != 0;
    c.forced = (flags & 64) != 0;
    for (const bool due : {false, true}) {
      c.due = due;
      ForEachChannel(c, [](const Case& one) { Check(one); });
      if (HasFatalFailure()) return;
    }
  }
}

TEST(IdleOrder, ShowsTheNextRunBelowTheOutcome) {
  IdleFixture f;
  f.now.status_window = 1;
  f.now.outcome = kOutcome;
  f.schedule.difference.recent = true;
  f.Tick();
  EXPECT_EQ(f.view.status_line, kOutcome);
  EXPECT_EQ(f.view.next_line, kNext);
  EXPECT_TRUE(f.view.next_line_shown);
}

}  // namespace
}  // namespace status
