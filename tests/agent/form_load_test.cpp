#include <gtest/gtest.h>

#include <iterator>
#include <string>

#include "agent/frm_tv_win_service.h"
#include "shared/keys.h"
#include "status/progress_keys.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using testing::InstalledAgent;
namespace keys = shared::keys;

class FormLoadTest : public ::testing::Test {
 protected:
  void Start() { ASSERT_TRUE(agent_.Start()); }
  std::size_t Journal(std::string_view category, std::string_view part) {
    return agent_.machine.journal().Count(category, part);
  }

  InstalledAgent agent_;
};

TEST_F(FormLoadTest, TriesToInstallAServiceThatIsNotThere) {
  agent_.machine.services().Set("SorvaneE Service", platform::ServiceState::kUnknown);
  agent_.machine.files().Put(agent_.Path("InstallSorvaneEService.bat"), "");
  agent_.machine.files().Put(agent_.Path("StartSorvaneEService.bat"), "");
  Start();
  EXPECT_EQ(Journal("shell", "InstallSorvaneEService.bat"), 1u);
  EXPECT_EQ(Journal("shell", "StartSorvaneEService.bat"), 1u);
  EXPECT_EQ(agent_.Traced("   [ERROR] Service is not installed"), 1u);
  EXPECT_EQ(agent_.Traced("   [INFORMATION] Service installed"), 1u);
  EXPECT_EQ(agent_.Traced("   [ERROR] SorvaneE Service installation failed"), 1u);
}

TEST_F(FormLoadTest, DoesNotComplainOfAServiceThatTheBatchFilesBringUp) {
  agent_.machine.services().Set("SorvaneE Service", platform::ServiceState::kUnknown);
  agent_.machine.At(1500, [&] {
    agent_.machine.services().Set("SorvaneE Service", platform::ServiceState::kRunning);
  });
  Start();
  EXPECT_EQ(agent_.Traced("Service installed"), 1u);
  EXPECT_EQ(agent_.Traced("installation failed"), 0u);
}

TEST_F(FormLoadTest, MovesTheMessageFromItsOtherSpelling) {
  agent_.SetStatus(keys::kStatusMessageAtStart, "4");
  Start();
  EXPECT_EQ(agent_.Status(keys::kStatusMessage), "4");
  EXPECT_EQ(agent_.Status(keys::kStatusMessageAtStart), "0");
}

TEST_F(FormLoadTest, ClearsTheMessageWhenTheOtherSpellingIsEmpty) {
  agent_.SetStatus(keys::kStatusMessage, "2");
  Start();
  EXPECT_EQ(agent_.Status(keys::kStatusMessage), "0");
}

TEST_F(FormLoadTest, InitialisesAnEmptySwitchOfTheSchedule) {
  agent_.SetShifted(keys::kScheduleDisable, "");
  Start();
  EXPECT_FALSE(agent_.Item("MnuDisableAutobkup").Checked());
  EXPECT_EQ(agent_.Item("MnuDisableAutobkup").Caption(), "Disable Automatic Backup");
  shared::clsTransfer transfer(agent_.machine.platform(), agent_.state());
  EXPECT_EQ(transfer.Trf_ReadUserProfile(keys::kScheduleDisable), "FALSE");
}

TEST_F(FormLoadTest, ChecksTheSwitchOfADisabledSchedule) {
  agent_.SetShifted(keys::kScheduleDisable, "TRUE");
  Start();
  EXPECT_TRUE(agent_.Item("MnuDisableAutobkup").Checked());
}

TEST_F(FormLoadTest, ChecksWebManagementByItsSwitch) {
  struct Row {
    std::string_view value;
    bool checked;
  };
  constexpr Row kRows[] = {{"1", true}, {"0", false}, {"", false}, {"2", true}};
  for (const Row& row : kRows) {
    InstalledAgent agent;
    agent.SetProfile(shared::sections::kWeb, keys::kWebPlugin, row.value);
    ASSERT_TRUE(agent.Start());
    EXPECT_EQ(agent.Item("WebPlugin").Checked(), row.checked) << row.value;
  }
}

TEST_F(FormLoadTest, ShiftsTheShareRecordsOnlyAtTheFirstStart) {
  agent_.SetRegistry(keys::kShareCount, "1");
  agent_.SetRegistry("UNC1", "a;b;c;d;e;f");
  Start();
  const std::string once =
      agent_.machine.files().IniValue(agent_.Path("UserName.ini"), "Registry", "UNC1");
  EXPECT_NE(once, "a;b;c;d;e;f");
  ASSERT_TRUE(agent_.StartAgain());
  EXPECT_EQ(agent_.machine.files().IniValue(agent_.Path("UserName.ini"), "Registry", "UNC1"), once);
}

TEST_F(FormLoadTest, CompletesAPasswordThatOnlyItsTwinHolds) {
  agent_.SetProfile(shared::sections::kTolvex, keys::kPlainPassword, "wigvix");  // "secret"
  Start();
  shared::clsTransfer transfer(agent_.machine.platform(), agent_.state());
  EXPECT_EQ(transfer.Trf_ReadUserProfile(keys::kPassword), "secret");
}

