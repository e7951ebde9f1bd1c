// Every port call of every writer fails once, and the disk is full or the file locked: the old
// content stays whole.
#include <gtest/gtest.h>

#include <functional>

#include "schedule/default_schedule.h"
#include "schedule/mail_list.h"
#include "schedule/record_store.h"
#include "schedule/scheduler.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kMailIds;
using testing::kSchedule;
using testing::Line;
using testing::Lines;
using testing::ScheduleMachine;

constexpr std::string_view kSets = "C:\\Sorvane\\SorvaneEann\\sets.txt";
constexpr std::string_view kSelection = "C:\\Sorvane\\SorvaneE\\AutoFileSelection.txt";

struct Writer {
  const char* name;
  std::string_view path;
  std::function<void(ScheduleMachine&)> write;
};

void SeedFiles(ScheduleMachine& world) {
  world.PutSchedule({"2", Line("1", "tventbkupjob", "202403022000"),
                     Line("2", "SQLSERVERBACKUP", "202403032000")});
  world.machine.files().Put(kMailIds, "a@b.c\r\nd@e.f\r\n");
  world.machine.files().Put(kSets, "one;1\r\ntwo;2\r\n");
  world.machine.files().Put(kSelection, "1;1;1\r\n");
  RecordStore(world.ports(), world.state).ReadScheduleTable();
}

void Rewrite(ScheduleMachine& world, const WriterPolicy& policy) {
  world.state.ScheduleTable[0].MonthDay = "9";
  RecordStore(world.ports(), world.state).DB_WriteAllRecord(kSchedule, policy);
}

void SaveJob(ScheduleMachine& world) {
  world.state.ScheduleDraft = world.state.ScheduleTable[0];
  world.state.ScheduleDraft.MonthDay = "17";
  world.state.ScheduleJobType = 1;
  ScheduleForm form;
  form.edited_user = "ann";
  clsscheduler1(world.ports(), world.state).Sch_SaveScheduleJob(form);
}

const std::vector<Writer>& Writers() {
  static const std::vector<Writer> writers = {
      {"save", kSchedule, [](ScheduleMachine& world) { Rewrite(world, kSaveOfWizard); }},
      {"delete", kSchedule, [](ScheduleMachine& world) { Rewrite(world, kDeleteOfList); }},
      {"default", kSchedule, [](ScheduleMachine& world) { Rewrite(world, kDefaultSchedule); }},
      {"remove all", kSchedule,
       [](ScheduleMachine& world) {
         world.state.ScheduleCount = 0;
         Rewrite(world, kSaveOfWizard);
       }},
      {"delete from the list", kSchedule,
       [](ScheduleMachine& world) {
         RecordStore(world.ports(), world.state).DeleteFromList("SQLSERVERBACKUP");
       }},
      {"delete by number", kSchedule,
       [](ScheduleMachine& world) {
         RecordStore(world.ports(), world.state).DB_DeleteRecord("1", kSchedule);
       }},
      {"save of the wizard", kSchedule, SaveJob},
      {"default schedule", kSchedule,
       [](ScheduleMachine& world) {
         ScheduleCreateFiles(world.ports(), world.state).CreateDefaultSchedule();
       }},
      {"first start", kSelection,
       [](ScheduleMachine& world) { ScheduleCreateFiles(world.ports(), world.state).Form_Load(); }},
      {"addresses", kMailIds,
       [](ScheduleMachine& world) {
         const std::vector<std::string> more = {"g@h.i"};
         WriteMailList(world.ports().files, more, kMailIds);
       }},
      {"backup sets", kSets,
       [](ScheduleMachine& world) {
         clsscheduler1(world.ports(), world.state).Sch_SaveSqlServerBackupset(kSets, "one", ";3");
       }},
  };
  return writers;
}

TEST(WriteFaults, AnyCallThatFailsLeavesTheOldContentOrTheNew) {
  for (const Writer& writer : Writers()) {
    ScheduleMachine whole;
    SeedFiles(whole);
    const std::string before = whole.machine.files().Content(writer.path);
    whole.machine.gate().Start();
    writer.write(whole);
    whole.machine.gate().Stop();
    const std::string after = whole.machine.files().Content(writer.path);
    const std::uint64_t calls = whole.machine.gate().total();
    ASSERT_NE(after, before) << writer.name;
    ASSERT_GT(calls, 0u) << writer.name;
    for (std::uint64_t call = 1; call <= calls; ++call) {
      ScheduleMachine world;
      SeedFiles(world);
      world.machine.gate().FailCall(call);
      writer.write(world);
      world.machine.gate().Stop();
      const std::string content = world.machine.files().Content(writer.path);
      EXPECT_TRUE(content == before || content == after)
          << writer.name << ", call " << call << " " << world.machine.gate().failed()[0].name
          << "\n"
          << content;
    }
  }
}

TEST(WriteFaults, AFullDiskLeavesTheOldContent) {
  for (const Writer& writer : Writers()) {
    if (std::string_view(writer.name) == "remove all") continue;  // needs no room
    ScheduleMachine world;
    SeedFiles(world);
    const std::string before = world.machine.files().Content(writer.path);
    world.machine.FillDisk();
    writer.write(world);
    EXPECT_EQ(world.machine.files().Content(writer.path), before) << writer.name;
  }
}

TEST(WriteFaults, ALockedFileKeepsItsContent) {
  for (const auto lock :
       {platform::memory::FileLock::kAgainstWriting, platform::memory::FileLock::kAgainstAll}) {
    for (const Writer& writer : Writers()) {
      ScheduleMachine world;
      SeedFiles(world);
      const std::string before = world.machine.files().Content(writer.path);
      world.machine.LockFile(writer.path, lock);
      writer.write(world);
      EXPECT_EQ(world.machine.files().Content(writer.path), before) << writer.name;
    }
  }
}

TEST(WriteFaults, AFailedWriteOfANewFileLeavesNone) {
  ScheduleMachine world;
  SeedFiles(world);
  world.machine.files().Delete(kSchedule);
  world.machine.gate().FailAll("files.Replace");
  Rewrite(world, kSaveOfWizard);
  EXPECT_FALSE(world.HasSchedule());
}

}  // namespace
}  // namespace schedule
