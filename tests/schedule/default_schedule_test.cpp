#include "schedule/default_schedule.h"

#include <gtest/gtest.h>

#include "schedule/record_store.h"
#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kCommon;
using testing::kProfile;
using testing::kSchedule;
using testing::kUser;
using testing::Line;
using testing::Lines;

class DefaultSchedule : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  void Load() { ScheduleCreateFiles(ports(), state).Form_Load(); }
  void LoadWith(std::initializer_list<double> draws) {
    machine.random().Script(draws);
    Load();
  }
  std::string Profile(std::string_view section, std::string_view key) {
    return machine.files().IniValue(kProfile, section, Shifted(key));
  }
  std::string User(std::string_view name) { return std::string(kUser) + std::string(name); }
  std::string Common(std::string_view name) { return std::string(kCommon) + std::string(name); }
  shared::ScheduleRecord OnlyRecord() {
    RecordStore(ports(), state).ReadScheduleTable();
    EXPECT_EQ(state.ScheduleCount, 1u);
    return state.ScheduleTable[0];
  }
};

TEST_F(DefaultSchedule, ANewUserGetsOneJobForEveryDayInTheComingNight) {
  SetProfile("FirstUser", "TRUE");
  LoadWith({0.5, 0.0});
  const shared::ScheduleRecord expected = {.RecordNo = "1",
                                           .BackupSetName = "tventbkupjob",
                                           .StartDateTime = "03-01-2024 19:00:00",
                                           .CreatedDateTime = "03-01-2024 10:00:00",
                                           .MonthDay = "3",
                                           .CarriedValue = "1",
                                           .MailIds = "",
                                           .MailLogFlag = "0",
                                           .MailNotifyMode = "1",
                                           .SortKey = "202403011900",
                                           .FrequencyCode = "6",
                                           .WeekDayMask = "1111111"};
  EXPECT_EQ(OnlyRecord(), expected);
  EXPECT_EQ(Schedule().substr(0, 3), "0\r\n");
}

TEST_F(DefaultSchedule, TheTextsAreTheSameInEveryLocale) {
  for (const std::string_view format : {"M/d/yyyy", "dd/MM/yyyy", "d.M.yyyy", "yyyy-MM-dd"}) {
    SetFormats(format, "h:mm:ss tt", ",");
    SetProfile("FirstUser", "TRUE");
    LoadWith({0.5, 0.999});
    EXPECT_EQ(OnlyRecord().StartDateTime, "03-02-2024 06:00:00") << format;
    EXPECT_EQ(OnlyRecord().SortKey, "202403020600") << format;
  }
}

TEST_F(DefaultSchedule, AUserWhoHasPassedKeepsEveryFileAsItIs) {
  SetProfile("FirstUser", "FALSE");
  PutSchedule({"2", Line("1", "mine", "1")});
  const std::string before = machine.files().Dump();
  Load();
  EXPECT_EQ(machine.files().Dump(), before);
}

TEST_F(DefaultSchedule, AProfileThatAnotherProgramHoldsMakesNoNewUser) {
  SetProfile("FirstUser", "FALSE");
  PutSchedule({"2", Line("1", "mine", "1")});
  machine.LockFile(kProfile);
  const std::string before = machine.files().Dump();
  Load();
  EXPECT_EQ(machine.files().Dump(), before);
  machine.UnlockFile(kProfile);
  SetProfile("FirstUser", "");
  Load();
  EXPECT_EQ(OnlyRecord().BackupSetName, "tventbkupjob");
}

TEST_F(DefaultSchedule, OnlyTrueAndEmptyMakeANewUser) {
  for (const std::string value : {"true", "1", "False"}) {
    SetProfile("FirstUser", value);
    Load();
    EXPECT_FALSE(HasSchedule()) << value;
  }
  machine.files().Delete(kProfile);
  Load();
  EXPECT_TRUE(HasSchedule());
}

TEST_F(DefaultSchedule, AUserPassesOnce) {
  Load();
  EXPECT_EQ(Profile("Tolvex", "FirstUser"), Shifted("FALSE"));
  const std::string before = machine.files().Dump();
  Load();
  EXPECT_EQ(machine.files().Dump(), before);
}

TEST_F(DefaultSchedule, ReplacesAllRecordsThatWereThereAndKeepsTheEnginesCode) {
  PutSchedule({"3", Line("1", "a", "1"), Line("2", "b", "2"), Line("3", "c", "3")});
  Load();
  EXPECT_EQ(OnlyRecord().BackupSetName, "tventbkupjob");
  EXPECT_EQ(Schedule().substr(0, 3), "3\r\n");
}

TEST_F(DefaultSchedule, TheProfileIsMadeAnewAndKeepsTheProxy) {
  SetProfile("FirstUser", "TRUE");
  SetProfile("username", "ann");
  for (const std::string_view key : {"ProxyName", "ProxyPort", "ProxyUser", "ProxyPass"}) {
    machine.files().PutIni(kProfile, "Proxy", Shifted(key), Shifted(std::string(key) + "!"));
  }
  Load();
  EXPECT_EQ(Profile("Tolvex", "username"), "");
  for (const std::string_view key : {"ProxyName", "ProxyPort", "ProxyUser", "ProxyPass"}) {
    EXPECT_EQ(Profile("Proxy", key), Shifted(std::string(key) + "!"));
  }
}

TEST_F(DefaultSchedule, EveryAutomaticFileTypeIsOff) {
  machine.files().Put(Common("AutoFileSelection.txt"), "1;1;1");
  Load();
  std::string expected = "0";
  for (int more = 0; more < 32; ++more) expected += ";0";
  EXPECT_EQ(machine.files().Content(Common("AutoFileSelection.txt")), expected + "\r\n");
}

