#include "schedule/record_store.h"

#include <gtest/gtest.h>

#include "schedule/record_reader.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kSchedule;
using testing::Line;
using testing::Lines;

class RecordStoreTest : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  RecordStore store_{ports(), state};
};

TEST_F(RecordStoreTest, LoadsEveryLineBehindTheFirst) {
  PutSchedule({"0", Line("1", "tventbkupjob", "202403022000"), Line("2", "X", "202403012000")});
  EXPECT_EQ(store_.ReadScheduleTable(), 1u);
  EXPECT_EQ(state.ScheduleCount, 2u);
  ASSERT_EQ(state.ScheduleTable.size(), 3u);
  EXPECT_EQ(state.ScheduleTable[0].BackupSetName, "tventbkupjob");
  EXPECT_EQ(state.ScheduleTable[1].RecordNo, "2");
  EXPECT_EQ(state.ScheduleTable[2], shared::ScheduleRecord());
  EXPECT_EQ(state.ScheduleFilePath, kSchedule);
}

TEST_F(RecordStoreTest, AFileWithOnlyAFirstLineGivesNoRecordAndResultZero) {
  PutSchedule({"0"});
  EXPECT_EQ(store_.ReadScheduleTable(), 0u);
  EXPECT_EQ(state.ScheduleCount, 0u);
}

TEST_F(RecordStoreTest, AMissingFileGivesAnEmptyTable) {
  state.ScheduleTable.resize(3);
  state.ScheduleCount = 3;
  EXPECT_EQ(store_.ReadScheduleTable(), 0u);
  EXPECT_EQ(state.ScheduleCount, 0u);
  EXPECT_EQ(state.ScheduleTable.size(), 1u);
}

TEST_F(RecordStoreTest, OfTwoRecordsWithOneKeyTheOneNearerTheTopIsTheEarliest) {
  PutSchedule({"0", Line("1", "A", "202403050000"), Line("2", "B", "202403010000"),
               Line("3", "C", "202403010000")});
  EXPECT_EQ(store_.ReadScheduleTable(), 1u);
}

TEST_F(RecordStoreTest, AnEmptyKeyIsLowerThanAnyReal) {
  PutSchedule({"0", Line("1", "A", "000001010000"), Line("2", "B", "")});
  EXPECT_EQ(store_.ReadScheduleTable(), 1u);
}

TEST_F(RecordStoreTest, AKeyLaterThanTheSentinelIsNeverTheEarliest) {
  PutSchedule({"0", Line("1", "A", "300012121504"), Line("2", "B", "300012121503")});
  EXPECT_EQ(store_.ReadScheduleTable(), 0u);
  PutSchedule({"0", Line("1", "A", "300012121504"), Line("2", "B", "300012121502")});
  EXPECT_EQ(store_.ReadScheduleTable(), 1u);
}

TEST_F(RecordStoreTest, KeysCompareAsTexts) {
  PutSchedule({"0", Line("1", "A", "202403010000"), Line("2", "B", "99"), Line("3", "C", "1")});
  EXPECT_EQ(store_.ReadScheduleTable(), 2u);
}

TEST_F(RecordStoreTest, LoadsOneRecordByItsNumberToTheFirstElement) {
  PutSchedule({"0", Line("1", "A", "202403010000"), "no separator", Line("7", "B", "1")});
  state.ScheduleFilePath = kSchedule;
  state.ScheduleCount = 3;
  EXPECT_EQ(store_.ReadScheduleTable("7"), 0u);
  EXPECT_EQ(state.ScheduleTable.size(), 2u);
  EXPECT_EQ(state.ScheduleTable[0].BackupSetName, "B");
}

TEST_F(RecordStoreTest, UnderAFirstLineOfFiveASearchByNumberFindsNothing) {
  PutSchedule({"5", Line("1", "A", "202403010000")});
  state.ScheduleCount = 1;
  EXPECT_EQ(store_.ReadScheduleTable("1"), 0u);
  EXPECT_EQ(state.ScheduleTable[0].BackupSetName, "");
  EXPECT_EQ(store_.ReadScheduleTable(), 0u);
  EXPECT_EQ(state.ScheduleTable[0].BackupSetName, "A");
}

