// The built executable, driven from outside: files, registry, icon, mouse.
#include <gtest/gtest.h>

#include "lab/screen/mouse.h"
#include "lab/screen/window_list.h"
#include "shared/file_names.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/windows/installation.h"

namespace {

constexpr char kMainForm[] = "frmTVWinService";
constexpr char kMenu[] = "#32768";

POINT IconPlace() {
  return lab::MiddleOf(lab::TrayIcons().front().place);
}

bool MenuIsShown() {
  const HWND menu = FindWindowA(kMenu, nullptr);
  return menu && IsWindowVisible(menu);
}

POINT LastMenuItem() {
  RECT menu = {};
  GetWindowRect(FindWindowA(kMenu, nullptr), &menu);
  return {menu.left + 30, menu.bottom - 10};
}

// A job has just ended with this state of the engine, and nobody has looked yet.
void EndJob(Installation& installation, std::string_view engine_state) {
  installation.SetStatus(status::kRetValue, "402");
  installation.SetStatus(status::kDllStatus, engine_state);
}

TEST(Executable, AddsOneIconWithTheNormalPicture) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  EXPECT_EQ("tvlog.ico", installation.Picture());
  EXPECT_EQ("No backup has been scheduled.", installation.Tip());
}

TEST(Executable, ShowsAnEmptyTipWithNobodyLoggedIn) {
  Installation installation;
  ASSERT_TRUE(installation.StartAgent());
  EXPECT_EQ("tvlog.ico", installation.Picture());
  EXPECT_EQ("", installation.Tip());
}

TEST(Executable, HasAHiddenTopLevelMainForm) {
  Installation installation;
  ASSERT_TRUE(installation.StartAgent());
  const HWND form = FindWindowA(kMainForm, "Sorvane Log Viewer");
  ASSERT_NE(nullptr, form);
  EXPECT_EQ("SorvaneETray.exe", lab::ProgramOf(form));
  EXPECT_TRUE(WaitUntil([&] { return !IsWindowVisible(form); }));
}

TEST(Executable, EndsSilentlyWithoutConfiguration) {
  Installation installation;
  installation.machine().files.Remove(
      installation.places().InInstallFolder(shared::files::kConfigurationIni));
  const HANDLE agent = installation.Start("SorvaneETray.exe");
  ASSERT_EQ(WAIT_OBJECT_0, WaitForSingleObject(agent, 30'000));
  EXPECT_EQ("none", installation.Picture());
  EXPECT_FALSE(
      installation.machine().files.FolderExists(installation.places().InInstallFolder("SorvaneE")));
}

TEST(Executable, ASecondStartEndsWithoutASecondIcon) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  const HANDLE second = installation.Start("SorvaneETray.exe");
  ASSERT_EQ(WAIT_OBJECT_0, WaitForSingleObject(second, 30'000));
  EXPECT_TRUE(installation.AgentRuns());
  EXPECT_EQ("tvlog.ico", installation.Picture());
}

TEST(Executable, AcknowledgesTheStartOfAJobAndBlinks) {
  Installation installation;
  installation.LogIn();
  installation.PlanJobDueNow();
  installation.machine().profile_files.WriteText(installation.places().UserNameIni(), "Registry",
                                                 "Tray", "3");  // no background process
  ASSERT_TRUE(installation.StartAgent());
  installation.machine().files.Replace(installation.InUserFolder(shared::files::kScheduleInfo), "");
  installation.SetStatus(status::kDllStatus, "1");
  EXPECT_TRUE(WaitUntil([&] { return installation.Status(status::kDllStatus) == "0"; }));
  EXPECT_EQ("1", installation.Status(status::kStatus));
  EXPECT_EQ("0\r\n",
            installation.machine()
                .files.Read(installation.places().InInstallFolder(shared::files::kVssStatus))
                .value_or(""));
  EXPECT_TRUE(installation.WaitForPicture("tvlogyellow.ico"));
  EXPECT_TRUE(installation.WaitForPicture("tvlog.ico"));
  EXPECT_TRUE(installation.WaitForPicture("tvlogyellow.ico"));
}

TEST(Executable, StaysRedUntilADoubleClickSeesIt) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  EndJob(installation, "3");
  ASSERT_TRUE(installation.WaitForPicture("tvlogred.ico"));
  lab::DoubleClickMouse(IconPlace());
  EXPECT_TRUE(WaitUntil([&] { return installation.Status(status::kDllStatus) == "0"; }));
  EXPECT_TRUE(installation.WaitForPicture("tvlog.ico"));
  EXPECT_TRUE(WaitUntil([&] { return installation.IsRunning("SorvaneEClassic.exe"); }));
}

TEST(Executable, PlaysAScheduledBackupWithTheOtherPrograms) {
  Installation installation;
  installation.LogIn();
  installation.PlanJobDueNow();
  const std::string script = installation.places().InInstallFolder("LabEngine.ini");
  installation.machine().profile_files.WriteText(script, "Job", "Files", "4");
  ASSERT_TRUE(installation.StartAgent());
  EXPECT_TRUE(WaitUntil([&] { return installation.IsRunning("SorvaneEBackground.exe"); }));
  EXPECT_TRUE(installation.WaitForPicture("tvlogyellow.ico"));
  EXPECT_TRUE(installation.WaitForPicture("tvloggreen.ico"));
  EXPECT_TRUE(WaitUntil([&] { return installation.Status(status::kDllStatus) == "4"; }));
  EXPECT_EQ("0", installation.Status(status::kStatusWindow));
}

TEST(Executable, ANewShellGetsExactlyOneIconWithTheOldTip) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  const std::string tip = installation.Tip();
  lab::RenewShell(FindWindowA(kMainForm, nullptr));
  EXPECT_TRUE(installation.WaitForPicture("tvlog.ico"));
  EXPECT_EQ(tip, installation.Tip());
}

TEST(Executable, RenewsTheTipWhenTheMouseMovesOverTheIcon) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  const std::string progress = installation.InUserFolder(status::kProgressFile);
  auto& files = installation.machine().profile_files;
  files.WriteText(progress, status::kBackupProgressSection, status::kBackupInProgress, "1");
  files.WriteText(progress, status::kBackupProgressSection, status::kFileCount, "17");
  files.WriteText(progress, status::kProgWndSection, status::kProgWndJob, "2");
  EXPECT_TRUE(WaitUntil([&] {
    lab::MoveMouse({100, 100});
    lab::MoveMouse(IconPlace());
    Sleep(200);
    return installation.Tip().ends_with("Backed up files: 17");
  }));
}

