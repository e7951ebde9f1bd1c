#include "schedule/backup_set_list.h"

#include <gtest/gtest.h>

#include "schedule/scheduler.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

constexpr std::string_view kPath = "C:\\Sorvane\\SorvaneEann\\sets.txt";

class BackupSetList : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  std::string Saved(std::string_view before, std::string_view name, std::string_view value) {
    machine.files().Put(kPath, before);
    EXPECT_TRUE(scheduler_.Sch_SaveSqlServerBackupset(kPath, name, value));
    return machine.files().Content(kPath);
  }

  clsscheduler1 scheduler_{ports(), state};
};

TEST_F(BackupSetList, HoldsTheLinesOfTheFile) {
  machine.files().Put(kPath, "one;1;2\r\n\r\ntwo;3\r\n");
  std::vector<std::string> entries = {"left over"};
  EXPECT_TRUE(scheduler_.DB_ReadBackdata(kPath, entries));
  EXPECT_EQ(entries, (std::vector<std::string>{"one;1;2", "", "two;3"}));
}

TEST_F(BackupSetList, ReadingIsTraced) {
  std::vector<std::string> entries;
  EXPECT_TRUE(scheduler_.DB_ReadBackdata(kPath, entries));
  EXPECT_EQ(machine.files().Utf16Content(std::string(testing::kUser) + "TrayTraceFile.txt"),
            "03-01-2024 10:00:00  [INFORMATION] Enter DB_ReadBackdata\r\n");
}

TEST_F(BackupSetList, ANewEntryComesLast) {
  EXPECT_EQ(Saved("one;1\r\n", "two", ";2"), "one;1\r\ntwo;2\r\n");
  EXPECT_EQ(Saved("", "two", ";2"), "two;2\r\n");
}

TEST_F(BackupSetList, AnEntryOfTheNameIsReplacedAtTheEnd) {
  EXPECT_EQ(Saved("one;1\r\ntwo;2\r\n", "one", ";3"), "two;2\r\none;3\r\n");
}

TEST_F(BackupSetList, OnlyTheFirstEntryOfTheNameGoes) {
  EXPECT_EQ(Saved("one;1\r\none;2\r\n", "one", ";3"), "one;2\r\none;3\r\n");
}

TEST_F(BackupSetList, TheNameEndsAtTheFirstSemicolon) {
  EXPECT_EQ(Saved("one more;1\r\none\r\n", "one", ";3"), "one more;1\r\none;3\r\n");
}

TEST_F(BackupSetList, ALockedFileIsLeftAlone) {
  machine.files().Put(kPath, "one;1\r\n");
  machine.LockFile(kPath);
  EXPECT_FALSE(scheduler_.Sch_SaveSqlServerBackupset(kPath, "one", ";2"));
  EXPECT_EQ(machine.files().Content(kPath), "one;1\r\n");
}

}  // namespace
}  // namespace schedule
