#include "schedule/record_line.h"

#include <gtest/gtest.h>

namespace schedule {
namespace {

using shared::ScheduleRecord;

const std::string kLine =
    "no\b\bset\b\bstart\b\bcreated\b\b3\b\b1\b\ba@b.c;\b\bmode\b\blog\b\bkey\b\b6\b\b1111111";

ScheduleRecord Read(std::string_view line) {
  ScheduleRecord record;
  record.WeekDayMask = "left over";
  SplitRecord(line, record);
  return record;
}

TEST(RecordLine, CutsTheTwelveFieldsInFileOrder) {
  const ScheduleRecord expected = {.RecordNo = "no",
                                   .BackupSetName = "set",
                                   .StartDateTime = "start",
                                   .CreatedDateTime = "created",
                                   .MonthDay = "3",
                                   .CarriedValue = "1",
                                   .MailIds = "a@b.c;",
                                   .MailLogFlag = "log",
                                   .MailNotifyMode = "mode",
                                   .SortKey = "key",
                                   .FrequencyCode = "6",
                                   .WeekDayMask = "1111111"};
  EXPECT_EQ(Read(kLine), expected);
}

TEST(RecordLine, TheNotifyModeIsEighthAndTheLogFlagNinthInTheFile) {
  const ScheduleRecord record = Read("\b\b\b\b\b\b\b\b\b\b\b\b\b\b3\b\b0\b\b\b\b\b\b");
  EXPECT_EQ(record.MailNotifyMode, "3");
  EXPECT_EQ(record.MailLogFlag, "0");
}

TEST(RecordLine, JoinsWhatItCut) {
  EXPECT_EQ(JoinRecord(Read(kLine)), kLine);
}

TEST(RecordLine, ALineAlwaysHoldsElevenSeparators) {
  EXPECT_EQ(JoinRecord({}), std::string(22, '\b'));
}

TEST(RecordLine, AFieldThatHoldsASemicolonOrABlankIsReadBackWhole) {
  ScheduleRecord record;
  record.MailIds = "a@b.c;d e@f.g;";
  record.BackupSetName = "my set; the second : \b one";
  EXPECT_EQ(Read(JoinRecord(record)), record);
}

TEST(RecordLine, FieldsThatTheLineLacksAreEmpty) {
  EXPECT_EQ(Read(""), ScheduleRecord());
  const ScheduleRecord record = Read("1\b\btventbkupjob");
  EXPECT_EQ(record.BackupSetName, "tventbkupjob");
  EXPECT_EQ(record.StartDateTime, "");
  EXPECT_EQ(record.WeekDayMask, "");
}

TEST(RecordLine, TheTwelfthFieldIsTheWholeRestOfTheLine) {
  const ScheduleRecord record = Read(kLine + "\b\bthirteenth\b\b");
  EXPECT_EQ(record.WeekDayMask, "1111111\b\bthirteenth\b\b");
  EXPECT_EQ(JoinRecord(record), kLine + "\b\bthirteenth\b\b");
}

TEST(RecordLine, OfThreeBackspacesTheFirstTwoSeparate) {
  const ScheduleRecord record = Read("1\b\b\bx");
  EXPECT_EQ(record.RecordNo, "1");
  EXPECT_EQ(record.BackupSetName, "\bx");
}

}  // namespace
}  // namespace schedule
