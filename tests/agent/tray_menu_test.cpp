#include "agent/tray_menu.h"

#include <gtest/gtest.h>

#include <string>

#include "agent/menu_items.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;

class TrayMenuTest : public ::testing::Test {
 protected:
  void Start() {
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
  }
  forms::MenuItem& Item(std::string_view name) { return agent_.Item(name); }
  const std::string& Caption(std::string_view name) { return Item(name).Caption(); }
  void SetTransfer(bool in_progress) {
    agent_.SetProgress(status::kBackupProgressSection, status::kBackupInProgress,
                       in_progress ? "1" : "0");
  }
  void RunMainProgram() { agent_.machine.processes().Start(agent_.Path("SorvaneEClassic.exe")); }
  const forms::MenuItem* Default() { return agent_.agent().form().menu().Popup().Default(); }

  InstalledAgent agent_;
};

TEST_F(TrayMenuTest, HasItsItemsInOrderWithTheirDesign) {
  struct Row {
    std::string_view name, caption;
    bool visible, enabled;
  };
  constexpr Row kRows[] = {
      {"MnuQuotaExceeded", "Quota Exceeded. Upgrade Now!", false, true},
      {"mnuStatus", "Status", true, true},
      {"BLLine", "-", false, true},
      {"MnuOptions", "&SorvaneE Classic - Schedule Backup", true, true},
      {"MnuOpenDrive", "&SorvaneE Drive", true, true},
      {"blankline10", "-", true, true},
      {"MnuViewLog", "&Activity Log", true, true},
      {"mnuSession", "&Session Log", false, false},
      {"blaknline11", "-", true, true},
      {"WebPlugin", "&Web Management", true, true},
      {"menuDesktop", "&Enable Desktop Search", false, false},
      {"mnuCDP", "", true, true},
      {"mnuStop", "&Stop Scheduled Backup", true, true},
      {"MnuDisableAutobkup", "&Disable Automatic Backup", true, true},
      {"mnuschinfo", "&Manage all the Scheduled Jobs", true, true},
      {"mnuBackupNowSVE", "&Backup Now", true, true},
      {"blankline3", "-", true, true},
      {"mnuVersionUpdate", "Check for Updates", true, true},
      {"blankline2", "-", true, true},
      {"MnuAbout", "&About", false, true},
      {"MnuSendReport", "&Send Error Report", true, true},
      {"MnuHelp", "&Help", true, true},
      {"blnklin3", "-", false, true},
      {"MnuLogin", "&Logout", false, true},
      {"blnklin4", "-", true, true},
      {"MnuExit", "&Exit", true, true},
      {"mnuStatusPrompt", "Status Prompt", false, true},
      {"MnuSessionlog", "&View Session Log", false, true},
  };
  shared::AgentState state;
  shared::Texts texts(agent_.machine.platform(), state);
  SharedTexts shared_texts;
  TrayMenu menu(agent_.machine.platform(), state, texts, shared_texts);
  EXPECT_EQ(menu.Popup().Name(), "MnuTrayMenu");
  ASSERT_EQ(menu.Popup().Items().size(), std::size(kRows));
  for (std::size_t i = 0; i < std::size(kRows); ++i) {
    const forms::MenuItem& item = menu.Popup().Items()[i];
    EXPECT_EQ(item.Name(), kRows[i].name);
    EXPECT_EQ(item.Caption(), kRows[i].caption) << item.Name();
    EXPECT_EQ(item.Visible(), kRows[i].visible) << item.Name();
    EXPECT_EQ(item.Enabled(), kRows[i].enabled) << item.Name();
  }
}

TEST_F(TrayMenuTest, KeepsTheOlderPopup) {
  Start();
  forms::Menu& menu = agent_.agent().form().menu().OldPopup();
  EXPECT_EQ(menu.Name(), "TrayMenu");
  EXPECT_EQ(menu.Item("MnuOpen").Caption(), "&Recent log");
  EXPECT_TRUE(menu.Item("MnuOpen").Enabled());
  menu.Item("mnuShutdown").on_click();
  EXPECT_TRUE(agent_.machine.exited());
}

