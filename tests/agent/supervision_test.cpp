#include "agent/supervision.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "shared/keys.h"
#include "tests/agent/effects.h"
#include "tests/agent/installed_agent.h"

namespace agent {
namespace {

using platform::ServiceState;
using platform::SystemFamily;
using ::testing::Contains;
using testing::Effects;
using ::testing::ElementsAre;
using ::testing::HasSubstr;
using testing::InstalledAgent;
using ::testing::IsEmpty;
using ::testing::Not;
namespace keys = shared::keys;

constexpr platform::SystemVersion kXp = {SystemFamily::kNt, 5, 1};
constexpr platform::SystemVersion kSeven = {SystemFamily::kNt, 6, 1};
constexpr platform::SystemVersion kTen = {SystemFamily::kNt, 10, 0};

class SupervisionTest : public ::testing::Test {
 protected:
  void Start(const platform::SystemVersion& version = kTen) {
    agent_.machine.processes().SetVersion(version);
    for (const char* word : {"Start", "Stop"}) {
      agent_.machine.files().Put(agent_.Path(std::string(word) + "SorvaneEService.bat"), "");
    }
    agent_.machine.files().Put(agent_.Path("SorvaneEBackground.exe"), "");
    agent_.machine.files().Put(agent_.Path("SorvaneELaunchDrive.exe"), "");
    ASSERT_TRUE(agent_.Start());
    agent_.StopTimers();
    agent_.state().ServiceStartTries = 0;
    agent_.machine.journal().Clear();
  }
  void SetService(ServiceState state) { agent_.machine.services().Set("SorvaneE Service", state); }
  Supervision Make() { return Supervision(agent_.machine.platform(), agent_.state()); }
  void EndBackground() {
    agent_.machine.KillProcess("SorvaneEBackground.exe");
    agent_.machine.journal().Clear();
  }

