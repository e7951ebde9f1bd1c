// Walking, ending and telling processes.
#include "tests/platform/contract_test.h"

namespace {

using platform::ProcessEntry;
using platform::ProcessId;

constexpr std::size_t kMost = 1024;
constexpr std::uint32_t kAllAccess = 0x1F0FFF;
constexpr std::uint32_t kTerminate = 1;
constexpr std::uint32_t kQueryOnly = 0x400;
constexpr std::uint32_t kAccessDenied = 5;
constexpr std::uint32_t kInvalidParameter = 87;

class ProcessesContract : public ContractTest {
 protected:
  platform::Processes& processes() { return ports().processes; }

  // The name that a walk gives for the process; "" when it is not in.
  template <typename Walk>
  std::string NameIn(Walk walk, ProcessId id) {
    std::string name;
    walk([&](const ProcessEntry& entry) {
      if (entry.id == id) name = entry.name;
      return true;
    });
    return name;
  }
  std::string ModuleName(ProcessId id) {
    return NameIn([this](const auto& visit) { processes().WalkModuleNames(kMost, visit); }, id);
  }
  std::string ModulePath(ProcessId id) {
    return NameIn([this](const auto& visit) { processes().WalkModulePaths(kMost, visit); }, id);
  }
  std::string SnapshotName(ProcessId id) {
    return NameIn([this](const auto& visit) { processes().WalkSnapshot(visit); }, id);
  }

  // Ended processes leave the lists a moment after.
  bool Leaves(ProcessId id) {
    constexpr int kTries = 200;
    for (int i = 0; i < kTries && SnapshotName(id) != ""; ++i) ports().clock.Sleep(20);
    return SnapshotName(id) == "";
  }
};

TEST_F(ProcessesContract, NamesARunningProcessInEveryWalk) {
  const ProcessId id = machine_->StartProgram("Guest.exe");
  EXPECT_EQ(ModuleName(id), "Guest.exe");
  EXPECT_EQ(SnapshotName(id), "Guest.exe");
  EXPECT_EQ(ModulePath(id), In("Guest.exe"));
}

TEST_F(ProcessesContract, TellsTwoProcessesOfOneProgramApart) {
  const ProcessId first = machine_->StartProgram("Guest.exe");
  const ProcessId second = machine_->StartProgram("Guest.exe");
  EXPECT_NE(first, second);
  EXPECT_EQ(ModuleName(first), "Guest.exe");
  EXPECT_EQ(ModuleName(second), "Guest.exe");
}

TEST_F(ProcessesContract, EndsAWalkWhenTheVisitorHasSeenEnough) {
  machine_->StartProgram("Guest.exe");
  int visited = 0;
  const auto once = [&visited](const ProcessEntry&) {
    ++visited;
    return false;
  };
  processes().WalkSnapshot(once);
  EXPECT_EQ(visited, 1);
  processes().WalkModuleNames(kMost, once);
  EXPECT_EQ(visited, 2);
  processes().WalkModulePaths(kMost, once);
  EXPECT_EQ(visited, 3);
}

TEST_F(ProcessesContract, WalksNoMoreIdsThanAsked) {
  machine_->StartProgram("Guest.exe");
  machine_->StartProgram("Guest.exe");
  std::size_t visited = 0;
  processes().WalkModuleNames(1, [&visited](const ProcessEntry&) {
    ++visited;
    return true;
  });
  EXPECT_LE(visited, 1u);
  processes().WalkModuleNames(0, [&visited](const ProcessEntry&) {
    visited = kMost;
    return true;
  });
  EXPECT_LE(visited, 1u);
}

TEST_F(ProcessesContract, EndsAProcessWithCodeZero) {
  const ProcessId id = machine_->StartProgram("Guest.exe");
  EXPECT_EQ(machine_->ExitCode(id), std::nullopt);
  EXPECT_EQ(processes().Terminate(id, kAllAccess), 0u);
  EXPECT_TRUE(Leaves(id));
  EXPECT_EQ(machine_->ExitCode(id), 0u);
}

TEST_F(ProcessesContract, EndsAProcessWithTheOneRightForIt) {
  const ProcessId id = machine_->StartProgram("Guest.exe");
  EXPECT_EQ(processes().Terminate(id, kTerminate), 0u);
  EXPECT_TRUE(Leaves(id));
}

TEST_F(ProcessesContract, DoesNotEndAProcessWithoutTheRight) {
  const ProcessId id = machine_->StartProgram("Guest.exe");
  EXPECT_EQ(processes().Terminate(id, kQueryOnly), kAccessDenied);
  EXPECT_EQ(SnapshotName(id), "Guest.exe");
}

TEST_F(ProcessesContract, EndsOnlyTheProcessAskedFor) {
  const ProcessId first = machine_->StartProgram("Guest.exe");
  const ProcessId second = machine_->StartProgram("Guest.exe");
  EXPECT_EQ(processes().Terminate(first, kAllAccess), 0u);
  EXPECT_TRUE(Leaves(first));
  EXPECT_EQ(SnapshotName(second), "Guest.exe");
}

TEST_F(ProcessesContract, TellsTheErrorForAProcessThatNeverWas) {
  EXPECT_EQ(processes().Terminate(0x7FFFFFF0, kAllAccess), kInvalidParameter);
}

TEST_F(ProcessesContract, DoesNotListAProcessThatEnded) {
  const ProcessId id = machine_->StartProgram("Guest.exe");
  machine_->EndProgram(id, 7);
  EXPECT_TRUE(Leaves(id));
  EXPECT_EQ(ModuleName(id), "");
  EXPECT_EQ(ModulePath(id), "");
  EXPECT_EQ(machine_->ExitCode(id), 7u);
}

TEST_F(ProcessesContract, HoldsAMutexOnce) {
  EXPECT_EQ(processes().HoldMutex("SorvaneContractMutex"), 0u);
  EXPECT_EQ(processes().HoldMutex("SorvaneContractMutex"), platform::kErrorAlreadyExists);
  EXPECT_EQ(processes().HoldMutex("SorvaneContractMutex"), platform::kErrorAlreadyExists);
}

TEST_F(ProcessesContract, KnowsTheUserOfThisProcess) {
  const auto login = processes().CurrentLoginName();
  EXPECT_NE(login.name, "");
  EXPECT_EQ(login.error, 0u);
}

TEST_F(ProcessesContract, KnowsTheSystemsVersion) {
  const platform::SystemVersion version = processes().Version();
  EXPECT_EQ(version.family, platform::SystemFamily::kNt);
  EXPECT_GE(version.major, 5u);
}

TEST_F(ProcessesContract, RunsOnASystemOfItsOwnWidth) {
  if (sizeof(void*) == 8) {
    EXPECT_FALSE(processes().IsWow64());
  }
}

TEST_F(ProcessesContract, KnowsItsOwnFolderWithoutABackslashAtTheEnd) {
  const std::string folder = processes().ExecutableFolder();
  EXPECT_TRUE(ports().files.FolderExists(folder));
  EXPECT_NE(folder.back(), '\\');
}

}  // namespace
