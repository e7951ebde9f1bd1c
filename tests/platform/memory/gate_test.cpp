// Counting calls, and faults on demand.
#include <gtest/gtest.h>

#include "platform/memory/machine.h"

namespace platform::memory {
namespace {

constexpr char kFile[] = "C:\\Sorvane\\File.txt";

class MemoryGate : public testing::Test {
 protected:
  MemoryGate() { machine_.files().Put(kFile, "text"); }
  Files& files() { return machine_.platform().files; }
  Gate& gate() { return machine_.gate(); }

  Machine machine_;
};

TEST_F(MemoryGate, CountsCallsByNameFromItsStart) {
  files().Read(kFile);
  gate().Start();
  files().Read(kFile);
  files().Read(kFile);
  files().Exists(kFile);
  EXPECT_EQ(gate().total(), 3u);
  EXPECT_EQ(gate().Count("files.Read"), 2u);
  EXPECT_EQ(gate().Count("files.Exists"), 1u);
  EXPECT_EQ(gate().Count("files.Remove"), 0u);
  gate().Stop();
  files().Read(kFile);
  EXPECT_EQ(gate().total(), 3u);
}

TEST_F(MemoryGate, RecordsNamesAndArguments) {
  gate().Start(true);
  machine_.platform().profile_files.ReadText(kFile, "Section", "Key");
  ASSERT_EQ(gate().calls().size(), 1u);
  EXPECT_EQ(gate().calls()[0].name, "profile_files.ReadText");
  EXPECT_EQ(gate().calls()[0].argument, std::string(kFile) + " [Section] Key");
}

TEST_F(MemoryGate, FailsJustTheCallWithThatNumber) {
  gate().FailCall(2);
  EXPECT_EQ(files().Read(kFile), "text");
  EXPECT_EQ(files().Read(kFile), std::nullopt);
  EXPECT_EQ(files().Read(kFile), "text");
  ASSERT_EQ(gate().failed().size(), 1u);
  EXPECT_EQ(gate().failed()[0].name, "files.Read");
}

TEST_F(MemoryGate, FailsTheNthCallOfAName) {
  gate().FailCall("files.Exists", 1);
  EXPECT_EQ(files().Read(kFile), "text");
  EXPECT_FALSE(files().Exists(kFile));
  EXPECT_TRUE(files().Exists(kFile));
}

TEST_F(MemoryGate, FailsEveryCallAboutOneThingUntilHealed) {
  gate().FailAll("files.Exists", "c:\\sorvane\\FILE.TXT");
  EXPECT_FALSE(files().Exists(kFile));
  EXPECT_FALSE(files().Exists(kFile));
  EXPECT_TRUE(files().Exists("C:\\Windows\\explorer.exe"));
  gate().Heal();
  EXPECT_TRUE(files().Exists(kFile));
}

TEST_F(MemoryGate, LeavesEverythingAsItWasWhenAWriteFails) {
  gate().FailCall(1);
  EXPECT_FALSE(files().Replace(kFile, "new"));
  EXPECT_EQ(machine_.files().Content(kFile), "text");
  EXPECT_EQ(machine_.journal().Excerpt("file"),
            (std::vector<std::string>{"replace C:\\Sorvane\\File.txt 3 bytes failed"}));
}

TEST_F(MemoryGate, LetsActorsPass) {
  gate().FailAll("files.Exists");
  bool seen = false;
  machine_.As("engine", [&] { seen = files().Exists(kFile); });
  EXPECT_TRUE(seen);
  EXPECT_EQ(gate().total(), 0u);
}

// What each call gives when it fails.
TEST_F(MemoryGate, FailsEachCallAsTheRealOneFails) {
  Platform& machine = machine_.platform();
  machine_.processes().Install("Client.exe", {});
  machine_.services().Set("Service", ServiceState::kRunning);
  const struct {
    const char* name;
    std::function<bool()> failed;
  } kCalls[] = {
      {"files.FolderExists", [&] { return !machine.files.FolderExists("C:\\Sorvane"); }},
      {"files.AppendUtf16Line", [&] { return !machine.files.AppendUtf16Line(kFile, "x"); }},
      {"files.Size", [&] { return !machine.files.Size(kFile); }},
      {"files.Remove", [&] { return !machine.files.Remove(kFile); }},
      {"files.Copy", [&] { return !machine.files.Copy(kFile, "C:\\Sorvane\\b"); }},
      {"files.MakeFolder", [&] { return !machine.files.MakeFolder("C:\\Sorvane\\New"); }},
      {"files.RemoveFolder", [&] { return !machine.files.RemoveFolder("C:\\Sorvane"); }},
      {"files.List", [&] { return machine.files.List("C:\\Sorvane", "*").empty(); }},
      {"files.ChangeDirectory", [&] { return machine.files.ChangeDirectory("C:\\Sorvane") != 0; }},
      {"profile_files.WriteText",
       [&] { return !machine.profile_files.WriteText(kFile, "S", "k", "v"); }},
      {"registry.Read",
       [&] {
         return machine.registry.Read(Hive::kCurrentUser, "K", "n", 9, RegistryAccess::kRead)
                    .error == kRegistryAccessDenied;
       }},
      {"registry.CreateKey",
       [&] {
         return machine.registry.CreateKey(Hive::kCurrentUser, "K") == kRegistryAccessDenied;
       }},
      {"registry.Write",
       [&] { return machine.registry.Write(Hive::kCurrentUser, "K", "n", {}) != 0; }},
      {"registry.Flush", [&] { return machine.registry.Flush(Hive::kCurrentUser, "K") != 0; }},
      {"processes.HoldMutex", [&] { return machine.processes.HoldMutex("M") == 5; }},
      {"processes.CurrentLoginName",
       [&] { return machine.processes.CurrentLoginName().name.empty(); }},
      {"services.State",
       [&] {
         return machine.services.State("Service", ServiceAccess::kRead) == ServiceState::kUnknown;
       }},
      {"shell.Open",
       [&] { return machine.shell.Open("Client.exe", "", "", WindowShow::kNormal) <= 32; }},
      {"shell.Start",
       [&] {
         return machine.shell.Start(ShellVerb::kOpen, "Client.exe", "", "", WindowShow::kNormal)
                    .error != 0;
       }},
      {"shell.AddIcon", [&] { return !machine.shell.AddIcon(1, 2, kNoPicture, "tip"); }},
      {"events.StartTimer", [&] { return machine.events.StartTimer(9, [] {}) == kNoTimer; }},
      {"events.WaitForProcess",
       [&] { return machine.events.WaitForProcess(1, 1) == WaitResult::kFailed; }},
      {"power.SetThreadExecutionState",
       [&] { return !machine.power.SetThreadExecutionState(kContinuous); }},
      {"locale.Item", [&] { return machine.locale.Item(kLocaleShortDate).empty(); }},
  };
  for (const auto& call : kCalls) {
    gate().Start();
    gate().FailCall(call.name, 1);
    EXPECT_TRUE(call.failed()) << call.name;
    EXPECT_EQ(gate().failed().size(), 1u) << call.name;
    gate().Heal();
    gate().Stop();
  }
  EXPECT_EQ(machine_.files().Content(kFile), "text");
  EXPECT_TRUE(machine_.shell().opened().empty());
}

}  // namespace
}  // namespace platform::memory
