// What fate does to files and services, and the journal of it all.
#include <gtest/gtest.h>

#include "platform/memory/machine.h"

namespace platform::memory {
namespace {

using Lines = std::vector<std::string>;

constexpr char kFile[] = "C:\\Sorvane\\File.ini";

class MemoryFate : public testing::Test {
 protected:
  MemoryFate() { machine_.files().PutIni(kFile, "S", "k", "v"); }
  Platform& platform() { return machine_.platform(); }
  bool Write() { return platform().profile_files.WriteText(kFile, "S", "k", "w"); }
  std::string Read() { return platform().profile_files.ReadText(kFile, "S", "k"); }

  Machine machine_;
};

TEST_F(MemoryFate, LocksAFileAgainstEverything) {
  machine_.LockFile(kFile);
  EXPECT_EQ(Read(), "");
  EXPECT_FALSE(Write());
  EXPECT_EQ(platform().files.Read(kFile), std::nullopt);
  EXPECT_FALSE(platform().files.Remove(kFile));
  EXPECT_TRUE(platform().files.Exists(kFile));
  machine_.UnlockFile(kFile);
  EXPECT_EQ(Read(), "v");
}

TEST_F(MemoryFate, LocksAFileAgainstWritingOnly) {
  machine_.LockFile(kFile, FileLock::kAgainstWriting);
  EXPECT_EQ(Read(), "v");
  EXPECT_FALSE(Write());
}

TEST_F(MemoryFate, MakesAFileReadOnly) {
  machine_.MakeReadOnly(kFile);
  EXPECT_FALSE(Write());
  EXPECT_EQ(Read(), "v");
  machine_.MakeReadOnly(kFile, false);
  EXPECT_TRUE(Write());
}

TEST_F(MemoryFate, FillsTheDiskForEveryWrite) {
  machine_.FillDisk();
  EXPECT_FALSE(Write());
  EXPECT_FALSE(platform().files.Replace(kFile, "x"));
  EXPECT_FALSE(platform().files.AppendUtf16Line("C:\\Sorvane\\Trace.txt", "x"));
  EXPECT_FALSE(platform().files.MakeFolder("C:\\Sorvane\\New"));
  EXPECT_FALSE(platform().files.Copy(kFile, "C:\\Sorvane\\Copy.ini"));
  EXPECT_EQ(Read(), "v");
  EXPECT_TRUE(platform().files.Remove(kFile));
  machine_.FillDisk(false);
  EXPECT_TRUE(Write());
}

TEST_F(MemoryFate, StopsAService) {
  machine_.SetService("Sorvane", ServiceState::kRunning);
  EXPECT_EQ(platform().services.State("sorvane", ServiceAccess::kAll), ServiceState::kRunning);
  machine_.StopService("Sorvane");
  EXPECT_EQ(platform().services.State("Sorvane", ServiceAccess::kAll), ServiceState::kStopped);
  machine_.services().DenyAll(true);
  EXPECT_EQ(platform().services.State("Sorvane", ServiceAccess::kAll), ServiceState::kUnknown);
  EXPECT_EQ(platform().services.State("Sorvane", ServiceAccess::kRead), ServiceState::kStopped);
}

TEST_F(MemoryFate, TakesRightsToTheRegistryAway) {
  Registry& registry = platform().registry;
  machine_.registry().PutText(Hive::kLocalMachine, "Software\\Sorvane", "Name", "text");
  machine_.registry().DenyWriting(Hive::kLocalMachine);
  const auto all =
      registry.Read(Hive::kLocalMachine, "Software\\Sorvane", "Name", 64, RegistryAccess::kAll);
  EXPECT_FALSE(all.key_opened);
  EXPECT_EQ(all.error, kRegistryAccessDenied);
  const auto read =
      registry.Read(Hive::kLocalMachine, "Software\\Sorvane", "Name", 64, RegistryAccess::kRead);
  EXPECT_EQ(read.value.bytes, std::string("text\0", 5));
  EXPECT_EQ(registry.Write(Hive::kLocalMachine, "Software\\Sorvane", "Name", {}),
            kRegistryAccessDenied);
}

TEST_F(MemoryFate, LosesALibraryWithItsFile) {
  machine_.libraries().PutString("C:\\Sorvane\\Texts.dll", 7, "Seven");
  EXPECT_EQ(platform().libraries.ReadString("C:\\Sorvane\\texts.dll", 7), "Seven");
  machine_.files().Delete("C:\\Sorvane\\Texts.dll");
  EXPECT_EQ(platform().libraries.ReadString("C:\\Sorvane\\Texts.dll", 7), "");
}

TEST_F(MemoryFate, DrawsWhatTheScriptSaysAndThenBySeed) {
  machine_.random().Script({0.25, 0.75});
  EXPECT_EQ(platform().random.Next(), 0.25);
  EXPECT_EQ(platform().random.Next(), 0.75);
  EXPECT_EQ(platform().random.Next(), Machine(1).platform().random.Next());
  EXPECT_NE(Machine(1).platform().random.Next(), Machine(2).platform().random.Next());
}

TEST_F(MemoryFate, KeepsATraceAsWideTextWithAMark) {
  EXPECT_TRUE(platform().files.AppendUtf16Line("C:\\Sorvane\\Trace.txt", "one"));
  EXPECT_TRUE(platform().files.AppendUtf16Line("C:\\Sorvane\\Trace.txt", "\x80"));
  EXPECT_EQ(machine_.files().Content("C:\\Sorvane\\Trace.txt").substr(0, 4),
            std::string("\xFF\xFEo\0", 4));
  EXPECT_EQ(machine_.files().Utf16Content("C:\\Sorvane\\Trace.txt"), "one\r\n\x80\r\n");
}

// A little of everything, with chance in it.
std::string StoryOf(std::uint64_t seed) {
  Machine machine(seed);
  Platform& platform = machine.platform();
  machine.files().Put("C:\\Sorvane\\Client.exe", "MZ");
  machine.processes().Install("Client.exe", [&](const Launch& launch) {
    machine.processes().After(launch.id, 4000, [&, id = launch.id] {
      machine.files().PutIni(kFile, "Client", "Result", "2");
      machine.processes().End(id);
    });
  });
  platform.shell.AddIcon(1, 512, kNoPicture, "Ready");
  platform.events.StartTimer(3000, [&] {
    if (platform.random.Next() < 0.5) {
      platform.profile_files.WriteText(kFile, "Agent", "Draw", "low");
    } else {
      platform.shell.Open("C:\\Sorvane\\Client.exe", "", "", WindowShow::kNormal);
    }
  });
  machine.At(7000, [&] { machine.LockFile(kFile); });
  machine.At(9500, [&] { machine.UnlockFile(kFile); });
  machine.Run(60000);
  return machine.journal().Text() + machine.files().Dump();
}

TEST(MemoryJournal, IsTheSameForTheSameSeed) {
  EXPECT_EQ(StoryOf(5), StoryOf(5));
  EXPECT_NE(StoryOf(5), StoryOf(6));
}

TEST(MemoryJournal, TellsTimeActorCategoryAndText) {
  Machine machine;
  machine.At(1500, [&] { machine.LockFile(kFile); });
  machine.platform().events.StartTimer(2000, [&] { machine.platform().shell.RemoveIcon(); });
  machine.Run(2000);
  EXPECT_EQ(machine.journal().Lines(),
            (Lines{"1500 fate file lock C:\\Sorvane\\File.ini", "2000 agent icon remove failed"}));
  EXPECT_EQ(machine.journal().Excerpt(std::vector<std::string_view>{"icon", "file"}),
            (Lines{"file lock C:\\Sorvane\\File.ini", "icon remove failed"}));
}

TEST(MemoryJournal, HasNoLineForAReadOrForSeeding) {
  Machine machine;
  machine.files().PutIni(kFile, "S", "k", "v");
  machine.platform().profile_files.ReadText(kFile, "S", "k");
  machine.platform().files.Read(kFile);
  EXPECT_TRUE(machine.journal().entries().empty());
}

TEST(MemoryJournal, KeepsNothingWhenToldSo) {
  Machine machine;
  machine.journal().Keep(false);
  machine.platform().files.Replace("C:\\Sorvane\\a.txt", "x");
  machine.LockFile("C:\\Sorvane\\a.txt");
  EXPECT_TRUE(machine.journal().entries().empty());
}

}  // namespace
}  // namespace platform::memory