TEST_F(DefaultSchedule, OldFilesOfTheUserGo) {
  machine.files().Put(User("DLLInput.txt"), "x");
  machine.files().Put(User("SerTraceFile.txt"), "x");
  Load();
  EXPECT_FALSE(machine.files().Has(User("DLLInput.txt")));
  EXPECT_FALSE(machine.files().Has(User("SerTraceFile.txt")));
}

TEST_F(DefaultSchedule, ExclusionsAndTheDefaultSetAreMade) {
  Load();
  for (const std::string_view name : {"atbkupExcludeFile.txt", "atbkupExcludeFolder.txt",
                                      "atbkupExcludelist.txt", "atbkupExcludeFilePath.txt"}) {
    EXPECT_TRUE(machine.files().Has(User(name))) << name;
  }
  EXPECT_TRUE(machine.files().Has(Common("SimpleAutoPath.ini")));
  EXPECT_NE(machine.files().Content(Common("atbkupfolderlist.txt")), "");
}

TEST_F(DefaultSchedule, TheFilesAreWrittenInTheirOrder) {
  machine.journal().Clear();
  Load();
  std::vector<std::string> names;
  for (const std::string& line : machine.journal().Excerpt("file")) {
    const std::size_t place = line.rfind('\\');
    if (line.find("replace") != std::string::npos) {
      names.push_back(line.substr(place + 1, line.find(' ', place) - place - 1));
    }
  }
  const std::vector<std::string> expected = {"atbkupExcludeFilePath.txt", "atbkupExcludeFile.txt",
                                             "atbkupExcludelist.txt",     "atbkupExcludeFolder.txt",
                                             "scheduleData.txt",          "AutoFileSelection.txt",
                                             "atbkupfolderlist.txt"};
  EXPECT_EQ(names, expected);
}

TEST_F(DefaultSchedule, AFolderOfTheUserThatIsMissingIsMade) {
  machine.files().Delete("C:\\Sorvane\\SorvaneEann");
  machine.files().Delete("C:\\Sorvane\\SorvaneE");
  Load();
  EXPECT_TRUE(HasSchedule());
  EXPECT_TRUE(machine.files().Has(Common("AutoFileSelection.txt")));
}

TEST_F(DefaultSchedule, WithNobodyLoggedInTheFilesGoToTheCommonFolder) {
  machine.files().Delete("C:\\Sorvane\\UserName.ini");
  Load();
  EXPECT_TRUE(machine.files().Has(Common("scheduleData.txt")));
  EXPECT_FALSE(HasSchedule());
}

TEST_F(DefaultSchedule, AnErrorEndsTheWorkAndLeavesWhatWasMade) {
  SetProfile("FirstUser", "TRUE");
  PutSchedule({"0", Line("1", "mine", "1")});
  const std::string before = Schedule();
  machine.LockFile(kSchedule);
  Load();
  EXPECT_EQ(Schedule(), before);
  EXPECT_TRUE(machine.files().Has(User("atbkupExcludeFile.txt")));
  EXPECT_FALSE(machine.files().Has(Common("AutoFileSelection.txt")));
  EXPECT_EQ(Profile("Tolvex", "FirstUser"), Shifted("TRUE"));
  machine.UnlockFile(kSchedule);
  Load();
  EXPECT_EQ(OnlyRecord().BackupSetName, "tventbkupjob");
}

TEST_F(DefaultSchedule, NoSingleFailedCallCostsAnOldUserTheSchedule) {
  SetProfile("FirstUser", "FALSE");
  PutSchedule({"2", Line("1", "mine", "1")});
  const std::string before = machine.files().Dump();
  machine.gate().Start();
  Load();
  machine.gate().Stop();
  const std::uint64_t calls = machine.gate().total();
  for (std::uint64_t call = 1; call <= calls; ++call) {
    machine.gate().FailCall(call);
    Load();
    machine.gate().Heal();
    machine.gate().Stop();
    EXPECT_EQ(machine.files().Dump(), before) << "call " << call;
  }
}

TEST_F(DefaultSchedule, ANewUserWhoseCallFailsHasEitherTheOldOrTheNewSchedule) {
  const std::string old = Lines({"0", Line("1", "mine", "1")});
  const auto run = [&](std::uint64_t failing) {
    testing::ScheduleMachine world;
    world.SetProfile("FirstUser", "TRUE");
    world.machine.files().Put(kSchedule, old);
    world.machine.gate().Start();
    if (failing > 0) world.machine.gate().FailCall(failing);
    ScheduleCreateFiles(world.ports(), world.state).Form_Load();
    world.machine.gate().Stop();
    return std::pair(world.machine.gate().total(), world.Schedule());
  };
  const auto [calls, made] = run(0);
  ASSERT_NE(made, old);
  for (std::uint64_t call = 1; call <= calls; ++call) {
    const std::string content = run(call).second;
    EXPECT_TRUE(content == old || content == made) << "call " << call << "\n" << content;
  }
}

TEST_F(DefaultSchedule, TheHourlyScheduleGoesToTheCommonFolder) {
  EXPECT_TRUE(ScheduleCreateFiles(ports(), state).CreateHourlySchedule());
  EXPECT_FALSE(HasSchedule());
  const std::string text = machine.files().Content(Common("scheduleData.txt"));
  EXPECT_EQ(text,
            "0\r\n1\b\btventbkupjob\b\b03-01-2024 10:00:00\b\b03-01-2024 10:00:00\b\b3\b\b1\b\b"
            "\b\b1\b\b0\b\b202403011000\b\b2\b\b\r\n");
}

}  // namespace
}  // namespace schedule
