#include "schedule/normal_date.h"

#include <gtest/gtest.h>

#include <string>

namespace schedule {
namespace {

struct Row {
  std::string text;
  std::string normal;
};

TEST(NormalDate, AnyFormBecomesTheOne) {
  const Row rows[] = {
      {"01-31-2011 09:05:07", "01-31-2011 09:05:07"},
      {"1-5-2011 9:5:7", "01-05-2011 09:05:07"},
      {"01/31/2011 09:05:07", "01-31-2011 09:05:07"},
      {"1/5/2011 9:05:07 AM", "01-05-2011 09:05:07"},
      {"1/5/2011 9:05:07 PM", "01-05-2011 21:05:07"},
      {"1/5/2011 9:05:07 pm", "01-05-2011 21:05:07"},
      {"01.31.2011 09.05.07", "01-31-2011 09:05:07"},
      {"31.01.2011 9.05.07", "31-01-2011 09:05:07"},
      {"31/01/2011 21:05:07", "31-01-2011 21:05:07"},
      {"01-31-2011 09-05-07", "01-31-2011 09:05:07"},
      {"  01-31-2011 09:05:07  ", "01-31-2011 09:05:07"},
      {"01-31-2011  09:05", "01-31-2011 09:05"},
      {"01-31-2011", "01-31-2011"},
      {"", ""},
      {"x", "0X"},
      {"12-31-2010 12:30:00 AM", "12-31-2010 12:30:00"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(ValidateSorvaneDateFormat(row.text), row.normal) << row.text;
}

TEST(NormalDate, EndsAtTheFirstNul) {
  EXPECT_EQ(ValidateSorvaneDateFormat(std::string("1/5/2011 9:05:07\0junk", 21)),
            "01-05-2011 09:05:07");
}

TEST(NormalDate, TheOrderOfDayAndMonthStays) {
  EXPECT_EQ(ValidateSorvaneDateFormat("31/1/2011 10:00:00"), "31-01-2011 10:00:00");
  EXPECT_EQ(ValidateSorvaneDateFormat("1/31/2011 10:00:00"), "01-31-2011 10:00:00");
}

TEST(NormalDate, AnAfternoonIsTwelveHoursLaterEvenAtNoon) {
  EXPECT_EQ(ValidateSorvaneTimeFormat("1:00:00", true), "13:00:00");
  EXPECT_EQ(ValidateSorvaneTimeFormat("11.59.59", true), "23:59:59");
  EXPECT_EQ(ValidateSorvaneTimeFormat("12:30:00", true), "24:30:00");
  EXPECT_EQ(ValidateSorvaneTimeFormat("12:30:00", false), "12:30:00");
}

TEST(NormalDate, ATimeWithoutASeparatorIsPaddedOnly) {
  EXPECT_EQ(ValidateSorvaneTimeFormat("9", false), "09");
  EXPECT_EQ(ValidateSorvaneTimeFormat("9", true), "21");
  EXPECT_EQ(ValidateSorvaneTimeFormat("", true), "");
  EXPECT_EQ(ValidateSorvaneTimeFormat("ab", true), "0a:");
}

TEST(NormalDate, AnHourThatIsNoNumberStays) {
  EXPECT_EQ(ValidateSorvaneTimeFormat("x:10", true), "0x:10");
  EXPECT_EQ(ValidateSorvaneTimeFormat("99999:10", true), "99999:10");
}

}  // namespace
}  // namespace schedule
