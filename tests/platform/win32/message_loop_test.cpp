// What the message loop of Windows does beyond its port: the filter of forms, the system's own
// loops.
#include <gtest/gtest.h>

#include <vector>

#include "platform/win32/machine.h"

namespace {

using platform::win32::Machine;

constexpr UINT kMessage = WM_APP + 1;

class MessageLoop : public testing::Test {
 protected:
  void Post(WPARAM number) { PostThreadMessageA(GetCurrentThreadId(), kMessage, number, 0); }

  // Keeps the numbers of our messages; `taken` says whether it deals with them.
  platform::win32::MessageFilter Keep(bool taken) {
    return [this, taken](MSG& message) {
      if (message.message != kMessage) return false;
      seen_.push_back(message.wParam);
      return taken;
    };
  }

  Machine machine_;
  std::vector<WPARAM> seen_;
};

TEST_F(MessageLoop, ShowsEachMessageToTheFilterFirst) {
  machine_.events().SetMessageFilter(Keep(true));
  Post(1);
  Post(2);
  machine_.events().Pump();
  EXPECT_EQ(seen_, (std::vector<WPARAM>{1, 2}));
  Post(3);
  machine_.events().RunUntil([this] { return seen_.size() == 3; });
  EXPECT_EQ(seen_, (std::vector<WPARAM>{1, 2, 3}));
}

TEST_F(MessageLoop, WorksOnWithoutAFilter) {
  machine_.events().SetMessageFilter(Keep(false));
  machine_.events().SetMessageFilter({});
  Post(1);
  machine_.events().Pump();
  EXPECT_TRUE(seen_.empty());
}

// Menus and boxes of the system run loops of their own.
TEST_F(MessageLoop, TicksInsideALoopOfTheSystem) {
  int inner_ticks = 0;
  const auto inner = machine_.events().StartTimer(10, [&] { ++inner_ticks; });
  bool looped = false;
  const auto outer = machine_.events().StartTimer(10, [&] {
    if (looped) return;
    looped = true;
    MSG message;
    while (inner_ticks < 5 && GetMessageA(&message, nullptr, 0, 0) > 0) DispatchMessageA(&message);
  });
  machine_.events().RunUntil([&] { return looped; });
  EXPECT_GE(inner_ticks, 5);
  machine_.events().StopTimer(inner);
  machine_.events().StopTimer(outer);
}

TEST_F(MessageLoop, ReturnsFromAPumpThoughATickIsSlowerThanItsPeriod) {
  int ticks = 0;
  const auto slow = machine_.events().StartTimer(10, [&] {
    ++ticks;
    ::Sleep(40);
  });
  machine_.events().RunUntil([&] { return ticks == 1; });
  machine_.events().Pump();
  EXPECT_EQ(ticks, 2);
  machine_.events().StopTimer(slow);
}

TEST_F(MessageLoop, EndsWhenTheSystemEndsIt) {
  PostQuitMessage(0);
  machine_.events().RunUntil([] { return false; });
  bool asked = false;
  machine_.events().RunUntil([&asked] {
    asked = true;
    return true;
  });
  EXPECT_FALSE(asked);
}

}  // namespace
