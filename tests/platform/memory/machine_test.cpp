#include "platform/memory/machine.h"

#include <gtest/gtest.h>

namespace platform::memory {
namespace {

using Lines = std::vector<std::string>;

TEST(MemoryMachine, BeginsAtTheFixedMoment) {
  Machine machine;
  EXPECT_EQ(machine.platform().clock.Now(), (LocalTime{2024, 3, 1, 10, 0, 0}));
  EXPECT_EQ(machine.now(), 0u);
}

TEST(MemoryMachine, RunsATimerAtItsExactDueTimes) {
  Machine machine;
  std::vector<std::uint64_t> ticks;
  machine.platform().events.StartTimer(3000, [&] { ticks.push_back(machine.now()); });
  machine.Run(9000);
  EXPECT_EQ(ticks, (std::vector<std::uint64_t>{3000, 6000, 9000}));
  EXPECT_EQ(machine.platform().clock.Now(), (LocalTime{2024, 3, 1, 10, 0, 9}));
}

TEST(MemoryMachine, ReadsBackWhatTheProfileWriterWrote) {
  Machine machine;
  machine.files().PutFolder("C:\\Sorvane");
  Platform& platform = machine.platform();
  EXPECT_TRUE(platform.profile_files.WriteText("C:\\Sorvane\\a.ini", "One", "Key", "Value"));
  EXPECT_TRUE(platform.profile_files.WriteText("C:\\Sorvane\\a.ini", "Two", "Key", "7x"));
  EXPECT_TRUE(platform.profile_files.WriteText("C:\\Sorvane\\a.ini", "one", "Other ", "-3"));
  EXPECT_EQ(machine.files().Content("c:\\sorvane\\A.INI"),
            "[One]\r\nKey=Value\r\nOther=-3\r\n[Two]\r\nKey=7x\r\n");
  EXPECT_EQ(platform.profile_files.ReadText("C:\\Sorvane\\a.ini", "ONE", "key "), "Value");
  EXPECT_EQ(platform.profile_files.ReadInt("C:\\Sorvane\\a.ini", "Two", "Key"), 7);
  EXPECT_EQ(platform.profile_files.ReadInt("C:\\Sorvane\\a.ini", "One", "Other"), -3);
  EXPECT_EQ(machine.journal().Excerpt("profile"),
            (Lines{"C:\\Sorvane\\a.ini [One] Key=Value", "C:\\Sorvane\\a.ini [Two] Key=7x",
                   "C:\\Sorvane\\a.ini [one] Other =-3"}));
}

TEST(MemoryMachine, KeepsTheIconAsPeopleSeeIt) {
  Machine machine;
  machine.files().PutPicture("C:\\Sorvane\\Images\\green.ico");
  Shell& shell = machine.platform().shell;
  const PictureId green = shell.LoadPicture("c:\\sorvane\\images\\GREEN.ico");
  ASSERT_NE(green, kNoPicture);
  EXPECT_TRUE(shell.AddIcon(1, 0x401, green, "Ready"));
  EXPECT_EQ(machine.shell().icon()->picture_name, "green.ico");
  EXPECT_TRUE(shell.SetIconTip(std::string(70, 'x')));
  EXPECT_EQ(machine.shell().icon()->tip, std::string(63, 'x'));
  machine.SetShellPresent(false);
  EXPECT_FALSE(shell.SetIconTip("gone"));
}

TEST(MemoryMachine, EndsEveryLoopWhenTheAgentExits) {
  Machine machine;
  Platform& platform = machine.platform();
  platform.events.StartTimer(1000, [&] {
    if (machine.now() == 3000) platform.processes.ExitSelf(7);
  });
  machine.Run(60000);
  EXPECT_TRUE(machine.exited());
  EXPECT_EQ(machine.exit_code(), 7u);
  EXPECT_EQ(machine.now(), 3000u);
}

}  // namespace
}  // namespace platform::memory
