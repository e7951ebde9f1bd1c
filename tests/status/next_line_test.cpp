#include "status/next_line.h"

#include <gtest/gtest.h>

#include "tests/status/idle_fixture.h"

namespace status {
namespace {

struct DateCase {
  std::string_view stored;
  std::string_view format;
  std::string_view shown;
};

constexpr DateCase kDates[] = {
    {"02-15-2011 10:30:00", "M/d/yyyy", "02-15-2011 10:30:00"},
    {"02-15-2011 10:30:00", "yyyy-MM-dd", "02-15-2011 10:30:00"},
    {"02-15-2011 10:30:00", "dd/MM/yyyy", "02/15/2011 10:30:00"},
    {"02-15-2011 10:30:00", "DD/MM/YYYY", "02/15/2011 10:30:00"},
    {"02-15-2011 10:30:00", "dd.MM.yyyy", "02-15-2011 10:30:00"},
    {"02-15-2011 10:30:00", "d/M/yyyy", "02-15-2011 10:30:00"},
    {"02-15-2011 10:30:00", "", "02-15-2011 10:30:00"},
    {"tomorrow", "dd/MM/yyyy", "tomorrow"},
    {"02-15-2011", "dd/MM/yyyy", "02-15-2011"},
};

TEST(DateForPeople, ChangesOnlyInALocaleThatBeginsWithTheDay) {
  for (const DateCase& date : kDates) {
    EXPECT_EQ(DateForPeople(date.stored, date.format), date.shown) << date.format;
  }
}

TEST(NextLineText, NamesTheDate) {
  EXPECT_EQ(NextLineText({std::string(kRecord), ""}, "M/d/yyyy", EnglishTexts()),
            "Your next backup will occur on  02-15-2011 10:30:00");
}

TEST(NextLineText, NamesTheJobThatIsNotTheDefaultSet) {
  EXPECT_EQ(NextLineText({std::string(kRecord), "SQL Server"}, "M/d/yyyy", EnglishTexts()),
            "Your next backup(SQL Server) will occur on 02-15-2011 10:30:00");
}

TEST(NextLineText, IsEmptyWithoutAStartTime) {
  EXPECT_EQ(NextLineText({"1\b\btventbkupjob\b\b\b\b", ""}, "M/d/yyyy", EnglishTexts()), "");
  EXPECT_EQ(NextLineText({}, "M/d/yyyy", EnglishTexts()), "");
}

}  // namespace
}  // namespace status