TEST_F(RecordStoreTest, UnderEveryOtherCodeASearchByNumberFindsItsLine) {
  state.ScheduleFilePath = kSchedule;
  for (const std::string code : {"0", "1", "2", "3", "4"}) {
    PutSchedule({code, Line("1", "A", "1"), Line("2", "B", "1")});
    std::vector<std::string> lines(2);
    EXPECT_EQ(ReadScheduleLines(ports().files, state, "2", kSchedule, lines), true) << code;
    EXPECT_EQ(lines[0], Line("2", "B", "1"));
  }
}

TEST_F(RecordStoreTest, TheFirstLineOfAnotherFileIsALineLikeAnyOther) {
  PutSchedule({"0", "a"});
  state.ScheduleFilePath = "C:\\Elsewhere\\scheduleData.txt";
  std::vector<std::string> lines(2);
  EXPECT_EQ(ReadScheduleLines(ports().files, state, "", kSchedule, lines), true);
  EXPECT_EQ(lines, (std::vector<std::string>{"0", "a"}));
  EXPECT_EQ(ReadScheduleLines(ports().files, state, "1", kSchedule, lines), false);
  EXPECT_EQ(Readfirstline(ports().files, state, kSchedule), "");
}

TEST_F(RecordStoreTest, LinesThatCameAfterTheCountingAreLeftOut) {
  PutSchedule({"0", "a", "b", "c"});
  state.ScheduleFilePath = kSchedule;
  std::vector<std::string> lines(2);
  EXPECT_EQ(ReadScheduleLines(ports().files, state, "", kSchedule, lines), true);
  EXPECT_EQ(lines, (std::vector<std::string>{"a", "b"}));
}

TEST_F(RecordStoreTest, CountsEveryLineButTheFirstWhateverItHolds) {
  const auto count = [&] { return CountScheduleRecords(ports().files, kSchedule); };
  EXPECT_EQ(count(), 0u);
  machine.files().Put(kSchedule, "");
  EXPECT_EQ(count(), 0u);
  machine.files().Put(kSchedule, "not a code");
  EXPECT_EQ(count(), 0u);
  machine.files().Put(kSchedule, "0\r\n\r\nx");
  EXPECT_EQ(count(), 2u);
}

TEST_F(RecordStoreTest, TheFirstLineIsReadAsItStands) {
  state.ScheduleFilePath = kSchedule;
  machine.files().Put(kSchedule, " 2 \r\nx");
  EXPECT_EQ(Readfirstline(ports().files, state, kSchedule), " 2 ");
  machine.files().Put(kSchedule, "");
  EXPECT_EQ(Readfirstline(ports().files, state, kSchedule), "");
}

TEST_F(RecordStoreTest, ALockedFileIsNoEmptySchedule) {
  PutSchedule({"0", Line("1", "A", "1")});
  machine.LockFile(kSchedule);
  EXPECT_EQ(store_.ReadScheduleTable(), std::nullopt);
  EXPECT_EQ(state.ScheduleCount, 0u);
  state.ScheduleFilePath = kSchedule;
  EXPECT_EQ(Readfirstline(ports().files, state, kSchedule), std::nullopt);
}

TEST_F(RecordStoreTest, TheIndexOfANumberCountsFromOne) {
  PutSchedule({"0", Line("7", "A", "1"), Line("3", "B", "1"), Line("3", "C", "1")});
  store_.ReadScheduleTable();
  EXPECT_EQ(store_.GetIndexFromRecordNo(7), 1u);
  EXPECT_EQ(store_.GetIndexFromRecordNo(3), 2u);
  EXPECT_EQ(store_.GetIndexFromRecordNo(4), 0u);
}

TEST_F(RecordStoreTest, RemembersTheElementThatIsEdited) {
  store_.setRecordIndex(4);
  EXPECT_EQ(state.CurrentRecordIndex, 4u);
}

TEST_F(RecordStoreTest, ReadingTouchesNothing) {
  PutSchedule({"2", Line("1", "A", "1"), "odd line", ""});
  const std::string before = machine.files().Dump();
  store_.ReadScheduleTable();
  store_.ReadScheduleTable("1");
  EXPECT_EQ(machine.files().Dump(), before);
}

}  // namespace
}  // namespace schedule
