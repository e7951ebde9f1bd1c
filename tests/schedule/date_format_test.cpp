#include "schedule/date_format.h"

#include <gtest/gtest.h>

namespace schedule {
namespace {

constexpr std::string_view kText = "03-04-2011 15:05:07";

TEST(DateFormat, ADateTimeHasAtMostTwoOtherCharacters) {
  EXPECT_TRUE(CheckValidDateTime(""));
  EXPECT_TRUE(CheckValidDateTime("03-04-2011"));
  EXPECT_TRUE(CheckValidDateTime("abc 09:05:00"));
  EXPECT_FALSE(CheckValidDateTime("03-04-2011 09:05"));
  EXPECT_FALSE(CheckValidDateTime("---"));
}

TEST(DateFormat, AFieldThatComesOutBlankIsNotValid) {
  EXPECT_EQ(CheckValidDateFormat(kText, "dd/MM/yyyy"), "True");
  EXPECT_EQ(CheckValidDateFormat(kText, "M.d.yy"), "True");
  EXPECT_EQ(CheckValidDateFormat("03-  -2011", "dd/MM/yyyy"), "False");
  EXPECT_EQ(CheckValidDateFormat("  -04-2011", "dd/MM/yyyy"), "False");
  EXPECT_EQ(CheckValidDateFormat("03-04-", "dd/MM/yyyy"), "False");
  EXPECT_EQ(CheckValidDateFormat("03-04-20", "dd/MM/yy"), "False");
}

TEST(DateFormat, OtherFieldsAreNotTested) {
  EXPECT_EQ(CheckValidDateFormat("", ""), "True");
  EXPECT_EQ(CheckValidDateFormat("", "MMM"), "True");
  EXPECT_EQ(CheckValidDateFormat("", "HH:SS tt"), "True");
}

TEST(DateFormat, TheDateTakesTheOrderOfTheLocale) {
  EXPECT_EQ(ConvertToDate(kText, "dd/MM/yyyy"), "04/03/2011");
  EXPECT_EQ(ConvertToDate(kText, "M/d/yyyy"), "03/04/2011");
  EXPECT_EQ(ConvertToDate(kText, "d.M.yy"), "04.03.11");
  EXPECT_EQ(ConvertToDate(kText, "dd-MMM-yyyy"), "04-Mar-2011");
  EXPECT_EQ(ConvertToDate(kText, "yyyy-MM-dd"), "2011-03-04");
}

TEST(DateFormat, EveryMonthHasAName) {
  const std::string names[] = {"Jan", "Feb", "Mar", "Apr", "May", "Jun",
                               "Jul", "Aug", "Sep", "Oct", "Nov", "Dec"};
  int month = 0;
  for (const std::string& name : names) {
    ++month;
    const std::string number = (month < 10 ? "0" : "") + std::to_string(month);
    EXPECT_EQ(ConvertToDate(number + "-04-2011", "MMM"), name);
  }
  EXPECT_EQ(ConvertToDate("13-04-2011", "MMM"), "");
  EXPECT_EQ(ConvertToDate("xx", "MMM"), "");
}

TEST(DateFormat, TheTimeTakesTheFormOfTheLocale) {
  EXPECT_EQ(ConvertToTime(kText, "HH:mm:ss"), "15:05:07");
  EXPECT_EQ(ConvertToTime(kText, "H.mm.ss"), "15.05.07");
  EXPECT_EQ(ConvertToTime(kText, "h:mm:ss tt"), "03:05:07 PM");
}

TEST(DateFormat, TheHoursBehindNoonCountFromOneAgain) {
  const auto hour = [](std::string_view number) {
    return ConvertToTime("03-04-2011 " + std::string(number) + ":05:07", "h:mm tt");
  };
  EXPECT_EQ(hour("00"), "00:05 AM");
  EXPECT_EQ(hour("11"), "11:05 AM");
  EXPECT_EQ(hour("12"), "12:05 PM");
  EXPECT_EQ(hour("13"), "01:05 PM");
  EXPECT_EQ(hour("23"), "11:05 PM");
}

TEST(DateFormat, TextsThatAreTooShortGiveWhatTheyHave) {
  EXPECT_EQ(ConvertToDate("03", "dd/MM/yyyy"), "/03/");
  EXPECT_EQ(ConvertToTime("", "HH:mm:ss"), "::");
}

}  // namespace
}  // namespace schedule
