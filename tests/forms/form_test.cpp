#include "forms/form.h"

#include <gtest/gtest.h>

#include "forms/memory/dump.h"
#include "tests/forms/golden.h"
#include "tests/forms/sample_form.h"
#include "tests/forms/screen.h"

namespace forms {
namespace {

using testing::frmSample;
using testing::MemoryScreen;

class FormTest : public ::testing::Test {
 protected:
  MemoryScreen screen_;
  frmSample form_{screen_.host};
};

TEST_F(FormTest, LoadsOnceAndShowsLater) {
  int loads = 0;
  form_.on_load = [&loads] { ++loads; };
  form_.Load();
  EXPECT_TRUE(form_.Loaded());
  EXPECT_FALSE(form_.Visible());
  form_.Show();
  form_.Show();
  EXPECT_EQ(loads, 1);
  EXPECT_TRUE(form_.Visible());
}

TEST_F(FormTest, HasAWindowOnlyWhileLoaded) {
  EXPECT_EQ(form_.Window(), platform::kNoWindow);
  EXPECT_EQ(form_.cmdOk.Window(), platform::kNoWindow);
  form_.Load();
  EXPECT_NE(form_.Window(), platform::kNoWindow);
  EXPECT_NE(form_.cmdOk.Window(), platform::kNoWindow);
  form_.Unload();
  EXPECT_EQ(form_.Window(), platform::kNoWindow);
}

TEST_F(FormTest, UnloadsOnceAndCanBeShownAgain) {
  int unloads = 0;
  form_.on_unload = [&unloads] { ++unloads; };
  form_.Show();
  form_.Unload();
  form_.Unload();
  EXPECT_EQ(unloads, 1);
  form_.Show();
  EXPECT_TRUE(form_.Visible());
}

TEST_F(FormTest, UnloadFromItsOwnUnloadHandlerEndsOnce) {
  int unloads = 0;
  form_.on_unload = [&] {
    ++unloads;
    if (unloads == 1) form_.Unload();
  };
  form_.Show();
  form_.Unload();
  EXPECT_FALSE(form_.Loaded());
  EXPECT_EQ(screen_.host.OpenForms().size(), 0u);
}

TEST_F(FormTest, FormThatUnloadsWhileLoadingIsNotShown) {
  form_.on_load = [this] { form_.Unload(); };
  form_.Show();
  EXPECT_FALSE(form_.Visible());
  EXPECT_TRUE(screen_.host.OpenForms().empty());
}

TEST_F(FormTest, TimerRunsOnlyWhileLoadedAndEnabled) {
  int ticks = 0;
  form_.tmrTick.on_tick = [&ticks] { ++ticks; };
  form_.tmrTick.SetEnabled(true);
  screen_.machine.Run(3000);
  EXPECT_EQ(ticks, 0);
  form_.Load();
  screen_.machine.Run(3000);
  EXPECT_EQ(ticks, 3);
  form_.tmrTick.SetEnabled(false);
  screen_.machine.Run(3000);
  EXPECT_EQ(ticks, 3);
  form_.tmrTick.SetEnabled(true);
  form_.Unload();
  screen_.machine.Run(3000);
  EXPECT_EQ(ticks, 3);
}

TEST_F(FormTest, NewIntervalCountsFromNow) {
  int ticks = 0;
  form_.tmrTick.on_tick = [&ticks] { ++ticks; };
  form_.tmrTick.SetEnabled(true);
  form_.Load();
  screen_.machine.Run(900);
  form_.tmrTick.SetInterval(500);
  screen_.machine.Run(499);
  EXPECT_EQ(ticks, 0);
  screen_.machine.Run(1);
  EXPECT_EQ(ticks, 1);
}

TEST_F(FormTest, TimerMayTurnItselfOffInItsTick) {
  int ticks = 0;
  form_.tmrTick.on_tick = [&] {
    ++ticks;
    form_.tmrTick.SetEnabled(false);
  };
  form_.tmrTick.SetEnabled(true);
  form_.Load();
  screen_.machine.Run(5000);
  EXPECT_EQ(ticks, 1);
}

TEST_F(FormTest, DestroyedFormLeavesNoTimerAndNoWindow) {
  {
    frmSample other(screen_.host);
    other.tmrTick.SetEnabled(true);
    other.Show();
  }
  EXPECT_TRUE(screen_.host.OpenForms().empty());
  screen_.machine.Run(5000);
}

TEST_F(FormTest, MessageHandlerAnswersForTheWindow) {
  form_.Load();
  EXPECT_EQ(screen_.host.Send(form_, 0x7E9, 0, 0), 0);
  form_.on_message = [](std::uint32_t message, std::uintptr_t,
                        std::intptr_t lparam) -> std::optional<std::intptr_t> {
    if (message != 0x7E9) return std::nullopt;
    return lparam + 1;
  };
  EXPECT_EQ(screen_.host.Send(form_, 0x7E9, 0, 41), 42);
  EXPECT_EQ(screen_.host.Send(form_, 0x16, 0, 41), 0);
}

TEST_F(FormTest, ClosingByTheUserUnloadsUnlessTheFormHasItsOwnWay) {
  form_.Show();
  form_.CloseByUser();
  EXPECT_FALSE(form_.Loaded());
  bool asked = false;
  form_.on_close = [&asked] { asked = true; };
  form_.Show();
  form_.CloseByUser();
  EXPECT_TRUE(asked);
  EXPECT_TRUE(form_.Loaded());
}

TEST_F(FormTest, CaptionIsShownOnlyWhenItChanges) {
  form_.Show();
  const auto before = screen_.Journal().size();
  form_.SetCaption("Scheduled jobs");
  EXPECT_EQ(screen_.Journal().size(), before);
  form_.SetCaption("Sorvane - Status");
  EXPECT_EQ(screen_.Journal().back(), "frmSample caption \"Sorvane - Status\"");
}

TEST_F(FormTest, LooksAsItWasLookedAt) {
  form_.Show();
  const std::string dump = memory::Dump(form_);
  EXPECT_EQ(dump, testing::Golden("frmSample", dump));
}

}  // namespace
}  // namespace forms