  InstalledAgent agent_;
};

struct ServiceRow {
  ServiceState state;
  const char* text;  // null: nothing is done
  bool stop_first;
};

TEST_F(SupervisionTest, ActsOnTheServiceByItsState) {
  constexpr ServiceRow kRows[] = {
      {ServiceState::kUnknown, nullptr, false},
      {ServiceState::kStopped, "SorvaneE Service is stopped.So starting the service.", false},
      {ServiceState::kStartPending, "SorvaneE Service is start pending.So starting the service.",
       false},
      {ServiceState::kStopPending, "SorvaneE Service is stop pending.So starting the service.",
       true},
      {ServiceState::kRunning, nullptr, false},
      {ServiceState::kContinuePending, "SorvaneE Service continue pending.So starting the service.",
       false},
      {ServiceState::kPausePending, "SorvaneE Service is pause pending.So starting the service.",
       false},
      {ServiceState::kPaused, "SorvaneE Service is pasued.So starting the service.", true},
  };
  Start();
  for (const ServiceRow& row : kRows) {
    SetService(row.state);
    agent_.machine.journal().Clear();
    const auto before = agent_.machine.now();
    const int tries = agent_.state().ServiceStartTries;
    Make().EnsureService();
    std::vector<std::string> expected;
    if (row.text) {
      expected.push_back("trace " + std::string(row.text));
      if (row.stop_first) expected.push_back("open C:\\Sorvane\\StopSorvaneEService.bat");
      expected.push_back("open C:\\Sorvane\\StartSorvaneEService.bat");
    }
    EXPECT_EQ(Effects(agent_), expected);
    EXPECT_EQ(agent_.machine.now() - before, row.stop_first ? 10000u : 0u);
    EXPECT_EQ(agent_.state().ServiceStartTries - tries, row.text ? 1 : 0);
  }
}

TEST_F(SupervisionTest, WaitsTenSecondsBetweenStopAndStart) {
  Start();
  for (const ServiceState state : {ServiceState::kStopPending, ServiceState::kPaused}) {
    SetService(state);
    agent_.machine.journal().Clear();
    Make().EnsureService();
    const auto times = [this](std::string_view word) {
      std::vector<std::uint64_t> at;
      for (const auto& entry : agent_.machine.journal().entries()) {
        if (entry.category == "shell" && entry.text.find(word) != std::string::npos) {
          at.push_back(entry.time);
        }
      }
      return at;
    };
    ASSERT_EQ(times("\\StopSorvaneEService.bat").size(), 1u);
    ASSERT_EQ(times("\\StartSorvaneEService.bat").size(), 1u);
    EXPECT_EQ(times("\\StartSorvaneEService.bat")[0] - times("\\StopSorvaneEService.bat")[0],
              10000u);
  }
}

TEST_F(SupervisionTest, ARefusedElevatedStartIsTracedAndNotAskedForAgain) {
  Start(kSeven);
  SetService(ServiceState::kStopped);
  agent_.machine.shell().RefuseElevation(true);
  Make().EnsureService();
  EXPECT_THAT(Effects(agent_), Contains("trace Launch Handle : -1"));
  EXPECT_THAT(Effects(agent_), Contains("trace Error 1 : 1223  Cancelled."));
  EXPECT_EQ(agent_.state().ServiceStartTries, 1);
  agent_.machine.journal().Clear();
  Make().EnsureService();
  EXPECT_THAT(Effects(agent_), Not(Contains(HasSubstr("Launch"))));
  EXPECT_EQ(agent_.state().ServiceStartTries, 2);
}

TEST_F(SupervisionTest, OnVistaThePartnerHasNoLauncherToStart) {
  agent_.MakePartner();
  agent_.machine.files().Put(agent_.Path("StartTolvexProfessionalService.bat"), "");
  Start(kSeven);
  agent_.machine.services().Set("TVPService", ServiceState::kStopped);
  Make().EnsureService();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("trace SorvaneE Service is stopped.So starting the service.",
                          "open C:\\Sorvane\\StartTolvexProfessionalService.bat",
                          "trace Launch Handle : -1", HasSubstr("trace Error 1 : 0  ")));
}

TEST_F(SupervisionTest, OnVistaAsksOnceForTheElevatedStart) {
  Start(kSeven);
  SetService(ServiceState::kStopped);
  Make().EnsureService();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("trace SorvaneE Service is stopped.So starting the service.",
                          "open C:\\Sorvane\\StartSorvaneEService.bat",
                          "start C:\\Sorvane\\SorvaneELaunchDrive.exe stratservice",
                          HasSubstr("trace Launch Handle : "), HasSubstr("trace Error 1 : 0  ")));
  agent_.machine.journal().Clear();
  Make().EnsureService();
  EXPECT_THAT(Effects(agent_), Not(Contains(HasSubstr("LaunchDrive"))));
}

TEST_F(SupervisionTest, AsksTheServiceManagerForReadingOnlyFromVistaOn) {
  agent_.machine.services().DenyAll(true);
  Start(kSeven);
  EXPECT_EQ(Make().GetServiceState(), ServiceState::kRunning);
  agent_.machine.processes().SetVersion(kTen);
  EXPECT_EQ(Make().GetServiceState(), ServiceState::kUnknown);
}

TEST_F(SupervisionTest, ThePartnersServiceHasItsOwnName) {
  agent_.MakePartner();
  agent_.machine.services().Set("TVPService", ServiceState::kPaused);
  Start();
  EXPECT_EQ(Make().GetServiceState(), ServiceState::kPaused);
}

TEST_F(SupervisionTest, StartsTheBackgroundProcessThatIsGone) {
  Start(kSeven);
  EndBackground();
  Make().EnsureBackground();
  EXPECT_THAT(Effects(agent_),
              ElementsAre("trace strStdrd2 = 1", "trace strStarted2 = 0", "write Tolvex.Standard=1",
                          "open C:\\Sorvane\\SorvaneEBackground.exe",
                          "trace SorvaneEBackground.exe  is launched"));
}

