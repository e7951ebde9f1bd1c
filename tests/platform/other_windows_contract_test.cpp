// Finding other programs' windows, and messages to them.
#include "tests/platform/contract_test.h"

namespace {

using platform::WindowId;

constexpr std::uint32_t kMessage = 1034;
constexpr std::uint32_t kClose = 16;
constexpr char kClass[] = "SorvaneContractWindow";
constexpr char kTitle[] = "Sorvane contract";

class OtherWindowsContract : public ContractTest {
 protected:
  platform::OtherWindows& windows() { return ports().other_windows; }

  // A window closes a moment after it was told so.
  bool Closes(WindowId window) {
    constexpr int kTries = 200;
    for (int i = 0; i < kTries && windows().Post(window, kMessage, 0, 0); ++i) {
      ports().clock.Sleep(20);
    }
    return !windows().Post(window, kMessage, 0, 0);
  }
};

TEST_F(OtherWindowsContract, FindsAWindowByItsTitleInAnyCase) {
  const WindowId window = machine_->OpenWindow(kClass, kTitle);
  EXPECT_EQ(windows().Find("", kTitle), window);
  EXPECT_EQ(windows().Find("", "SORVANE CONTRACT"), window);
}

TEST_F(OtherWindowsContract, TakesOnlyTheWholeTitle) {
  machine_->OpenWindow(kClass, kTitle);
  EXPECT_EQ(windows().Find("", "Sorvane"), platform::kNoWindow);
  EXPECT_EQ(windows().Find("", "Sorvane contract "), platform::kNoWindow);
}

TEST_F(OtherWindowsContract, FindsAWindowByClassAndTitle) {
  const WindowId window = machine_->OpenWindow(kClass, kTitle);
  EXPECT_EQ(windows().Find(kClass, kTitle), window);
  EXPECT_EQ(windows().Find("sorvanecontractwindow", kTitle), window);
  EXPECT_EQ(windows().Find("SorvaneOtherClass", kTitle), platform::kNoWindow);
  EXPECT_EQ(windows().Find(kClass, "Other title"), platform::kNoWindow);
}

TEST_F(OtherWindowsContract, SendsAMessageAndTakesTheAnswer) {
  const WindowId window = machine_->OpenWindow(kClass, kTitle);
  EXPECT_EQ(windows().Send(window, kMessage, 5, -6), std::intptr_t{kMessage});
  EXPECT_EQ(machine_->Received(window), (std::vector<ReceivedMessage>{{kMessage, 5, -6}}));
}

TEST_F(OtherWindowsContract, PostsMessagesInOrder) {
  const WindowId window = machine_->OpenWindow(kClass, kTitle);
  EXPECT_TRUE(windows().Post(window, kMessage, 1, 2));
  EXPECT_TRUE(windows().Post(window, kMessage + 1, 3, 4));
  EXPECT_EQ(machine_->Received(window),
            (std::vector<ReceivedMessage>{{kMessage, 1, 2}, {kMessage + 1, 3, 4}}));
}

TEST_F(OtherWindowsContract, ClosesAWindowByItsMessage) {
  const WindowId window = machine_->OpenWindow(kClass, kTitle);
  EXPECT_TRUE(windows().Post(window, kClose, 0, 0));
  EXPECT_TRUE(Closes(window));
  EXPECT_EQ(windows().Find(kClass, kTitle), platform::kNoWindow);
}

TEST_F(OtherWindowsContract, SendsAndPostsNothingToNoWindow) {
  EXPECT_EQ(windows().Send(platform::kNoWindow, kMessage, 0, 0), 0);
  EXPECT_FALSE(windows().Post(platform::kNoWindow, kMessage, 0, 0));
  EXPECT_EQ(windows().Send(0x7FFFFFF0, kMessage, 0, 0), 0);
  EXPECT_FALSE(windows().Post(0x7FFFFFF0, kMessage, 0, 0));
}

TEST_F(OtherWindowsContract, RestoresAMinimisedWindow) {
  const WindowId window = machine_->OpenWindow(kClass, kTitle);
  EXPECT_FALSE(windows().IsMinimised(window));
  machine_->MinimiseWindow(window);
  EXPECT_TRUE(windows().IsMinimised(window));
  windows().Restore(window);
  EXPECT_FALSE(windows().IsMinimised(window));
}

TEST_F(OtherWindowsContract, BringsNoWindowToFrontWithoutHarm) {
  windows().BringToFront(platform::kNoWindow);
  windows().Restore(platform::kNoWindow);
  EXPECT_FALSE(windows().IsMinimised(platform::kNoWindow));
}

TEST_F(OtherWindowsContract, GivesOneNumberForOneMessageName) {
  const std::uint32_t first = windows().RegisterMessage("SorvaneContractOne");
  const std::uint32_t second = windows().RegisterMessage("SorvaneContractTwo");
  EXPECT_GE(first, 0xC000u);
  EXPECT_GE(second, 0xC000u);
  EXPECT_NE(first, second);
  EXPECT_EQ(windows().RegisterMessage("SorvaneContractOne"), first);
  EXPECT_EQ(windows().RegisterMessage("sorvanecontractone"), first);
}

TEST_F(OtherWindowsContract, GivesNoNumberForNoName) {
  EXPECT_EQ(windows().RegisterMessage(""), 0u);
}

}  // namespace