TEST_F(TrayMenuTest, LocalisesTheCaptionsWithTheirNumbers) {
  struct Row {
    std::string_view name;
    std::uint32_t text;
    std::string_view literal;
  };
  constexpr Row kRows[] = {{"mnuCDP", 972, "Continuous Backup"},
                           {"MnuViewLog", 409, "Activity Log"},
                           {"mnuBackupNowSVE", 421, "Backup Now"},
                           {"MnuSendReport", 451, "Send Error Report"},
                           {"MnuExit", 433, "Exit"},
                           {"mnuStatus", 1440, "Status"},
                           {"WebPlugin", 1442, "Web Management"},
                           {"mnuStop", 1443, "Stop Scheduled Backup"},
                           {"mnuschinfo", 1444, "Manage all the Scheduled Jobs"},
                           {"mnuVersionUpdate", 1445, "Check for Updates"}};
  Start();
  for (const Row& row : kRows) EXPECT_EQ(Caption(row.name), row.literal);
  for (const Row& row : kRows) {
    agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), row.text,
                                         "text " + std::to_string(row.text));
  }
  agent_.agent().form().menu().LocaliseMenu();
  for (const Row& row : kRows) EXPECT_EQ(Caption(row.name), "text " + std::to_string(row.text));
  EXPECT_EQ(Caption("MnuHelp"), "Help");
}

TEST_F(TrayMenuTest, ShowsTheMenuOfALoggedInUser) {
  Start();
  for (const std::uint32_t word : {1u, 2u}) {
    agent_.LogIn(word);
    agent_.RightClick();
    EXPECT_TRUE(Item("MnuLogin").Enabled());
    EXPECT_TRUE(Item("MnuOptions").Enabled());
    EXPECT_EQ(Caption("MnuOptions"), "Sorvane - Schedule Backup");
    EXPECT_EQ(Caption("MnuOpenDrive"), "Open Sorvane Explorer");
    EXPECT_EQ(Default(), &Item("MnuOptions"));
    EXPECT_EQ(agent_.Traced("Connection param = " + std::to_string(word)), 1u);
  }
}

TEST_F(TrayMenuTest, PutsTheProductsNameIntoTheLibrarysDriveCaption) {
  agent_.machine.libraries().PutString(agent_.Path("TVToolTips.dll"), 1464, "Abrir Sorvane!");
  Start();
  agent_.state().ProductName = "Acme";
  agent_.RightClick();
  EXPECT_EQ(Caption("MnuOpenDrive"), "Abrir Acme!");
}

TEST_F(TrayMenuTest, ShowsTheLoginWordBeforeLogin) {
  Start();
  agent_.LogOut();
  agent_.RightClick();
  EXPECT_EQ(Caption("MnuOptions"), "Login - Sorvane Schedule Backup");
  EXPECT_TRUE(Item("MnuOptions").Enabled());
  EXPECT_EQ(Caption("MnuOpenDrive"), "Login - Sorvane Explorer");
  EXPECT_FALSE(Item("MnuLogin").Enabled());
  EXPECT_FALSE(Item("mnuStatus").Enabled());
  EXPECT_EQ(Default(), &Item("mnuStatus"));
}

TEST_F(TrayMenuTest, LeavesOptionsSelectableForNobodyWhileTheMainProgramIsNotRunning) {
  agent_.ForgetUser();
  Start();
  agent_.LogOut();
  agent_.RightClick();
  EXPECT_EQ(Caption("MnuOptions"), "Login - Sorvane Schedule Backup");
  EXPECT_TRUE(Item("MnuOptions").Enabled());
  EXPECT_NE(Default(), &Item("MnuOptions"));
  EXPECT_TRUE(Item("mnuStatus").Enabled());
  RunMainProgram();
  agent_.RightClick();
  EXPECT_FALSE(Item("MnuOptions").Enabled());
}

TEST_F(TrayMenuTest, TakesALoginWordWithoutANameForLoggedOutAndEndsThere) {
  Start();
  agent_.SetShifted(keys::kScheduleDisable, "TRUE");
  agent_.ForgetUser();
  agent_.RightClick();
  EXPECT_EQ(Caption("MnuOptions"), "Login - Sorvane Schedule Backup");
  EXPECT_FALSE(Item("mnuStatus").Enabled());
  EXPECT_FALSE(Item("MnuDisableAutobkup").Checked());
}

TEST_F(TrayMenuTest, NamesThePartnersProductInBothStates) {
  agent_.MakePartner();
  agent_.SetShifted(keys::kAuthenticated, "1");
  Start();
  agent_.LogIn();
  agent_.RightClick();
  EXPECT_EQ(Caption("MnuOptions"), "Acme");
  agent_.LogOut();
  agent_.RightClick();
  EXPECT_EQ(Caption("MnuOptions"), "Login - Acme");
  EXPECT_FALSE(Item("MnuOpenDrive").Visible());
}

