#include "shared/daily_sync.h"

#include "tests/shared/installed_product.h"
#include "tests/shared/scripted_engine.h"

namespace shared {
namespace {

constexpr std::string_view kUserType = " 38";
constexpr std::string_view kSync = " 20";

class DailySyncTest : public InstalledProduct {
 protected:
  void PutNext(std::string_view day, std::string_view month, std::string_view year) {
    machine_.files().PutIni(
        kAnnasProfile, {{"Tolvex", "TID", day}, {"Tolvex", "TIM", month}, {"Tolvex", "TIY", year}});
  }
  std::string Next() {
    return Ini(kAnnasProfile, "Tolvex", "TID") + "/" + Ini(kAnnasProfile, "Tolvex", "TIM") + "/" +
           Ini(kAnnasProfile, "Tolvex", "TIY");
  }
  void Sync() { RunDailySync(platform(), state_); }

  ScriptedEngine engine_{machine_, kAnnasProfile};
};

TEST_F(DailySyncTest, DoesNothingWithNobodyLoggedIn) {
  machine_.files().PutIni(kUserNameIniPath, sections::kRegistry, keys::kDefaultUserName, "");
  Sync();
  EXPECT_EQ(Next(), "//");
  EXPECT_TRUE(engine_.runs().empty());
}

TEST_F(DailySyncTest, OnlyStoresTomorrowTheFirstTime) {
  machine_.SetClock({2024, 12, 31, 23, 0, 0});
  Sync();
  EXPECT_EQ(Next(), "1/1/2025");
  EXPECT_EQ(TraceOfAnna(), "12-31-2024 23:00:00  [INFORMATION] Next DB Date is set \r\n");
  EXPECT_TRUE(engine_.runs().empty());
}

TEST_F(DailySyncTest, ComesWhenTheStoredDayHasCome) {
  const std::tuple<std::string_view, std::string_view, std::string_view, bool> cases[] = {
      {"1", "3", "2024", true},  {"29", "2", "2024", true}, {"31", "12", "2023", true},
      {"2", "3", "2024", false}, {"1", "4", "2024", false}, {"1", "1", "2025", false},
      {"1", "", "", true},       {"2", "", "", false},      {"x", "3", "2024", true},
      {"1", "3", "99999", true}, {"15", "x", "2024", true},
  };
  for (const auto& [day, month, year, comes] : cases) {
    ScriptedEngine engine(machine_, kAnnasProfile);
    engine.Reply(kUserType, "402");
    PutNext(day, month, year);
    Sync();
    EXPECT_EQ(engine.CountRuns(kSync), comes ? 1u : 0u) << day << '/' << month << '/' << year;
    if (comes) {
      EXPECT_EQ(Next(), "2/3/2024");
    }
  }
}

TEST_F(DailySyncTest, RunsOnceADay) {
  engine_.Reply(kUserType, "402");
  PutNext("1", "3", "2024");
  for (int tick = 0; tick < 5; ++tick) Sync();
  EXPECT_EQ(engine_.CountRuns(kSync), 1u);
  machine_.Jump(24 * 3600 * 1000);
  for (int tick = 0; tick < 5; ++tick) Sync();
  EXPECT_EQ(engine_.CountRuns(kSync), 2u);
}

TEST_F(DailySyncTest, IsNotStartedTwiceByATickInsideItsOwnWait) {
  engine_.Reply(kUserType, {.ret_value = "402", .runs_for = 60'000});
  PutNext("1", "3", "2024");
  platform().events.StartTimer(20'000, [this] { Sync(); });
  Sync();
  EXPECT_EQ(engine_.CountRuns(kUserType), 1u);
  EXPECT_EQ(engine_.CountRuns(kSync), 1u);
}

TEST_F(DailySyncTest, AsksForTheUserTypeThenStartsTheSyncWithoutWaiting) {
  engine_.Reply(kUserType, "402");
  engine_.Reply(kSync, {.ret_value = "1", .runs_for = 0});
  PutNext("1", "3", "2024");
  Sync();
  EXPECT_EQ(TraceOfAnna(),
            "03-01-2024 10:00:00  [INFORMATION]  Calling client(38) to check the user type\r\n"
            "03-01-2024 10:00:01  [INFORMATION] apiremoteretval for CMD LINE arg 40 : 402\r\n"
            "03-01-2024 10:00:01  [INFORMATION]  Calling client(20) for the autoSync\r\n");
  EXPECT_TRUE(machine_.processes().IsRunning("SorvaneEClsClient.exe"));
}

TEST_F(DailySyncTest, WaitsAMomentBetweenTheUserTypeAndTheSync) {
  std::uint64_t told = 0;
  engine_.Reply(kUserType, {.ret_value = "402", .also = [&] { told = machine_.now(); }});
  PutNext("1", "3", "2024");
  Sync();
  EXPECT_EQ(machine_.now() - told, 200u);
}

TEST_F(DailySyncTest, StoresTheNextDayBeforeItAsksForTheUserType) {
  std::string next;
  engine_.Reply(kUserType, {.ret_value = "402", .also = [&] { next = Next(); }});
  PutNext("1", "3", "2024");
  Sync();
  EXPECT_EQ(next, "2/3/2024");
}

TEST_F(DailySyncTest, StartsTheSyncAlsoWhenTheUserTypeStaysUnknown) {
  engine_.Reply(kUserType, "-416");
  PutNext("1", "3", "2024");
  Sync();
  EXPECT_EQ(engine_.CountRuns(kUserType), 10u);
  EXPECT_EQ(engine_.CountRuns(kSync), 1u);
}

TEST_F(DailySyncTest, IsLateByAsLongAsTheClockWasSetBack) {
  engine_.Reply(kUserType, "402");
  PutNext("1", "3", "2024");
  machine_.SetClock({2024, 2, 28, 10, 0, 0});
  Sync();
  EXPECT_EQ(engine_.CountRuns(kSync), 0u);
  machine_.SetClock({2024, 3, 1, 0, 0, 0});
  Sync();
  EXPECT_EQ(engine_.CountRuns(kSync), 1u);
}

class UserTypeTest : public DailySyncTest {
 protected:
  void Check() { CheckUserType(platform(), state_); }
  std::vector<std::size_t> FallbacksBeforeEachRun() {
    std::vector<std::size_t> before;
    std::size_t so_far = 0;
    for (const auto& entry : machine_.journal().entries()) {
      if (entry.text.find("IPAddres=") != std::string::npos) ++so_far;
      if (entry.category == "shell") before.push_back(so_far);
    }
    return before;
  }
  std::string ShowWelcome() { return Ini(kUserNameIniPath, "Tolvex", "ShowWelcome"); }
};

TEST_F(UserTypeTest, AsksForTheWelcomeWindowOnSuccess) {
  engine_.Reply(kUserType, "402");
  Check();
  EXPECT_EQ(ShowWelcome(), "1");
  EXPECT_EQ(engine_.CountRuns(kUserType), 1u);
}

TEST_F(UserTypeTest, StopsWithoutTheWelcomeWindowAtAnyOtherPositiveResult) {
  engine_.Reply(kUserType, "1");
  Check();
  EXPECT_EQ(ShowWelcome(), "");
  EXPECT_EQ(engine_.CountRuns(kUserType), 1u);
}

TEST_F(UserTypeTest, FallsBackToTheSecondaryServerEveryFifthAttempt) {
  engine_.Reply(kUserType, "-416");
  Check();
  EXPECT_EQ(engine_.CountRuns(kUserType), 10u);
  EXPECT_EQ(machine_.journal().Count("profile", "IPAddres=192.0.2.20"), 2u);
  EXPECT_EQ(machine_.journal().Count("profile", "OutPort=11905"), 2u);
  EXPECT_EQ(FallbacksBeforeEachRun(), (std::vector<std::size_t>{0, 0, 0, 0, 0, 1, 1, 1, 1, 1}));
  EXPECT_EQ(state_.ServerAddress, "192.0.2.20");
  EXPECT_TRUE(TraceOfAnna().ends_with("apiremoteretval for CMD LINE arg 40 : -416\r\n"));
}

TEST_F(UserTypeTest, TriesTenTimesForAClientThatWritesNoResult) {
  engine_.Reply(kUserType, EngineReply{});
  Check();
  EXPECT_EQ(engine_.CountRuns(kUserType), 10u);
  EXPECT_TRUE(TraceOfAnna().ends_with("apiremoteretval for CMD LINE arg 40 : 0\r\n"));
}

TEST_F(UserTypeTest, TakesAZeroForAFailureAndAHugeNumberForAnAnswer) {
  engine_.Reply(kUserType, "0");
  engine_.Reply(kUserType, "123456789012345678901234567890");
  Check();
  EXPECT_EQ(engine_.CountRuns(kUserType), 2u);
  EXPECT_TRUE(TraceOfAnna().ends_with("1.23456789012346e+29\r\n"));
}

TEST_F(UserTypeTest, StaysAliveWithoutAClientUntilTheProgramEnds) {
  state_.ClientProgram = "Missing.exe";
  int ticks = 0;
  platform().events.StartTimer(3000, [&] { ++ticks; });
  machine_.AtAgent(30'000, [this] { platform().processes.ExitSelf(0); });
  Check();
  EXPECT_EQ(ticks, 9);
  EXPECT_TRUE(machine_.exited());
}

}  // namespace
}  // namespace shared
