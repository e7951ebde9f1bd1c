// Crosses all states of the channel and compares each resulting view with the order of decisions,
// written down here as a table: the first row that applies says what is shown and written.
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <vector>

#include "status/transfer_view.h"
#include "tests/status/idle_cases.h"

namespace status {
namespace {

constexpr std::string_view kTime = "Backup will start in next 2 hour(s).";
constexpr std::string_view kNext = "Your next backup will occur on  02-15-2011 10:30:00";
constexpr std::string_view kTwoLines =
    "Your data could not be backed up as you have utilized\r\n"
    "the allocated quota. Upgrade and try again.";

struct Expected {
  std::string_view row;
  StatusView view;
  bool gives_way = false;
  bool asks_for_figures = false;
  std::vector<Effect> writes;
  bool consumes_force = false;
  bool refreshed = false;  // the minute begins anew

  void Line(std::string_view text, int points = 10) {
    view.status_line = text;
    view.status_points = points;
  }
  void Next(std::string_view text) {
    view.next_line = text;
    view.next_line_shown = true;
  }
  void ShowQuota(bool shown) {
    view.quota_text_shown = view.space_label_shown = view.quota_bar_shown = shown;
  }
};

struct QuotaLook {
  std::string_view text;
  std::int16_t bar;
  QuotaColour colour;
};

// By Quota.
constexpr QuotaLook kQuotaLooks[] = {
    {},
    {"1.5 KB out of 4.0 KB", 38, QuotaColour::kGreen},
    {"4.0 KB out of 4.0 KB", 100, QuotaColour::kRed},
    {"4.0 KB out of 4.0 KB", 100, QuotaColour::kRed},
    {"1.5 KB out of 4.0 KB", 38, QuotaColour::kGreen},
};

void QuotaRow(const Case& c, Expected& e) {
  e.ShowQuota(c.quota != Quota::kUnknown);
  if (c.quota == Quota::kUnknown) return;
  const QuotaLook& look = kQuotaLooks[static_cast<int>(c.quota)];
  e.view.quota_text = look.text;
  e.view.quota_bar = look.bar;
  e.view.quota_colour = look.colour;
  if (c.quota == Quota::kExceeded) e.Line(kTwoLines, 9);
  if (c.quota == Quota::kStale) {
    e.Line(EnglishTexts().quota_exceeded);
    e.asks_for_figures = true;
  }
}

void OutcomeLine(const Case& c, Expected& e, int points) {
  if (const auto text = TextOf(c.outcome)) e.Line(*text, points);
}

std::string NoScheduleLine(const Case& c) {
  if (c.disabled) return EnglishTexts().schedule_disabled;
  if (c.MessageIsForMe() && c.outcome == Outcome::kText) return std::string(kOutcome);
  return EnglishTexts().no_schedule;
}

// Where no time can be told, a line that is blank does not stay so.
void FillBlank(const Case& c, Expected& e) {
  if (!e.view.status_line.empty()) return;
  e.view.next_line.clear();
  e.view.next_line_shown = c.schedule != Schedule::kMissing;
  QuotaRow(c, e);
  if (e.view.status_line.empty()) e.Line(NoScheduleLine(c));
}

void NextTransferTime(const Case& c, Expected& e) {
  if (c.schedule == Schedule::kMissing) return FillBlank(c, e);
  if (c.schedule == Schedule::kUnread) return;
  if (!c.HasRun()) {
    QuotaRow(c, e);
    return FillBlank(c, e);
  }
  e.Line(c.disabled ? EnglishTexts().schedule_disabled : std::string(kTime));
  if (!c.disabled) e.Next(kNext);
  QuotaRow(c, e);
}

void LoggedOut(const Case&, Expected& e) {
  e.Line(EnglishTexts().log_in, 9);
  StatusView& view = e.view;
  view.notification_shown = view.user_label_shown = view.space_label_shown = false;
  view.quota_bar_shown = view.log_enabled = false;
  view.user_name = view.quota_text = view.next_line = "";
  view.slow_timer = view.fast_timer = true;
}

void QuotaExceeded(const Case& c, Expected& e) {
  if (c.indicator != 2 || c.outcome == Outcome::kNone) {
    e.writes = {{EffectKind::kWriteOutcome, EnglishTexts().quota_exceeded},
                {EffectKind::kWriteIndicator, "2"}};
  }
  if (c.schedule == Schedule::kRunning) {
    e.Next("");
    e.view.next_line_shown = false;
  } else if (c.schedule != Schedule::kUnread) {
    e.Next(c.HasRun() ? kNext : "");
  }
  QuotaRow(c, e);
}

void NoSchedule(const Case& c, Expected& e) {
  e.view.next_line_shown = false;
  QuotaRow(c, e);
  e.Line(NoScheduleLine(c));
}

void JobRunning(const Case&, Expected& e) {
  e.Line(EnglishTexts().job_in_progress + ".");
  e.ShowQuota(false);
  e.view.quota_text = "";
  e.Next("");
  e.view.next_line_shown = false;
}

void NoRun(const Case& c, Expected& e) {
  e.view.next_line.clear();
  QuotaRow(c, e);
  e.Line(NoScheduleLine(c));
}

void Message(const Case& c, Expected& e) {
  OutcomeLine(c, e, 10);
  QuotaRow(c, e);
}

void FreshOutcome(const Case& c, Expected& e) {
  QuotaRow(c, e);
  if (c.outcome == Outcome::kUnread) return;
  OutcomeLine(c, e, 9);
  e.Next(kNext);
  e.consumes_force = true;
}

void OldOutcome(const Case& c, Expected& e) {
  QuotaRow(c, e);
  e.writes = {{EffectKind::kWriteOutcome, ""}, {EffectKind::kWriteIndicator, "0"}};
  NextTransferTime(c, e);
}

void Unseen(const Case& c, Expected& e) {
  if (c.continuous) {
    e.view.title = "Sorvane - Status";
    e.Line("Continuous Backup is in Progress...");
  } else if (c.running == Running::kBackup) {
    e.Line(EnglishTexts().job_in_progress);
    e.view.space_label_shown = false;
  } else {
    NextTransferTime(c, e);
  }
}

bool MessageAtOnce(const Case& c) {
  return c.load ? c.indicator == 2 : c.status_window == 1 && c.MessageIsForMe();
}

struct Row {
  std::string_view name;
  bool (*applies)(const Case&);
  void (*expect)(const Case&, Expected&);
};

constexpr Row kInTransfer[] = {
    {"the engine shows it", [](const Case& c) { return c.running == Running::kEngine; },
     [](const Case&, Expected& e) {
       e.Line("");
       e.gives_way = true;
     }},
    {"transfer view", [](const Case& c) { return c.running == Running::kHere; },
     [](const Case& c, Expected& e) {
       IdleFixture f;
       Seed(c, f);
       EnterTransferView(e.view, f.transfer, f.context);
     }},
    {"unseen", [](const Case&) { return true; }, Unseen},
};

constexpr Row kAtRest[] = {
    {"quota exceeded", [](const Case& c) { return c.quota == Quota::kExceeded && c.edition != 1; },
     QuotaExceeded},
    {"no schedule", [](const Case& c) { return c.schedule == Schedule::kMissing; }, NoSchedule},
    {"schedule in use", [](const Case& c) { return c.schedule == Schedule::kUnread; },
     [](const Case&, Expected&) {}},
    {"job running", [](const Case& c) { return c.schedule == Schedule::kRunning; }, JobRunning},
    {"no next run", [](const Case& c) { return c.schedule == Schedule::kNoRun; }, NoRun},
    {"message at once", MessageAtOnce, Message},
    {"message at the refresh",
     [](const Case& c) { return c.status_window != 1 && c.RefreshesNow() && c.indicator == 2; },
     Message},
    {"outcome", [](const Case& c) { return c.RefreshesNow() && (c.recent || c.forced); },
     FreshOutcome},
    {"outcome is old", [](const Case& c) { return c.RefreshesNow(); }, OldOutcome},
    {"nothing more", [](const Case&) { return true; }, [](const Case&, Expected&) {}},
};

template <std::size_t kCount>
void TakeFirst(const Row (&rows)[kCount], const Case& c, Expected& e) {
  for (const Row& row : rows) {
    if (!row.applies(c)) continue;
    e.row = row.name;
    return row.expect(c, e);
  }
}

bool RestartsTheMinute(const Case& c) {
  return c.schedule == Schedule::kReady && !MessageAtOnce(c) && c.status_window <= 0 &&
         c.RefreshesNow() && (c.quota != Quota::kExceeded || c.edition == 1);
}

Expected ExpectedOf(const Case& c, const StatusView& before) {
  Expected e;
  e.row = "logged out";
  e.view = before;
  if (c.load) e.view.title = "Sorvane - Scheduled Backup Status";
  if (c.load) e.view.slow_timer = true;
  if (c.user == User::kNobody) {
    LoggedOut(c, e);
    return e;
  }
  e.view.user_name = "anna";
  if (c.InTransfer()) {
    TakeFirst(kInTransfer, c, e);
  } else {
    if (c.user == User::kAnother) {
      e.Line("");
      e.view.next_line.clear();
      NextTransferTime(c, e);
    }
    e.refreshed = RestartsTheMinute(c);
    TakeFirst(kAtRest, c, e);
  }
  if (!c.load || e.gives_way) return e;
  // The load leaves its own sentence when there is no schedule.
  if (c.schedule == Schedule::kMissing) e.Line(EnglishTexts().no_schedule);
  e.view.notification_shown = !c.InTransfer();
  return e;
}

std::vector<Effect> AllWrites(const Expected& e) {
  std::vector<Effect> writes = e.writes;
  if (e.asks_for_figures) writes.insert(writes.begin(), {EffectKind::kRefreshQuota, ""});
  return writes;
}

bool Check(const Case& c) {
  IdleFixture f;
  Seed(c, f);
  const Expected expected = ExpectedOf(c, f.view);
  const std::int32_t ticks = f.memory.refresh_tick_count;
  c.load ? f.Load() : f.Tick();
  SCOPED_TRACE(testing::Message() << expected.row << ": " << c);
  EXPECT_EQ(f.view.status_line, expected.view.status_line);
  EXPECT_EQ(f.view.status_points, expected.view.status_points);
  EXPECT_EQ(f.view.next_line, expected.view.next_line);
  EXPECT_EQ(f.view.quota_text, expected.view.quota_text);
  EXPECT_TRUE(f.view == expected.view);
  EXPECT_EQ(f.effects.GivesWay(), expected.gives_way);
  EXPECT_EQ(f.Writes(), AllWrites(expected));
  EXPECT_EQ(f.memory.force_refresh, c.forced && !expected.consumes_force);
  EXPECT_EQ(f.memory.refresh_tick_count, expected.refreshed ? 0 : ticks + 1);
  return !testing::Test::HasFailure();
}

TEST(IdleOrder, DecidesEveryStateAtRestByTheFirstRowThatApplies) {
  ForEachCase(false, Check);
}

TEST(IdleOrder, DecidesEveryStateInATransferByTheFirstRowThatApplies) {
  ForEachCase(true, Check);
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
