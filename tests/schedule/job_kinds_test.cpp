#include "schedule/job_kinds.h"

#include <gtest/gtest.h>

#include "schedule/frequency.h"

namespace schedule {
namespace {

TEST(JobKinds, EachHasItsCodeKeywordAndName) {
  const std::string_view rows[][3] = {{"1", "tventbkupjob", ""},
                                      {"2", "SQLSERVERBACKUP", "SQL Server"},
                                      {"3", "SYSTEMSTATEBACKUP", "System State"},
                                      {"4", "EXCHANGEBACKUP", "Exchange Server"},
                                      {"5", "EXCHANGEBRICKBACKUP", "Exchange Brick Level"}};
  ASSERT_EQ(JobKinds().size(), std::size(rows));
  for (const auto& [code, keyword, name] : rows) {
    const JobKind* kind = FindJobKindByCode(code);
    ASSERT_NE(kind, nullptr) << code;
    EXPECT_EQ(kind->keyword, keyword);
    EXPECT_EQ(kind->name, name);
    EXPECT_EQ(FindJobKind(keyword), kind);
  }
}

TEST(JobKinds, NoJobAndUnknownTextsAreNoKind) {
  EXPECT_EQ(FindJobKindByCode("0"), nullptr);
  EXPECT_EQ(FindJobKindByCode(""), nullptr);
  EXPECT_EQ(FindJobKindByCode("6"), nullptr);
  EXPECT_EQ(FindJobKind(""), nullptr);
  EXPECT_EQ(FindJobKind("sqlserverbackup"), nullptr);
}

TEST(JobKinds, TheWizardsTypesStandForKindsWithRecordNumbers) {
  const std::tuple<std::int16_t, std::string_view, std::string_view> rows[] = {
      {std::int16_t{1}, "tventbkupjob", "1"},
      {std::int16_t{4}, "tventbkupjob", "1"},
      {std::int16_t{2}, "SQLSERVERBACKUP", "2"},
      {std::int16_t{5}, "SYSTEMSTATEBACKUP", "3"},
      {std::int16_t{6}, "EXCHANGEBACKUP", "4"}};
  for (const auto& [type, keyword, record_no] : rows) {
    const JobKind* kind = FindJobKindByType(type);
    ASSERT_NE(kind, nullptr) << type;
    EXPECT_EQ(kind->keyword, keyword);
    EXPECT_EQ(kind->record_no, record_no);
  }
  for (const int type : {0, 3, 7, -1}) {
    EXPECT_EQ(FindJobKindByType(static_cast<std::int16_t>(type)), nullptr) << type;
  }
}

TEST(JobKinds, TheListCallsOnlyTheDefaultSetOtherwise) {
  EXPECT_EQ(TitleOfJob("tventbkupjob"), "DEFAULT BACKUPSET");
  EXPECT_EQ(TitleOfJob("SQLSERVERBACKUP"), "SQLSERVERBACKUP");
}

TEST(JobKinds, TheListDeletesNoBrickLevelJobByItsKeyword) {
  EXPECT_FALSE(IsDeletableFromList("EXCHANGEBRICKBACKUP"));
  EXPECT_TRUE(IsDeletableFromList("TVEXCHANGEBRICKBACKUP"));
  EXPECT_FALSE(IsDeletableFromList(""));
}

TEST(Frequency, EachCodeHasItsName) {
  const std::string_view names[] = {
      "Once", "Hourly", "Daily", "Once", "Monthly", "Week-Day", "Weekend (Sat - Sun)", "Once"};
  for (int code = 1; code <= 8; ++code) {
    EXPECT_EQ(GetFreNameFromIndex(std::to_string(code)), names[code - 1]);
  }
  for (const std::string_view code : {"", "0", "9", "01", "x"}) {
    EXPECT_EQ(GetFreNameFromIndex(code), "");
  }
}

TEST(Frequency, TheWayBackIsAnotherTable) {
  EXPECT_EQ(GetFrequencyIndex("Once"), 1);
  EXPECT_EQ(GetFrequencyIndex("Hourly"), 2);
  EXPECT_EQ(GetFrequencyIndex("Daily"), 3);
  EXPECT_EQ(GetFrequencyIndex("Week-Day"), 4);
  EXPECT_EQ(GetFrequencyIndex("Monthly"), 5);
  EXPECT_EQ(GetFrequencyIndex("Weekdays (Mon - Fri)"), 6);
  EXPECT_EQ(GetFrequencyIndex("Weekend (Sat - Sun)"), 0);
  EXPECT_EQ(GetFrequencyIndex(""), 0);
}

}  // namespace
}  // namespace schedule