TEST_F(TrayMenuTest, DisablesOptionsWhileTheMainProgramRuns) {
  Start();
  RunMainProgram();
  agent_.RightClick();
  EXPECT_FALSE(Item("MnuOptions").Enabled());
}

TEST_F(TrayMenuTest, DuringATransferDisablesBackupNowAndMakesStatusTheDefault) {
  Start();
  SetTransfer(true);
  agent_.RightClick();
  EXPECT_FALSE(Item("mnuBackupNowSVE").Enabled());
  EXPECT_EQ(Default(), &Item("mnuStatus"));
  EXPECT_EQ(Caption("mnuStatus"), "Status");
  agent_.SetStatus(status::kPaused, " 1");
  agent_.RightClick();
  EXPECT_EQ(Caption("mnuStatus"), "Status - Paused");
  SetTransfer(false);
  agent_.RightClick();
  EXPECT_TRUE(Item("mnuBackupNowSVE").Enabled());
  EXPECT_EQ(Caption("mnuStatus"), "Status");
}

TEST_F(TrayMenuTest, DisablesStatusWhileTheEngineShowsItsOwnWindow) {
  struct Row {
    bool transfer;
    std::string_view status, value;
    bool enabled;
  };
  constexpr Row kRows[] = {{true, "1", "65622", false}, {true, "1", "0", true},
                           {true, "1", "-1", true},     {true, "1", "x", true},
                           {true, "0", "65622", true},  {true, "", "65622", true},
                           {false, "1", "65622", true}};
  Start();
  for (const Row& row : kRows) {
    SetTransfer(row.transfer);
    agent_.SetProgress(status::kProgWndSection, status::kProgWndStatus, row.status);
    agent_.SetProgress(status::kProgWndSection, status::kProgWndValue, row.value);
    agent_.RightClick();
    EXPECT_EQ(Item("mnuStatus").Enabled(), row.enabled) << row.status << " " << row.value;
  }
}

TEST_F(TrayMenuTest, ChecksWebManagementOnlyWithoutAnError) {
  struct Row {
    std::string_view on, error;
    bool checked;
  };
  constexpr Row kRows[] = {{"1", "", true},    {"1", "0", true},   {"1", "-1", false},
                           {"1", "-2", false}, {"1", "-3", false}, {"1", "-4", true},
                           {"0", "", false},   {"", "", false}};
  Start();
  for (const Row& row : kRows) {
    agent_.SetProfile(shared::sections::kWeb, keys::kWebPlugin, row.on);
    agent_.SetProfile(shared::sections::kOlwa, keys::kWebPluginError, row.error);
    agent_.RightClick();
    EXPECT_EQ(Item("WebPlugin").Checked(), row.checked) << row.on << " " << row.error;
    EXPECT_TRUE(Item("WebPlugin").Enabled());
  }
}

TEST_F(TrayMenuTest, CopiesTheChoiceOfContinuousBackupUnlessItIsStrange) {
  struct Row {
    std::string_view value, shared;
    bool checked;
  };
  constexpr Row kRows[] = {
      {"1", "1", true}, {"0", "0", false}, {"", "old", false}, {"2", "old", false}};
  Start();
  for (const Row& row : kRows) {
    agent_.SetShared(keys::kRealTimeBackup, "old");
    agent_.SetProfile(shared::sections::kTolvex, keys::kRealTimeBackup, row.value);
    agent_.RightClick();
    EXPECT_EQ(Item("mnuCDP").Checked(), row.checked) << row.value;
    EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), row.shared) << row.value;
    EXPECT_TRUE(Item("mnuCDP").Enabled());
  }
}

TEST_F(TrayMenuTest, EnablesStopOnlyWhileAScheduledJobRuns) {
  Start();
  agent_.RightClick();
  EXPECT_FALSE(Item("mnuStop").Enabled());
  agent_.PutUserFile(status::kScheduleInfoFile);
  agent_.SetStatus(status::kStatus, "1");
  agent_.RightClick();
  EXPECT_TRUE(Item("mnuStop").Enabled());
  agent_.SetStatus(status::kStatus, "5");
  agent_.RightClick();
  EXPECT_FALSE(Item("mnuStop").Enabled());
}

