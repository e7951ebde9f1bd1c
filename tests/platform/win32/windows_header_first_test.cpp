// No name of a port may be a macro of the Windows header: here that header comes first.
// clang-format off
#include <windows.h>
#include <shellapi.h>
#include <winsvc.h>

#include "platform/clock.h"
#include "platform/events.h"
#include "platform/files.h"
#include "platform/libraries.h"
#include "platform/local_time.h"
#include "platform/locale.h"
#include "platform/other_windows.h"
#include "platform/platform.h"
#include "platform/power.h"
#include "platform/processes.h"
#include "platform/profile_files.h"
#include "platform/random.h"
#include "platform/registry.h"
#include "platform/services.h"
#include "platform/shell.h"
// clang-format on

#include <gtest/gtest.h>

#include "platform/win32/machine.h"

// A method of such a name would be another one for units with the header and without it.
#if defined(Item) || defined(AnsiCodePage) || defined(ToWide) || defined(FromWide) ||              \
    defined(SystemErrorText) || defined(Now) || defined(Milliseconds) || defined(Sleep) ||         \
    defined(StartTimer) || defined(StopTimer) || defined(Pump) || defined(RunUntil) ||             \
    defined(Quit) || defined(WaitForProcess) || defined(Exists) || defined(FolderExists) ||        \
    defined(Read) || defined(Replace) || defined(AppendUtf16Line) || defined(Size) ||              \
    defined(Remove) || defined(Copy) || defined(MakeFolder) || defined(RemoveFolder) ||            \
    defined(List) || defined(ChangeDirectory) || defined(ReadString) || defined(Call) ||           \
    defined(Find) || defined(Send) || defined(Post) || defined(IsMinimised) || defined(Restore) || \
    defined(BringToFront) || defined(RegisterMessage) || defined(SetThreadExecutionState) ||       \
    defined(WalkModuleNames) || defined(WalkModulePaths) || defined(WalkSnapshot) ||               \
    defined(Terminate) || defined(ExitSelf) || defined(HoldMutex) || defined(CurrentLoginName) ||  \
    defined(Version) || defined(IsWow64) || defined(ExecutableFolder) || defined(ReadText) ||      \
    defined(ReadInt) || defined(WriteText) || defined(Next) || defined(CreateKey) ||               \
    defined(Write) || defined(Flush) || defined(State) || defined(Open) || defined(Start) ||       \
    defined(LoadPicture) || defined(AddIcon) || defined(SetIconPicture) || defined(SetIconTip) ||  \
    defined(RemoveIcon) || defined(ShowStopBox)
#error "a method of a port has the name of a macro"
#endif

namespace {

TEST(WindowsHeaderFirst, LeavesThePortsTheirNames) {
  platform::win32::Machine machine;
  platform::Platform& ports = machine.platform();
  EXPECT_FALSE(ports.files.Exists(""));
  EXPECT_EQ(ports.other_windows.Find("NoSuchWindowClass", "no such title"), platform::kNoWindow);
}

}  // namespace