TEST(Executable, ARightClickPopsTheMenuUpAndEscapeClosesIt) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  lab::ClickMouse(IconPlace(), lab::MouseButton::kRight);
  EXPECT_TRUE(WaitUntil(MenuIsShown));
  EXPECT_TRUE(WaitUntil([] {
    lab::PressKey(VK_ESCAPE);
    return !MenuIsShown();
  }));
  EXPECT_TRUE(installation.AgentRuns());
}

TEST(Executable, TheLastMenuItemTakesTheIconOutAndEndsTheAgent) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  lab::ClickMouse(IconPlace(), lab::MouseButton::kRight);
  ASSERT_TRUE(WaitUntil(MenuIsShown));
  // A menu takes no click before it has seen the mouse move.
  ASSERT_TRUE(WaitUntil([&] {
    if (MenuIsShown()) lab::MoveMouse(LastMenuItem());
    Sleep(200);
    if (MenuIsShown()) lab::ClickMouse(LastMenuItem());
    return WaitForSingleObject(installation.agent(), 500) == WAIT_OBJECT_0;
  }));
  DWORD code = 1;
  GetExitCodeProcess(installation.agent(), &code);
  EXPECT_EQ(0u, code);
  EXPECT_TRUE(installation.WaitForPicture("none"));
}

TEST(Executable, EndOfSessionEndsTheClientOfAnInteractiveJob) {
  Installation installation;
  installation.LogIn();
  ASSERT_TRUE(installation.StartAgent());
  installation.Start("SorvaneEClsClient.exe", "backup");
  ASSERT_TRUE(WaitUntil([&] { return installation.IsRunning("SorvaneEClsClient.exe"); }));
  PostMessageA(FindWindowA(kMainForm, nullptr), WM_ENDSESSION, FALSE, 0);
  EXPECT_TRUE(WaitUntil([&] { return !installation.IsRunning("SorvaneEClsClient.exe"); }));
}

// One kind of damage, done to every file that other programs share with the agent.
class DamagedFiles : public testing::TestWithParam<std::string_view> {};

std::string DamageText(std::string_view kind) {
  if (kind == "Random") {
    std::string bytes;
    std::uint32_t state = 1;
    for (int i = 0; i < 20'000; ++i) {
      state = state * 1664525u + 1013904223u;
      bytes += static_cast<char>(state >> 24);
    }
    return bytes;
  }
  if (kind == "Huge") return std::string(50'000'000, 'x');
  return "[BackupSta";  // cut in the middle; "Empty" and "Folder" need no text
}

TEST_P(DamagedFiles, LeaveTheAgentTicking) {
  Installation installation;
  installation.LogIn();
  for (std::string_view name : {shared::files::kBackupProgressIni, shared::files::kScheduleData,
                                shared::files::kScheduleInfo, shared::files::kScheduleStatus}) {
    const std::string path = installation.InUserFolder(name);
    if (GetParam() == "Folder") {
      installation.machine().files.MakeFolder(path);
    } else {
      installation.machine().files.Replace(path,
                                           GetParam() == "Empty" ? "" : DamageText(GetParam()));
    }
  }
  ASSERT_TRUE(installation.StartAgent());
  // A tick acknowledges the end of a job, whatever the other files hold.
  installation.SetStatus(status::kDllStatus, "2");
  EXPECT_TRUE(WaitUntil([&] { return installation.Status(status::kDllStatus) == "0"; }));
  EXPECT_TRUE(installation.AgentRuns());
}

INSTANTIATE_TEST_SUITE_P(EachKind, DamagedFiles,
                         testing::Values("Empty", "Cut", "Random", "Huge", "Folder"),
                         [](const auto& kind) { return std::string(kind.param); });

}  // namespace
