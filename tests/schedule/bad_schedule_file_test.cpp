// Files that no program should have written: nothing ends the agent, nothing is rewritten unasked,
// and text that is not understood is carried through.
#include <gtest/gtest.h>

#include <cstdint>

#include "schedule/record_store.h"
#include "schedule/schedule_texts.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kSchedule;
using testing::Line;
using testing::Lines;

class BadScheduleFile : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  // Reads the file in every way, and expects it untouched.
  void ReadInEveryWay() {
    const std::string before = Schedule();
    store_.ReadScheduleTable("1");
    EXPECT_TRUE(store_.ReadScheduleTable());
    ScheduleTexts texts(ports(), state);
    const status::NextRun next = texts.GetScheduleDate();
    const std::string start(status::StartTimeField(next.line));
    texts.GetTimeDifference(texts.ValidateSorvaneDateFormat(start), "");
    EXPECT_EQ(Schedule(), before);
  }

  std::string WrittenBack() {
    store_.ReadScheduleTable();
    EXPECT_TRUE(store_.DB_WriteAllRecord(kSchedule, kSaveOfWizard));
    return Schedule();
  }

  RecordStore store_{ports(), state};
  const std::string good_ = Line("1", "tventbkupjob", "202403022000");
};

TEST_F(BadScheduleFile, ALineWithFewerFieldsKeepsThoseThatItHas) {
  PutSchedule({"0", "1\b\bunknown job\b\bwhenever"});
  ReadInEveryWay();
  EXPECT_EQ(WrittenBack(), Lines({"0", "1\b\bunknown job\b\bwhenever" + std::string(18, '\b')}));
}

TEST_F(BadScheduleFile, ALineWithMoreFieldsIsCarriedThrough) {
  PutSchedule({"0", good_ + "\b\bmore\b\b\b\band more"});
  const std::string before = Schedule();
  ReadInEveryWay();
  EXPECT_EQ(WrittenBack(), before);
}

TEST_F(BadScheduleFile, EmptyLinesAreRecordsThatTheNextSaveDrops) {
  PutSchedule({"0", "", good_, "", ""});
  ReadInEveryWay();
  EXPECT_EQ(state.ScheduleCount, 4u);
  EXPECT_EQ(WrittenBack(), Lines({"0", good_}));
}

TEST_F(BadScheduleFile, LinesMayEndInLineFeedsAlone) {
  machine.files().Put(kSchedule, "2\n" + good_ + "\n" + good_);
  ReadInEveryWay();
  EXPECT_EQ(state.ScheduleCount, 2u);
  EXPECT_EQ(WrittenBack(), Lines({"2", good_, good_}));
}

TEST_F(BadScheduleFile, WithoutAFirstLineOfItsOwnTheFirstRecordIsTakenForIt) {
  PutSchedule({good_, Line("2", "B", "1")});
  ReadInEveryWay();
  EXPECT_EQ(state.ScheduleCount, 1u);
  EXPECT_EQ(WrittenBack(), Lines({good_, Line("2", "B", "1")}));
}

TEST_F(BadScheduleFile, AFirstLineOfAMegabyteIsCarriedThrough) {
  PutSchedule({std::string(1 << 20, 'x'), good_});
  const std::string before = Schedule();
  ReadInEveryWay();
  EXPECT_EQ(WrittenBack(), before);
}

TEST_F(BadScheduleFile, AHundredThousandLinesAreReadAndWrittenBack) {
  std::vector<std::string> lines = {"0"};
  for (int number = 0; number < 100000; ++number) {
    lines.push_back(Line(std::to_string(number), "job", std::to_string(300000 - number)));
  }
  PutSchedule(lines);
  const std::string before = Schedule();
  EXPECT_EQ(store_.ReadScheduleTable(), 99999u);
  EXPECT_EQ(state.ScheduleCount, 100000u);
  EXPECT_EQ(WrittenBack(), before);
}

TEST_F(BadScheduleFile, KeysWithLettersAndDatesThatDoNotExistAreOnlyTexts) {
  PutSchedule({"0", Line("1", "tventbkupjob", "2024Febr31xx", "02-31-2024 25:61:61"),
               Line("2", "EXCHANGEBACKUP", "aaaaaaaaaaaa", "99-99-9999 99:99:99"),
               Line("3", "SQLSERVERBACKUP", "zz", "D-day")});
  const std::string before = Schedule();
  ReadInEveryWay();
  EXPECT_EQ(WrittenBack(), before);
}

TEST_F(BadScheduleFile, RandomBytesHarmNothing) {
  std::uint32_t chance = 12345;
  const auto next = [&] { return chance = chance * 1664525 + 1013904223; };
  for (int file = 0; file < 200; ++file) {
    std::string bytes;
    const std::size_t size = (next() >> 16) % 2000;
    // Often a separator or a line end, so that records come about.
    const std::string often = "\b\b\b\r\n01";
    for (std::size_t at = 0; at < size; ++at) {
      const std::uint32_t draw = next() >> 8;
      const bool common = draw % 2 == 0;
      bytes += common ? often[(draw >> 8) % often.size()] : static_cast<char>(draw >> 8);
    }
    machine.files().Put(kSchedule, bytes);
    ReadInEveryWay();
    WrittenBack();
  }
}

}  // namespace
}  // namespace schedule
