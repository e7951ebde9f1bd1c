#include "schedule/time_difference.h"

#include <gtest/gtest.h>

#include "schedule/sort_key.h"

namespace schedule {
namespace {

using platform::LocalTime;

// A moment "mm-dd-yyyy HH:mm".
LocalTime At(std::string_view text) {
  return CutSortKey(Sch_SortBuildDate(text)).value_or(LocalTime());
}

struct Row {
  const char* first;
  const char* second;
  const char* text;  // the count and the unit
};

std::string Rounded(const Row& row, TimeDirection direction) {
  const RoundedTime time = RoundDifference(At(row.first), At(row.second), direction);
  const char* const units[] = {"day", "hour", "minute"};
  return std::to_string(time.count) + " " + units[static_cast<std::size_t>(time.unit)];
}

// Rows that do not depend on the direction.
constexpr Row kBothWays[] = {
    // Minutes; from 30 on they are an hour.
    {"06-15-2011 10:00", "06-15-2011 10:00", "0 minute"},
    {"06-15-2011 10:00", "06-15-2011 10:01", "1 minute"},
    {"06-15-2011 10:00", "06-15-2011 10:02", "2 minute"},
    {"06-15-2011 10:00", "06-15-2011 10:29", "29 minute"},
    {"06-15-2011 10:00", "06-15-2011 10:30", "1 hour"},
    {"06-15-2011 10:00", "06-15-2011 10:31", "1 hour"},
    {"06-15-2011 10:00", "06-15-2011 10:59", "1 hour"},
    // Over one full hour: up to five minutes stay the hour.
    {"06-15-2011 10:59", "06-15-2011 11:00", "1 hour"},
    {"06-15-2011 10:58", "06-15-2011 11:02", "1 hour"},
    {"06-15-2011 10:57", "06-15-2011 11:02", "1 hour"},
    {"06-15-2011 10:56", "06-15-2011 11:02", "6 minute"},
    {"06-15-2011 10:50", "06-15-2011 11:10", "20 minute"},
    {"06-15-2011 10:31", "06-15-2011 11:00", "29 minute"},
    {"06-15-2011 10:30", "06-15-2011 11:00", "1 hour"},
    {"06-15-2011 10:01", "06-15-2011 11:00", "1 hour"},
    // Hours.
    {"06-15-2011 10:00", "06-15-2011 11:00", "1 hour"},
    {"06-15-2011 10:00", "06-15-2011 11:59", "1 hour"},
    {"06-15-2011 10:00", "06-15-2011 12:00", "2 hour"},
    {"06-15-2011 10:30", "06-15-2011 12:00", "1 hour"},
    {"06-15-2011 10:57", "06-15-2011 13:02", "3 hour"},
    {"06-15-2011 10:56", "06-15-2011 13:02", "2 hour"},
    {"06-15-2011 00:00", "06-15-2011 23:00", "23 hour"},
    {"06-15-2011 00:00", "06-15-2011 23:59", "23 hour"},
    // Days.
    {"06-15-2011 10:00", "06-16-2011 10:00", "1 day"},
    {"06-15-2011 10:00", "06-16-2011 09:00", "23 hour"},
    {"06-15-2011 10:00", "06-16-2011 09:59", "23 hour"},
    {"06-15-2011 10:30", "06-16-2011 10:10", "1 day"},
    {"06-15-2011 10:00", "06-16-2011 11:00", "1 day"},
    {"06-15-2011 23:30", "06-16-2011 00:10", "1 hour"},
    {"06-15-2011 23:00", "06-16-2011 00:00", "1 hour"},
    {"06-15-2011 10:00", "06-17-2011 09:59", "1 day"},
    {"06-15-2011 10:00", "06-17-2011 10:00", "2 day"},
    {"06-01-2011 00:00", "06-30-2011 00:00", "29 day"},
    // Month ends.
    {"06-30-2011 10:00", "07-01-2011 10:00", "1 day"},
    {"06-30-2011 10:00", "07-01-2011 09:00", "23 hour"},
    {"06-30-2011 23:00", "07-01-2011 01:00", "2 hour"},
    {"07-31-2011 10:00", "08-01-2011 09:00", "23 hour"},
    {"07-31-2011 10:00", "08-01-2011 10:00", "24 hour"},
    {"07-31-2011 10:00", "08-01-2011 12:00", "1 day"},
    {"07-31-2011 00:00", "08-01-2011 23:00", "1 day"},
    {"07-31-2011 23:00", "08-01-2011 01:00", "2 hour"},
    {"07-30-2011 10:00", "08-01-2011 10:00", "1 day"},
    {"01-31-2011 10:00", "02-01-2011 10:00", "24 hour"},
    {"03-31-2011 10:00", "04-01-2011 10:00", "24 hour"},
    // Months.
    {"06-15-2011 10:00", "07-15-2011 10:00", "30 day"},
    {"06-15-2011 10:00", "07-15-2011 09:00", "30 day"},
    {"07-15-2011 10:00", "08-15-2011 10:00", "31 day"},
    {"06-15-2011 10:00", "07-20-2011 10:00", "35 day"},
    {"06-20-2011 10:00", "07-15-2011 10:00", "25 day"},
    {"07-20-2011 10:00", "08-15-2011 10:00", "25 day"},
    {"06-15-2011 10:00", "08-15-2011 10:00", "61 day"},
    {"02-15-2011 10:00", "03-15-2011 10:00", "28 day"},
    {"01-15-2011 10:00", "12-15-2011 10:00", "334 day"},
    {"01-01-2011 10:00", "12-31-2011 10:00", "364 day"},
    // The end of February, borrowed from by both: it always has 28 days.
    {"02-28-2011 10:00", "03-01-2011 10:00", "1 day"},
    {"02-28-2011 10:00", "03-01-2011 09:00", "23 hour"},
    {"02-27-2011 10:00", "03-01-2011 10:00", "2 day"},
    {"02-15-2011 10:00", "03-10-2011 10:00", "23 day"},
    {"02-28-2012 10:00", "03-01-2012 10:00", "1 day"},
    {"02-29-2012 10:00", "03-01-2012 10:00", "24 hour"},
    {"02-29-2012 10:00", "03-01-2012 09:00", "23 hour"},
    // Year ends.
    {"12-31-2010 23:59", "01-01-2011 00:00", "1 hour"},
    {"12-31-2010 23:00", "01-01-2011 01:00", "2 hour"},
    {"12-31-2010 10:00", "01-01-2011 10:00", "24 hour"},
    {"12-31-2010 10:00", "01-01-2011 11:00", "1 day"},
    {"12-31-2010 00:00", "01-01-2011 23:00", "1 day"},
    {"12-30-2010 10:00", "01-01-2011 10:00", "1 day"},
    {"12-31-2010 10:00", "01-02-2011 10:00", "1 day"},
    {"12-01-2010 10:00", "01-31-2011 10:00", "60 day"},
    {"11-15-2010 10:00", "01-10-2011 10:00", "56 day"},
    {"12-15-2010 10:00", "02-10-2011 10:00", "56 day"},
    {"06-15-2010 10:00", "06-15-2011 10:00", "365 day"},
    {"01-01-2010 10:00", "12-31-2011 10:00", "728 day"},
    // More than one.
    {"06-15-2010 10:00", "06-15-2012 10:00", "730 day"},
    {"12-31-2010 10:00", "01-01-2012 10:00", "365 day"},
    {"06-15-2010 10:00", "05-15-2013 10:00", "730 day"},
    {"06-15-2010 10:00", "07-15-2013 10:00", "1095 day"},
    {"06-15-2010 10:00", "06-15-2020 10:00", "3650 day"},
};

// Looking ahead, days are borrowed from the month of now, the first.
constexpr Row kForward[] = {
    {"02-15-2011 10:00", "04-10-2011 10:00", "54 day"},
    {"02-20-2011 10:00", "04-10-2011 10:00", "49 day"},
    {"01-15-2011 10:00", "03-10-2011 10:00", "53 day"},
    {"01-31-2011 10:00", "03-01-2011 10:00", "28 day"},
    {"06-20-2011 10:00", "08-15-2011 10:00", "56 day"},
    {"01-31-2011 10:00", "12-01-2011 10:00", "303 day"},
};

// Looking back, from the month before that of now, the second.
constexpr Row kBackward[] = {
    {"02-15-2011 10:00", "04-10-2011 10:00", "53 day"},
    {"01-20-2011 10:00", "03-10-2011 10:00", "49 day"},
    {"01-31-2011 10:00", "03-01-2011 10:00", "29 day"},
    {"06-20-2011 10:00", "08-15-2011 10:00", "55 day"},
    // The clock was set back behind the moment.
    {"06-15-2011 10:20", "06-15-2011 10:00", "20 minute"},
    {"06-15-2011 10:40", "06-15-2011 10:00", "1 hour"},
    {"06-15-2011 12:00", "06-15-2011 10:00", "0 minute"},
    {"06-16-2011 10:10", "06-15-2011 10:00", "10 minute"},
    {"12-05-2011 10:00", "11-20-2011 10:00", "349 day"},
    {"12-20-2011 10:00", "11-05-2011 10:00", "319 day"},
    {"01-05-2012 10:00", "12-30-2011 10:00", "359 day"},
};

TEST(TimeDifference, RoundsTheSameWayInBothDirections) {
  for (const Row& row : kBothWays) {
    EXPECT_EQ(Rounded(row, TimeDirection::kForward), row.text) << row.first << " " << row.second;
    EXPECT_EQ(Rounded(row, TimeDirection::kBackward), row.text) << row.first << " " << row.second;
  }
}

TEST(TimeDifference, LookingAheadBorrowsFromTheMonthOfNow) {
  for (const Row& row : kForward) {
    EXPECT_EQ(Rounded(row, TimeDirection::kForward), row.text) << row.first << " " << row.second;
  }
}

TEST(TimeDifference, LookingBackBorrowsFromTheMonthBeforeThatOfNow) {
  for (const Row& row : kBackward) {
    EXPECT_EQ(Rounded(row, TimeDirection::kBackward), row.text) << row.first << " " << row.second;
  }
}

TEST(TimeDifference, TheWordsAreTheSameForOneAndForMore) {
  const auto forward = [](int count, TimeUnit unit) {
    return DescribeTime({.count = count, .unit = unit}, TimeDirection::kForward);
  };
  EXPECT_EQ(forward(1, TimeUnit::kDays), "Backup will start in next 1 day(s).");
  EXPECT_EQ(forward(2, TimeUnit::kDays), "Backup will start in next 2 day(s).");
  EXPECT_EQ(forward(1, TimeUnit::kHours), "Backup will start in next 1 hour(s).");
  EXPECT_EQ(forward(23, TimeUnit::kHours), "Backup will start in next 23 hour(s).");
  EXPECT_EQ(forward(1, TimeUnit::kMinutes), "Backup will start in next 1 minute(s).");
  EXPECT_EQ(forward(29, TimeUnit::kMinutes), "Backup will start in next 29 minute(s).");
  const auto backward = [](int count, TimeUnit unit) {
    return DescribeTime({.count = count, .unit = unit}, TimeDirection::kBackward);
  };
  EXPECT_EQ(backward(1, TimeUnit::kDays), "Files backed up 1 day(s) ago.");
  EXPECT_EQ(backward(365, TimeUnit::kDays), "Files backed up 365 day(s) ago.");
  EXPECT_EQ(backward(1, TimeUnit::kHours), "Files backed up 1 hour(s) ago.");
  EXPECT_EQ(backward(24, TimeUnit::kHours), "Files backed up 24 hour(s) ago.");
  EXPECT_EQ(backward(1, TimeUnit::kMinutes), "Files backed up 1 minute(s) ago.");
  EXPECT_EQ(backward(0, TimeUnit::kMinutes), "Files backed up 0 minute(s) ago.");
}

class TimeDifferenceText : public ::testing::Test {
 protected:
  status::TimeDifference Compute() { return ComputeTimeDifference(input_); }