TEST_F(SupervisionTest, DoesNothingWhileTheBackgroundProcessRuns) {
  Start();
  Make().EnsureBackground();
  EXPECT_THAT(Effects(agent_), IsEmpty());
}

TEST_F(SupervisionTest, SeesABackgroundProcessThatOnlyOneOfTheWalksSees) {
  Start();
  EndBackground();
  for (int i = 0; i < 1100; ++i) agent_.machine.processes().Start("C:\\Other\\other.exe");
  agent_.machine.processes().SetVersion({SystemFamily::kWindows9x, 4, 90});
  agent_.machine.processes().Start(agent_.Path("SorvaneEBackground.exe"));
  agent_.machine.journal().Clear();
  Make().EnsureBackground();
  EXPECT_THAT(Effects(agent_), IsEmpty());
}

struct TurnRow {
  const char* standard;
  const char* started;
  const char* traced;  // null: it is not launched
};

TEST_F(SupervisionTest, LaunchesOnlyWhenTheEngineHasNoBackupInHand) {
  constexpr TurnRow kRows[] = {{"1", "0", "SorvaneEBackground.exe  is launched"},
                               {"0", "1", "SorvaneEBackground.exe is launched"},
                               {"1", "1", nullptr},
                               {"0", "0", nullptr},
                               {"", "", nullptr},
                               {"1", "", nullptr},
                               {"", "1", nullptr}};
  Start(kSeven);
  EndBackground();
  for (const TurnRow& row : kRows) {
    agent_.SetShared(keys::kStandard, row.standard);
    agent_.SetShared(keys::kStarted, row.started);
    agent_.machine.KillProcess("SorvaneEBackground.exe");
    agent_.machine.journal().Clear();
    Make().EnsureBackground();
    EXPECT_EQ(agent_.machine.journal().Count("shell", "SorvaneEBackground.exe"),
              row.traced ? 1u : 0u)
        << row.standard << " " << row.started;
    EXPECT_EQ(agent_.Shared(keys::kStandard), row.traced ? "1" : row.standard);
    if (row.traced) {
      EXPECT_THAT(Effects(agent_), Contains("trace " + std::string(row.traced)));
    }
  }
}

TEST_F(SupervisionTest, TrayThreeStopsAllLaunching) {
  Start();
  EndBackground();
  for (const char* tray : {"3", "1", "x"}) {
    agent_.SetRegistry(keys::kTray, tray);
    Make().EnsureBackground();
  }
  EXPECT_THAT(Effects(agent_), IsEmpty());
  agent_.SetRegistry(keys::kTray, "");
  Make().EnsureBackground();
  EXPECT_THAT(Effects(agent_), Contains("open C:\\Sorvane\\SorvaneEBackground.exe"));
}

TEST_F(SupervisionTest, LooksAtTheServiceFirstExceptOnVista) {
  for (const auto& version : {kXp, kSeven, kTen}) {
    InstalledAgent agent;
    agent.machine.processes().SetVersion(version);
    ASSERT_TRUE(agent.Start());
    agent.StopTimers();
    agent.machine.KillProcess("SorvaneEBackground.exe");
    agent.machine.services().Set("SorvaneE Service", ServiceState::kStopped);
    agent.machine.journal().Clear();
    Supervision(agent.machine.platform(), agent.state()).EnsureBackground();
    EXPECT_EQ(agent.machine.journal().Count("shell", "StartSorvaneEService.bat"),
              version.major == 6 ? 0u : 1u);
  }
}

TEST_F(SupervisionTest, DoesNotAskForTheServiceAfterTwoTries) {
  Start();
  EndBackground();
  SetService(ServiceState::kStopped);
  for (int i = 0; i < 5; ++i) {
    Make().EnsureBackground();
    agent_.machine.KillProcess("SorvaneEBackground.exe");
  }
  EXPECT_EQ(agent_.machine.journal().Count("shell", "StartSorvaneEService.bat"), 2u);
}

}  // namespace
}  // namespace agent
