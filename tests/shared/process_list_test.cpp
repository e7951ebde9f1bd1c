#include "shared/process_list.h"

#include <gtest/gtest.h>

#include <string>

#include "platform/memory/machine.h"
#include "shared/agent_state.h"

namespace shared {
namespace {

using platform::ProcessId;
using platform::SystemFamily;

class ProcessListTest : public testing::Test {
 protected:
  ProcessListTest() {
    state.InstallFolder = "C:\\Sorvane";
    state.executables.background = "SorvaneEBackground.exe";
    state.executables.web_plugin = "SorvanePlugin.exe";
  }

  ProcessId Start(const std::string& path) { return machine.processes().Start(path); }
  bool Runs(ProcessId id) { return machine.processes().Find(id)->running; }
  void UseOldFamily() { machine.processes().SetVersion({SystemFamily::kWindows9x, 4, 90}); }

  platform::memory::Machine machine;
  AgentState state;
  ProcessList list{machine.platform(), state};
};

TEST_F(ProcessListTest, FindsAModuleNameInAnyCase) {
  Start("C:\\Sorvane\\SorvaneEClsClient.exe");
  EXPECT_TRUE(list.IsProcessRunning("SORVANEECLSCLIENT.EXE", WhenFound::kLeave));
}

TEST_F(ProcessListTest, FindsNoNameThatOnlyBeginsOrEndsAlike) {
  Start("C:\\Sorvane\\SorvaneEClsClient.exe.old");
  Start("C:\\Sorvane\\XSorvaneEClsClient.exe");
  Start("C:\\SorvaneEClsClient.exe\\other.exe");
  EXPECT_FALSE(list.IsProcessRunning("SorvaneEClsClient.exe", WhenFound::kLeave));
}

TEST_F(ProcessListTest, FindsNothingForAnEmptyName) {
  EXPECT_FALSE(list.IsProcessRunning("", WhenFound::kKill));
  EXPECT_EQ(machine.journal().Count("process", "terminate"), 0u);
}

TEST_F(ProcessListTest, EndsOnlyTheFirstMatch) {
  const ProcessId first = Start("C:\\Sorvane\\helper.exe");
  const ProcessId second = Start("C:\\Sorvane\\helper.exe");
  EXPECT_TRUE(list.IsProcessRunning("helper.exe", WhenFound::kKill));
  EXPECT_FALSE(Runs(first));
  EXPECT_TRUE(Runs(second));
}

TEST_F(ProcessListTest, PassesOverAProcessThatCannotBeOpened) {
  machine.processes().SetReadable(Start("C:\\Sorvane\\helper.exe"), false);
  EXPECT_FALSE(list.IsProcessRunning("helper.exe", WhenFound::kLeave));
}

TEST_F(ProcessListTest, StopsAfterTheFirstThousandAndTwentyFour) {
  for (int i = 0; i < 5000; ++i) Start("C:\\Other\\other.exe");
  Start("C:\\Sorvane\\helper.exe");
  EXPECT_FALSE(list.IsProcessRunning("helper.exe", WhenFound::kLeave));
  EXPECT_TRUE(list.IsProcessRunning("other.exe", WhenFound::kLeave));
}

TEST_F(ProcessListTest, SeesTheBackgroundProcessAndThePluginBehindFiveThousandOthers) {
  for (int i = 0; i < 5000; ++i) Start("C:\\Other\\other.exe");
  Start("C:\\Sorvane\\SorvaneEBackground.exe");
  const ProcessId plugin = Start("C:\\Sorvane\\SorvanePlugin.exe");
  EXPECT_TRUE(list.IsBackgroundRunning());
  list.KillPluginProcesses();
  EXPECT_FALSE(Runs(plugin));
}

TEST_F(ProcessListTest, ComparesOnlyWhatStandsBehindTheLastSlashOfEitherKind) {
  Start("C:/Sorvane\\bin/SorvaneEBackground.exe");
  EXPECT_TRUE(list.IsBackgroundRunning());
}

TEST_F(ProcessListTest, RemembersTheIdOfTheBackgroundProcessOnBothFamilies) {
  const ProcessId id = Start("C:\\Sorvane\\sorvaneebackground.EXE");
  EXPECT_TRUE(list.IsBackgroundRunning());
  EXPECT_EQ(state.BackgroundProcessId, id);
  state.BackgroundProcessId = 0;
  UseOldFamily();
  EXPECT_TRUE(list.IsBackgroundRunning());
  EXPECT_EQ(state.BackgroundProcessId, id);
}

TEST_F(ProcessListTest, TakesNoOtherProgramForTheBackgroundProcess) {
  Start("C:\\Sorvane\\SorvaneEBackground.exe2");
  Start("C:\\SorvaneEBackground.exe\\x.exe");
  EXPECT_FALSE(list.IsBackgroundRunning());
}

TEST_F(ProcessListTest, KillsByNameTheFirstWhateverItsCase) {
  const ProcessId first = Start("C:\\Sorvane\\SORVANEECLASSIC.EXE");
  const ProcessId second = Start("C:\\Sorvane\\SorvaneEClassic.exe");
  list.KillProcessByName("SorvaneEClassic.exe");
  EXPECT_FALSE(Runs(first));
  EXPECT_TRUE(Runs(second));
}

TEST_F(ProcessListTest, KillsByNameNoneWhoseNameIsOnlyAlike) {
  for (const bool old_family : {false, true}) {
    if (old_family) UseOldFamily();
    const ProcessId longer = Start("C:\\Sorvane\\MySorvaneEClassic.exe");
    const ProcessId behind = Start("C:\\Sorvane\\SorvaneEClassic.exe2");
    const ProcessId exact = Start("C:\\Sorvane\\sorvaneeclassic.exe");
    list.KillProcessByName("SorvaneEClassic.exe");
    EXPECT_TRUE(Runs(longer));
    EXPECT_TRUE(Runs(behind));
    EXPECT_FALSE(Runs(exact));
  }
}

TEST_F(ProcessListTest, KillsAllExesOfExactlyThatName) {
  const ProcessId exact = Start("C:\\Sorvane\\helper.exe");
  const ProcessId again = Start("C:\\Elsewhere\\helper.exe");
  const ProcessId other_case = Start("C:\\Sorvane\\Helper.exe");
  list.KillExes("helper.exe");
  EXPECT_FALSE(Runs(exact));
  EXPECT_FALSE(Runs(again));
  EXPECT_TRUE(Runs(other_case));
}

TEST_F(ProcessListTest, ShowsTheErrorOfAnExeThatCannotBeEnded) {
  machine.processes().SetTerminable(Start("C:\\Sorvane\\helper.exe"), false);
  list.KillExes("helper.exe");
  EXPECT_EQ(machine.journal().Count("box", "Error 5"), 1u);
}

TEST_F(ProcessListTest, EndsEveryPluginOfItsExactNameOnTheNtFamily) {
  const ProcessId first = Start("C:\\Sorvane\\sorvaneplugin.exe");
  const ProcessId second = Start("C:\\Sorvane\\SorvanePlugin.exe");
  const ProcessId longer = Start("C:\\Sorvane\\MySorvanePlugin.exe");
  list.KillPluginProcesses();
  EXPECT_FALSE(Runs(first));
  EXPECT_FALSE(Runs(second));
  EXPECT_TRUE(Runs(longer));
}

TEST_F(ProcessListTest, EndsEveryPluginWhoseNameContainsItBeforeTheNtFamily) {
  UseOldFamily();
  const ProcessId longer = Start("C:\\Sorvane\\MySorvanePlugin.exe");
  const ProcessId other = Start("C:\\Sorvane\\Plugin.exe");
  list.KillPluginProcesses();
  EXPECT_FALSE(Runs(longer));
  EXPECT_TRUE(Runs(other));
}

TEST_F(ProcessListTest, IgnoresAStaleProcessId) {
  const ProcessId other = Start("C:\\Other\\other.exe");
  list.KillPid(other + 1000);
  EXPECT_TRUE(Runs(other));
}

}  // namespace
}  // namespace shared