TEST_F(TrayMenuTest, ShowsTheQuotaItemToALoggedInUserOnly) {
  Start();
  agent_.RightClick();
  EXPECT_FALSE(Item("MnuQuotaExceeded").Visible());
  agent_.PutUserFile(status::kQuotaExceededFile);
  agent_.LogOut();
  agent_.RightClick();
  EXPECT_FALSE(Item("MnuQuotaExceeded").Visible());
  agent_.LogIn();
  agent_.RightClick();
  EXPECT_TRUE(Item("MnuQuotaExceeded").Visible());
  EXPECT_TRUE(Item("BLLine").Visible());
}

TEST_F(TrayMenuTest, TakesTheQuotaItemOutOnceThereIsRoomAgain) {
  Start();
  agent_.PutUserFile(status::kQuotaExceededFile);
  agent_.RightClick();
  agent_.machine.files().Delete(agent_.UserPath(status::kQuotaExceededFile));
  agent_.RightClick();
  EXPECT_FALSE(Item("MnuQuotaExceeded").Visible());
  EXPECT_FALSE(Item("BLLine").Visible());
}

TEST_F(TrayMenuTest, NeverShowsTheQuotaItemInThePartnerEdition) {
  agent_.MakePartner();
  agent_.SetShifted(keys::kAuthenticated, "1");
  Start();
  agent_.PutUserFile(status::kQuotaExceededFile);
  agent_.RightClick();
  EXPECT_FALSE(Item("MnuQuotaExceeded").Visible());
}

TEST_F(TrayMenuTest, SwitchesTheScheduleOffAndOnWithoutTouchingARecord) {
  Start();
  const std::string record = "0\r\nx\b\by\r\n";
  agent_.PutUserFile(status::kScheduleDataFile, record);
  shared::clsTransfer transfer(agent_.machine.platform(), agent_.state());
  agent_.RightClick();
  Item("MnuDisableAutobkup").on_click();
  EXPECT_TRUE(Item("MnuDisableAutobkup").Checked());
  EXPECT_EQ(transfer.Trf_ReadUserProfile(keys::kScheduleDisable), "TRUE");
  agent_.RightClick();
  EXPECT_TRUE(Item("MnuDisableAutobkup").Checked());
  Item("MnuDisableAutobkup").on_click();
  EXPECT_FALSE(Item("MnuDisableAutobkup").Checked());
  EXPECT_EQ(transfer.Trf_ReadUserProfile(keys::kScheduleDisable), "FALSE");
  EXPECT_EQ(agent_.machine.files().Content(agent_.UserPath(status::kScheduleDataFile)), record);
}

TEST_F(TrayMenuTest, AsksTheMainProgramForABackupAndStartsItOnlyWhenItIsNotThere) {
  Start();
  RunMainProgram();
  agent_.machine.journal().Clear();
  Item("mnuBackupNowSVE").on_click();
  EXPECT_EQ(agent_.Status(status::kBackupNowTray), "1");
  EXPECT_EQ(agent_.machine.journal().Count("shell"), 0u);
  agent_.machine.KillProcess("SorvaneEClassic.exe");
  Item("mnuBackupNowSVE").on_click();
  EXPECT_TRUE(agent_.machine.processes().IsRunning("SorvaneEClassic.exe"));
}

TEST_F(TrayMenuTest, ClosesTheMainProgramsWindowBeforeItStartsItAnew) {
  Start();
  agent_.machine.windows().Add({.class_name = "ThunderForm", .title = "Sorvane Classic"});
  agent_.machine.journal().Clear();
  Item("MnuOptions").on_click();
  EXPECT_EQ(agent_.machine.journal().Excerpt(std::vector<std::string_view>{"window", "shell"}),
            (std::vector<std::string>{"window send Sorvane Classic 16 0 0",
                                      "shell start C:\\Sorvane\\SorvaneEClassic.exe"}));
}

TEST_F(TrayMenuTest, TakesTheIconOutBeforeItExits) {
  Start();
  agent_.machine.journal().Clear();
  agent_.host.ChooseFromMenu("MnuExit");
  agent_.RightClick();
  EXPECT_FALSE(agent_.machine.shell().icon());
  EXPECT_EQ(agent_.machine.exit_code(), 0u);
}

}  // namespace
}  // namespace agent
