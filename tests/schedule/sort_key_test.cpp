#include "schedule/sort_key.h"

#include <gtest/gtest.h>

namespace schedule {
namespace {

TEST(SortKey, TakesTheDateFromFixedPlacesAndTheTimeAroundItsSeparator) {
  EXPECT_EQ(Sch_SortBuildDate("01-31-2011 09:05:00"), "201101310905");
  EXPECT_EQ(Sch_SortBuildDate("12-01-2024 23:59:59"), "202412012359");
}

TEST(SortKey, SecondsDoNotCount) {
  EXPECT_EQ(Sch_SortBuildDate("01-31-2011 09:05:00"), Sch_SortBuildDate("01-31-2011 09:05:59"));
  EXPECT_EQ(Sch_SortBuildDate("01-31-2011 09:05"), "201101310905");
}

TEST(SortKey, OneSeparatorForDateAndTimeGivesTheSameKeyAsTheHyphenForm) {
  EXPECT_EQ(Sch_SortBuildDate("01.31.2011 09.05.00"), "201101310905");
  EXPECT_EQ(Sch_SortBuildDate("01/31/2011 09/05/00"), "201101310905");
  EXPECT_EQ(Sch_SortBuildDate("01:31:2011 09:05:00"), "201101310905");
}

TEST(SortKey, TheSecondFormKnowsNoSharedSeparator) {
  EXPECT_EQ(BuildSortKey("01-31-2011 09:05:00"), "201101310905");
  EXPECT_EQ(BuildSortKey("01.31.2011 09.05.00"), "201101310131");
}

TEST(SortKey, AnyOtherSeparatorOfTheDateDoesNotMatter) {
  EXPECT_EQ(Sch_SortBuildDate("01/31/2011 09:05:00"), "201101310905");
  EXPECT_EQ(Sch_SortBuildDate("01.31.2011 09:05:00"), "201101310905");
}

TEST(SortKey, OneDigitOfHourOrMinuteGetsAZero) {
  EXPECT_EQ(Sch_SortBuildDate("01-31-2011 9:5:00"), "201101310905");
  EXPECT_EQ(Sch_SortBuildDate("01.31.2011 9.5.00"), "201101310905");
}

TEST(SortKey, AfternoonWordsAreLettersAndDoNotCount) {
  EXPECT_EQ(Sch_SortBuildDate("01-31-2011 09:05:00 PM"), "201101310905");
}

TEST(SortKey, ADateOfOneDigitIsReadFromTheWrongPlaces) {
  EXPECT_NE(Sch_SortBuildDate("1-31-2011 09:05:00"), "201101310905");
}

TEST(SortKey, SeparatorsThatStandTogetherAreOne) {
  EXPECT_EQ(Sch_SortBuildDate("01-31-2011 09::05::00"), "201101310905");
}

TEST(SortKey, ATextWithoutASeparatorHasNoMinute) {
  EXPECT_EQ(Sch_SortBuildDate("0131201109"), "1109011209");
}

TEST(SortKey, TextsThatAreNoDateGiveWrongKeysAndNothingElse) {
  EXPECT_EQ(Sch_SortBuildDate(""), "");
  EXPECT_EQ(Sch_SortBuildDate(":"), ":");
  EXPECT_EQ(Sch_SortBuildDate("::::::::"), "::::::");
}

TEST(SortKey, TheYearAlone) {
  EXPECT_EQ(Sch_SortBuildDateYear("01-31-2011 09:05:00"), "2011");
  EXPECT_EQ(Sch_SortBuildDateYear("01-31"), "");
}

TEST(SortKey, IsCutIntoTheNumbersOfAMoment) {
  const platform::LocalTime expected = {
      .year = 2011, .month = 1, .day = 31, .hour = 9, .minute = 5, .second = 0};
  EXPECT_EQ(CutSortKey("201101310905"), expected);
}

TEST(SortKey, OnlyTwelveDigitsAreAMoment) {
  for (const std::string key :
       {"", "20110131090", "2011013109055", "2011o1310905", "20110131 905"}) {
    EXPECT_EQ(CutSortKey(key), std::nullopt) << key;
  }
}

}  // namespace
}  // namespace schedule
