// The status window on the real screen, over a machine in memory: no text is cut in any of its
// states at any density, and no state takes the keyboard away.
#include <gtest/gtest.h>

#include "status/transfer_view.h"
#include "status/ui/frm_status.h"
#include "tests/forms/win32/real_screen.h"
#include "tests/status/controller_fixture.h"
#include "tests/status/ui/frm_status_states.h"

namespace status {
namespace {

using forms::testing::CutTexts;
using forms::testing::RealScreen;
using forms::testing::TextOf;
using forms::testing::WindowOf;

struct RealStatusWindow : StatusMachine {
  explicit RealStatusWindow(int dpi) : screen(dpi) {
    machine.files().Put(Path("scheduleData.txt"), "0\r\n" + std::string(kRecord) + "\r\n");
    SetQuota("1536", "4096");
    for (const std::string_view section : {"BackupProgressInfo", "RestoreProgressInfo"}) {
      SetProgress(section, "FileName", "C:\\Users\\anna\\" + std::string(120, 'w') + ".jpg");
      SetProgress(section, "Total Progress", "12.4 GB of 40.5 GB in 1024 of 20480 files");
      SetProgress(section, "Tans Rate", "1024.25 Mbps");
      SetProgress(section, "Backedup Files", "10240 of 20480");
    }
  }
  void Tick() {
    for (forms::Timer* timer : window.Timers()) {
      if (timer->Enabled()) timer->on_tick();
    }
    screen.Settle();
  }

  RealScreen screen;
  ToldSchedule schedule;
  RecordedCommands commands;
  ToldMessages messages;
  frmStatus window{screen.host, machine.platform(), state, {schedule, commands, messages}};
};

TEST(StatusWindowOnTheScreen, CutsNoTextInAnyStateAtAnyDensity) {
  for (const int dpi : {96, 120, 144, 192}) {
    SIZE first = {};
    for (const State& one : kStates) {
      SCOPED_TRACE(testing::Message() << one.name << " at " << dpi);
      RealStatusWindow f(dpi);
      one.seed(f);
      f.window.Show();
      f.Tick();
      EXPECT_EQ(CutTexts(f.window, dpi), "");
      RECT place;
      GetWindowRect(WindowOf(f.window), &place);
      const SIZE size = {place.right - place.left, place.bottom - place.top};
      if (first.cx == 0) first = size;
      EXPECT_TRUE(size.cx == first.cx && size.cy == first.cy) << size.cx << "x" << size.cy;
    }
  }
}

TEST(StatusWindowOnTheScreen, ShowsBothLinesOfTheFilesPath) {
  for (const int dpi : {96, 144}) {
    RealStatusWindow f(dpi);
    f.StartTransfer("1");
    const std::string path = "C:\\Users\\anna\\Documents\\Projects\\Reports of the last years\\" +
                             std::string("Summary for the annual meeting of all members.docx");
    f.SetProgress("BackupProgressInfo", "FileName", path);
    f.window.Show();
    f.Tick();
    const HWND box = WindowOf(*f.window.Find("BkupFilepath"));
    EXPECT_EQ(TextOf(box), WrapFilePath(path, dpi != 96));
    EXPECT_EQ(SendMessageA(box, EM_GETLINECOUNT, 0, 0), 2);
    // The last line's lower end lies in the box.
    RECT inside;
    GetClientRect(box, &inside);
    const LRESULT last = SendMessageA(box, EM_LINEINDEX, 1, 0);
    const LRESULT first_place = SendMessageA(box, EM_POSFROMCHAR, 0, 0);
    const LRESULT last_place = SendMessageA(box, EM_POSFROMCHAR, static_cast<WPARAM>(last), 0);
    const int line = HIWORD(last_place) - HIWORD(first_place);
    EXPECT_LE(HIWORD(last_place) + line, inside.bottom) << dpi;
  }
}

TEST(StatusWindowOnTheScreen, KeepsTheKeyboardWhenTheUserLogsOut) {
  RealStatusWindow f(96);
  f.window.BringToFront();
  f.screen.Settle();
  ASSERT_EQ(GetFocus(), WindowOf(*f.window.Find("Cmd_Yes")));
  f.LogIn("");
  f.Tick();
  EXPECT_EQ(GetFocus(), WindowOf(*f.window.Find("Cmd_No")));
  f.screen.Press(GetFocus(), VK_ESCAPE);
  EXPECT_FALSE(f.window.Loaded());
}

TEST(StatusWindowOnTheScreen, KeepsTheKeyboardOnTheLogWhenATransferBegins) {
  RealStatusWindow f(96);
  f.window.BringToFront();
  f.screen.Settle();
  f.StartTransfer("1");
  f.Tick();
  EXPECT_EQ(GetFocus(), WindowOf(*f.window.Find("Cmd_ProgViewLog")));
}

}  // namespace
}  // namespace status