  TimeDifferenceInput input_{
      .now = {.year = 2011, .month = 6, .day = 15, .hour = 10, .minute = 0, .second = 59}};
};

TEST_F(TimeDifferenceText, ARunThatIsPastGivesNoText) {
  input_.scheduled = "06-15-2011 09:59:59";
  EXPECT_EQ(Compute().text, "");
  input_.scheduled = "06-15-2011 10:00:00";
  EXPECT_EQ(Compute().text, "Backup will start in next 0 minute(s).");
  input_.scheduled = "06-15-2011 10:01:00";
  EXPECT_EQ(Compute().text, "Backup will start in next 1 minute(s).");
}

TEST_F(TimeDifferenceText, LookingAheadNothingIsRecent) {
  input_.scheduled = "06-15-2011 10:10:00";
  EXPECT_FALSE(Compute().recent);
}

TEST_F(TimeDifferenceText, TheEndOfTheLastRunDecidesTheDirection) {
  input_.scheduled = "06-15-2011 12:00:00";
  input_.last_run = "06-15-2011 07:00:00";
  EXPECT_EQ(Compute().text, "Backup will start in next 2 hour(s).");
  input_.end_time = "06-15-2011 09:00:00";
  EXPECT_EQ(Compute().text, "Files backed up 1 hour(s) ago.");
}

TEST_F(TimeDifferenceText, ARunThatEndedLessThanHalfAnHourAgoIsRecent) {
  const std::pair<std::string_view, bool> rows[] = {
      {"06-15-2011 10:00:00", true},  {"06-15-2011 09:59:00", true},
      {"06-15-2011 09:57:00", true},  {"06-15-2011 09:31:00", true},
      {"06-15-2011 09:30:00", false}, {"06-15-2011 09:29:00", false},
      {"06-15-2011 09:00:00", false}, {"06-14-2011 10:00:00", false},
      {"06-14-2011 09:59:00", false}, {"06-15-2011 10:01:00", false},
      {"02-30-2011 10:00:00", false}};
  for (const auto& [end, recent] : rows) {
    input_.end_time = end;
    EXPECT_EQ(Compute().recent, recent) << end;
  }
}

TEST_F(TimeDifferenceText, ARecentEndMayLieAcrossMidnightAndTheTurnOfTheYear) {
  input_.now = {.year = 2012, .month = 1, .day = 1, .hour = 0, .minute = 19, .second = 0};
  input_.end_time = "12-31-2011 23:50:00";
  EXPECT_TRUE(Compute().recent);
  input_.now.minute = 20;
  EXPECT_FALSE(Compute().recent);
}

TEST_F(TimeDifferenceText, AWaitingWindowLooksBackToTheLastRun) {
  input_.scheduled = "06-15-2011 12:00:00";
  input_.last_run = "06-15-2011 07:00:00";
  input_.window_waits = true;
  EXPECT_EQ(Compute().text, "Files backed up 3 hour(s) ago.");
  input_.end_time = "06-15-2011 08:00:00";
  EXPECT_EQ(Compute().text, "Files backed up 2 hour(s) ago.");
  input_.end_time = "";
  input_.last_run = "";
  EXPECT_EQ(Compute().text, "");
}

TEST_F(TimeDifferenceText, AFailureIsAllThatIsSaid) {
  input_.end_time = "06-15-2011 09:59:00";
  input_.failed = true;
  EXPECT_EQ(Compute().text, "Backup has failed");
  EXPECT_FALSE(Compute().recent);
}

TEST_F(TimeDifferenceText, TextsThatGiveNoKeyGiveNoText) {
  for (const std::string_view text : {"", "tomorrow", "6-5-2011 10:00:00", "\b\b"}) {
    input_.scheduled = text;
    input_.end_time = "";
    EXPECT_EQ(Compute().text, "") << text;
    input_.end_time = text.empty() ? "x" : text;
    EXPECT_EQ(Compute().text, "") << text;
  }
}

TEST_F(TimeDifferenceText, NumbersThatAreNoDateGiveSomeText) {
  for (const std::string_view text : {"99-99-9999 99:99:99", "00-00-0000 00:00:00",
                                      "02-30-2011 25:61:00", "13-32-2011 10:00:00"}) {
    input_.end_time = text;
    EXPECT_NE(Compute().text, "") << text;
    EXPECT_FALSE(Compute().recent) << text;
  }
}

}  // namespace
}  // namespace schedule