TEST_F(FormLoadTest, LeavesAPasswordThatIsThere) {
  agent_.SetShifted(keys::kPassword, "kept");
  agent_.SetProfile(shared::sections::kTolvex, keys::kPlainPassword, "wigvix");
  Start();
  shared::clsTransfer transfer(agent_.machine.platform(), agent_.state());
  EXPECT_EQ(transfer.Trf_ReadUserProfile(keys::kPassword), "kept");
}

TEST_F(FormLoadTest, StartsTheBackgroundProcessOnlyWhileTheLifeStateIsZero) {
  for (const std::string_view tray : {"0", "", "3"}) {
    InstalledAgent agent;
    agent.machine.KillProcess("SorvaneEBackground.exe");
    agent.SetRegistry(keys::kTray, tray);
    ASSERT_TRUE(agent.Start());
    EXPECT_EQ(agent.machine.journal().Count("shell", "SorvaneEBackground.exe"),
              tray == "0" ? 1u : 0u)
        << tray;
  }
}

TEST_F(FormLoadTest, LooksAfterTheServiceAtStartOutsideVistaOnly) {
  struct Row {
    std::uint32_t major, minor;
    std::size_t starts;
  };
  constexpr Row kRows[] = {{5, 1, 1}, {6, 0, 0}, {6, 1, 0}, {6, 2, 1}, {10, 0, 1}};
  for (const Row& row : kRows) {
    InstalledAgent agent;
    agent.machine.processes().SetVersion({platform::SystemFamily::kNt, row.major, row.minor});
    agent.machine.services().Set("SorvaneE Service", platform::ServiceState::kStopped);
    ASSERT_TRUE(agent.Start());
    EXPECT_EQ(agent.machine.journal().Count("shell", "StartSorvaneEService.bat"), row.starts)
        << row.major << "." << row.minor;
  }
}

TEST_F(FormLoadTest, HidesWhatThePartnerEditionDoesNotHave) {
  agent_.MakePartner();
  Start();
  for (const std::string_view name : {"MnuQuotaExceeded", "BLLine", "MnuOpenDrive"}) {
    EXPECT_FALSE(agent_.Item(name).Visible()) << name;
    EXPECT_FALSE(agent_.Item(name).Enabled()) << name;
  }
  EXPECT_EQ(agent_.Item("MnuOptions").Caption(), "Acme");
  EXPECT_EQ(agent_.Picture(), "acme.ico");
  EXPECT_EQ(agent_.agent().form().Caption(), "Acme Log Viewer");
}

TEST_F(FormLoadTest, CaptionsComeFromTheTextLibrary) {
  const std::string library = agent_.Path("TVToolTips.dll");
  agent_.machine.libraries().PutString(library, 433, "Salir");
  agent_.machine.libraries().PutString(library, 1575, "Visor");
  Start();
  EXPECT_EQ(agent_.Item("MnuExit").Caption(), "Salir");
  EXPECT_EQ(agent_.Item("MnuSendReport").Caption(), "Send Error Report");
  EXPECT_EQ(agent_.agent().form().Caption(), "Sorvane Visor");
}

TEST_F(FormLoadTest, NamesTheUsersScheduleFile) {
  Start();
  EXPECT_EQ(agent_.state().ScheduleFilePath, agent_.UserPath("scheduleData.txt"));
}

TEST_F(FormLoadTest, RunsBothTicksAtTheirPeriods) {
  agent_.SetRegistry(keys::kLogOff, "1");
  Start();
  agent_.machine.Run(1);
  agent_.machine.gate().Start();
  agent_.machine.Run(60000);
  // Each fast tick looks at the login word once, each slow one at the account that logs off.
  EXPECT_EQ(agent_.machine.gate().Count("registry.Read"), 20u);
  EXPECT_EQ(agent_.machine.gate().Count("processes.CurrentLoginName"), 3u);
  EXPECT_TRUE(agent_.state().LoadingDone);
}

TEST_F(FormLoadTest, HasTheTimersOfItsDesign) {
  struct Row {
    std::string_view name;
    std::uint32_t interval;
    bool enabled;
  };
  constexpr Row kRows[] = {{"WebMTimer", 100, false},
                           {"CDPTimer", 100, false},
                           {"chkHibernationTimeOut", 1000, false},
                           {"CheckQuotaOut", 60000, true}};
  Start();
  const auto& timers = agent_.agent().form().Timers();
  ASSERT_EQ(timers.size(), std::size(kRows));
  for (std::size_t i = 0; i < timers.size(); ++i) {
    EXPECT_EQ(timers[i]->Name(), kRows[i].name);
    EXPECT_EQ(timers[i]->Interval(), kRows[i].interval);
    EXPECT_EQ(timers[i]->Enabled(), kRows[i].enabled);
  }
}

TEST_F(FormLoadTest, ClosingTheHiddenWindowLeavesTheAgentAlive) {
  Start();
  agent_.agent().form().on_close();
  EXPECT_TRUE(agent_.agent().form().Loaded());
  EXPECT_FALSE(agent_.machine.exited());
  EXPECT_EQ(agent_.Picture(), "tvlog.ico");
}

}  // namespace
}  // namespace agent
