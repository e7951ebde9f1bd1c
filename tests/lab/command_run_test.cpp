#include <gtest/gtest.h>

#include "tests/lab/lab_machine.h"

namespace {

TEST(CommandNumber, ReadsEveryFormThatTheAgentSends) {
  EXPECT_EQ(23, lab::CommandNumber(" 23< >"));
  EXPECT_EQ(20, lab::CommandNumber(" 20"));
  EXPECT_EQ(105, lab::CommandNumber(" 105<>"));
}

TEST(CommandNumber, RefusesWhatIsNoCommand) {
  for (const char* text : {"", "backup", "<23>", "23 <", "-5< >"}) {
    EXPECT_EQ(std::nullopt, lab::CommandNumber(text)) << text;
  }
}

TEST(CommandRun, AnswersEachAttemptFromTheScriptAndRepeatsTheLast) {
  LabMachine lab;
  lab.Script("Commands", "23", "-416,-505,402");
  for (const char* expected : {"-416", "-505", "402", "402"}) {
    lab.StartEngine(" 23< >");
    EXPECT_EQ(expected, lab.Status(status::kRetValue));
    EXPECT_FALSE(lab.EngineRuns());
  }
}

TEST(CommandRun, SucceedsWithoutAScript) {
  LabMachine lab;
  lab.StartEngine(" 9< >");
  EXPECT_EQ("402", lab.Status(status::kRetValue));
}

TEST(CommandRun, WritesTheRedirectionBeforeItsAnswer) {
  LabMachine lab;
  lab.Script("Commands", "23", "redirect 700 192.0.2.30 402");
  lab.StartEngine(" 23< >");
  EXPECT_EQ("700\r\n192.0.2.30\r\n",
            lab.machine.files().Content(lab.InUserFolder(shared::files::kDllOutput1)));
  EXPECT_EQ("402", lab.Status(status::kRetValue));
}

TEST(CommandRun, ASlowAnswerComesInItsTime) {
  LabMachine lab;
  lab.Script("Commands", "9", "slow 5000 402");
  lab.StartEngine(" 9< >");
  lab.machine.Run(4999);
  EXPECT_EQ("", lab.Status(status::kRetValue));
  EXPECT_TRUE(lab.EngineRuns());
  lab.machine.Run(1);
  EXPECT_EQ("402", lab.Status(status::kRetValue));
  EXPECT_FALSE(lab.EngineRuns());
}

TEST(CommandRun, WritesNothingWhenItSaysNothingOrCrashes) {
  LabMachine lab;
  lab.SetStatus(status::kRetValue, "7");
  lab.Script("Commands", "9", "none,crash");
  lab.StartEngine(" 9< >");
  lab.StartEngine(" 9< >");
  EXPECT_EQ("7", lab.Status(status::kRetValue));
  EXPECT_FALSE(lab.EngineRuns());
}

TEST(CommandRun, AnswersToTheInteractiveUser) {
  LabMachine lab;
  lab.machine.files().PutFolder(lab.places.UserFolder("bert"));
  lab.machine.files().PutIni(lab.places.UserNameIni(), "Tolvex", "Interactive", "bert");
  lab.StartEngine(" 9< >");
  EXPECT_EQ("402",
            lab.machine.files().IniValue(lab.places.Profile("bert"), "BackupStatus", "RetValue"));
  EXPECT_EQ("", lab.Status(status::kRetValue));
}

TEST(CommandRun, RefreshesQuotaAndMailAddress) {
  LabMachine lab;
  lab.StartEngine(" 7< >");
  EXPECT_EQ("5368709120", lab.machine.files().IniValue(lab.places.Profile(LabMachine::kUser),
                                                       "QuotaStatus", "Max"));
  lab.StartEngine(" 105<>");
  EXPECT_EQ("user@backup.sorvane.example",
            lab.machine.files().IniValue(lab.places.UserNameIni(), "Tolvex", "InteractiveLists"));
}

}  // namespace
