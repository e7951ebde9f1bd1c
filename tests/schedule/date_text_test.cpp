#include "schedule/date_text.h"

#include <gtest/gtest.h>

#include "shared/trace.h"

namespace schedule {
namespace {

std::string Read(std::string_view text, bool day_first) {
  const auto time = ReadDateText(text, day_first);
  return time ? shared::FormatStamp(*time) : "no date";
}

struct Row {
  std::string text;
  std::string month_first;
  std::string day_first;
};

TEST(DateText, IsReadInTheOrderOfTheLocale) {
  const Row rows[] = {
      {"03-04-2011 09:05:07", "03-04-2011 09:05:07", "04-03-2011 09:05:07"},
      {"03/04/2011", "03-04-2011 00:00:00", "04-03-2011 00:00:00"},
      {"3.4.2011 9.05.07", "03-04-2011 09:05:07", "04-03-2011 09:05:07"},
      {"3/4/2011 9:05:07 PM", "03-04-2011 21:05:07", "04-03-2011 21:05:07"},
      {"3/4/2011 12:30:00 am", "03-04-2011 00:30:00", "04-03-2011 00:30:00"},
      {"3/4/2011 12:30 PM", "03-04-2011 12:30:00", "04-03-2011 12:30:00"},
      {"2011-03-04 10:00", "03-04-2011 10:00:00", "03-04-2011 10:00:00"},
      {"3/4/11", "03-04-2011 00:00:00", "04-03-2011 00:00:00"},
      {"3/4/29", "03-04-2029 00:00:00", "04-03-2029 00:00:00"},
      {"3/4/30", "03-04-1930 00:00:00", "04-03-1930 00:00:00"},
      {"31-12-2011", "12-31-2011 00:00:00", "12-31-2011 00:00:00"},
      {"12-31-2011", "12-31-2011 00:00:00", "12-31-2011 00:00:00"},
      {"Dec 5, 2011 20:00:00", "12-05-2011 20:00:00", "12-05-2011 20:00:00"},
      {"5 december 2011", "12-05-2011 00:00:00", "12-05-2011 00:00:00"},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(Read(row.text, false), row.month_first) << row.text;
    EXPECT_EQ(Read(row.text, true), row.day_first) << row.text;
  }
}

TEST(DateText, WhatIsNoDateIsNone) {
  for (const std::string text :
       {"", " ", "02-30-2011", "29-02-2011", "31-31-2011", "0-0-0", "1-2", "1-2-2011 24:00:00",
        "1-2-2011 10:60", "1-2-2011 10:00:60", "1-2-2011 1:2:3:4", "tomorrow", "Sept", "De 5 2011",
        "1-2-20111", "1_2_2011", "1-2-2011 10:00\b", "99999999999999999999-1-1"}) {
    EXPECT_EQ(Read(text, false), "no date") << text;
    EXPECT_EQ(Read(text, true), "no date") << text;
  }
}

TEST(DateText, IsFormattedAnewAndAnyOtherTextIsLeft) {
  EXPECT_EQ(FormatDateText("Dec 5 2011 8:00 PM", false), "12-05-2011 20:00:00");
  EXPECT_EQ(FormatDateText("D-day", true), "D-day");
}

TEST(DateText, TheSystemsTextFollowsItsFormats) {
  shared::AgentState state;
  const platform::LocalTime time = {
      .year = 2011, .month = 3, .day = 4, .hour = 15, .minute = 5, .second = 7};
  const auto text = [&](std::string_view date, std::string_view clock) {
    state.ShortDateFormat = date;
    state.TimeFormat = clock;
    return SystemDateText(time, state);
  };
  EXPECT_EQ(text("M/d/yyyy", "h:mm:ss tt"), "3/4/2011 3:05:07 PM");
  EXPECT_EQ(text("dd.MM.yyyy", "HH:mm:ss"), "04.03.2011 15:05:07");
  EXPECT_EQ(text("dd-MMM-yy", "H.mm.ss"), "04-Mar-11 15.05.07");
  EXPECT_EQ(text("d 'de' MMMM 'de' yyyy", "hh:mm t"), "4 de March de 2011 03:05 P");
  EXPECT_EQ(text("", ""), "3/4/2011 3:05:07 PM");
}

TEST(DateText, AtMidnightTheSystemGivesTheDateAlone) {
  shared::AgentState state;
  state.ShortDateFormat = "dd/MM/yyyy";
  EXPECT_EQ(SystemDateText(
                {.year = 2011, .month = 3, .day = 4, .hour = 0, .minute = 0, .second = 0}, state),
            "04/03/2011");
}

}  // namespace
}  // namespace schedule
