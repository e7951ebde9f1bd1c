#include "shared/engine_bridge.h"

#include <cstdlib>

#include "shared/engine_commands.h"
#include "tests/shared/installed_product.h"
#include "tests/shared/scripted_engine.h"

namespace shared {
namespace {

class EngineBridgeTest : public InstalledProduct {
 protected:
  std::optional<double> ResultOf(std::string_view ret_value) {
    machine_.files().PutIni(kAnnasProfile, sections::kBackupStatus, keys::kReturnValue, ret_value);
    return bridge_.ReadReturnValue();
  }

  ScriptedEngine engine_{machine_, kAnnasProfile};
  EngineBridge bridge_{platform(), state_};
};

TEST_F(EngineBridgeTest, StartsTheClientHiddenInTheInstallationFolder) {
  engine_.Reply(" 38", "402");
  bridge_.RunEngineCommandAndWait(" 38");
  ASSERT_EQ(engine_.runs().size(), 1u);
  EXPECT_EQ(engine_.runs()[0].file, ScriptedEngine::kPath);
  EXPECT_EQ(engine_.runs()[0].arguments, " 38");
  EXPECT_EQ(engine_.runs()[0].folder, "C:\\Sorvane");
  EXPECT_EQ(engine_.runs()[0].show, platform::WindowShow::kHidden);
}

TEST_F(EngineBridgeTest, SendsEachCommandLetterForLetter) {
  const std::pair<EngineCommand, std::string_view> commands[] = {
      {commands::kCheckServer, " 23< >"},     {commands::kCheckAccount, " 9< >"},
      {commands::kRegisterRandom, " 5< >"},   {commands::kRefreshQuota, " 7< >"},
      {commands::kDailySync, " 20"},          {commands::kCheckUserType, " 38"},
      {commands::kReadMailAddress, " 105<>"},
  };
  for (const auto& [command, argument] : commands) {
    bridge_.StartEngineCommand(command.argument);
    EXPECT_EQ(engine_.runs().back().arguments, argument);
  }
}

TEST_F(EngineBridgeTest, KeepsTheLastArgumentWithAPayload) {
  bridge_.StartEngineCommand(" 105<>");
  bridge_.StartEngineCommand(" 20");
  EXPECT_EQ(state_.CommandArgument, " 105<>");
}

TEST_F(EngineBridgeTest, ReadsTheResultThatTheClientLeft) {
  machine_.files().PutIni(kAnnasProfile, sections::kBackupStatus, keys::kReturnValue, "-416");
  engine_.Reply(" 38", "402");
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), 402.0);
}

TEST_F(EngineBridgeTest, WaitsUntilTheClientEndsAndRunsTicksMeanwhile) {
  engine_.Reply(" 38", {.ret_value = "402", .runs_for = 60'000});
  int ticks = 0;
  platform().events.StartTimer(3000, [&] { ++ticks; });
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), 402.0);
  EXPECT_GE(machine_.now(), 60'000u);
  EXPECT_LT(machine_.now(), 60'400u);
  EXPECT_GE(ticks, 19);
}

TEST_F(EngineBridgeTest, SleepsThreeMillisecondsBetweenLooksOfThreeHundred) {
  engine_.Reply(" 38", {.ret_value = "402", .runs_for = 3000});
  machine_.gate().Start();
  bridge_.RunEngineCommandAndWait(" 38");
  EXPECT_EQ(machine_.gate().Count("events.WaitForProcess"), 10u);
  EXPECT_EQ(machine_.gate().Count("events.Pump"), 9u);
  EXPECT_EQ(machine_.gate().Count("clock.Sleep"), 9u);
}

TEST_F(EngineBridgeTest, EndsTheWaitForAClientThatIsKilled) {
  engine_.Reply(" 38", {.ret_value = "402", .runs_for = 0});
  machine_.At(5000, [&] { machine_.KillProcess("SorvaneEClsClient.exe"); });
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), std::nullopt);
  EXPECT_GE(machine_.now(), 5000u);
}

TEST_F(EngineBridgeTest, TakesAnEmptyResultForNone) {
  engine_.Reply(" 38", EngineReply{});
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), std::nullopt);
}

TEST_F(EngineBridgeTest, GivesTheOldResultOfAClientThatWritesNone) {
  machine_.files().PutIni(kAnnasProfile, sections::kBackupStatus, keys::kReturnValue, "-416");
  engine_.Reply(" 38", EngineReply{});
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), -416.0);
}

TEST_F(EngineBridgeTest, TakesOnlyANumberForAResult) {
  EXPECT_EQ(ResultOf("402"), 402.0);
  EXPECT_EQ(ResultOf(" -12008 "), -12008.0);
  EXPECT_EQ(ResultOf("1e15"), 1e15);
  EXPECT_EQ(ResultOf("99999999999999999999999999"), 99999999999999999999999999.0);
  EXPECT_EQ(ResultOf("done"), std::nullopt);
  EXPECT_EQ(ResultOf("402 ok"), std::nullopt);
  EXPECT_EQ(ResultOf("1e999"), std::nullopt);
  EXPECT_EQ(ResultOf(""), std::nullopt);
}

TEST_F(EngineBridgeTest, TakesAResultOfTwoHundredAndFiftyFiveDigits) {
  EXPECT_EQ(ResultOf(std::string(255, '9')), std::strtod(std::string(255, '9').c_str(), nullptr));
}

// A start that fails: the wait has nothing to wait on, and goes on.
class MissingClientTest : public InstalledProduct {
 protected:
  MissingClientTest() {
    platform().events.StartTimer(3000, [this] { ++ticks_; });
  }

  EngineBridge bridge_{platform(), state_};
  int ticks_ = 0;
};

TEST_F(MissingClientTest, KeepsNoHandle) {
  bridge_.StartEngineCommand(" 20");
  EXPECT_EQ(state_.ClientProcess, platform::kNoProcess);
}

TEST_F(MissingClientTest, GoesOnTickingUntilSomebodyQuits) {
  machine_.AtAgent(3'600'000, [this] { platform().events.Quit(); });
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), std::nullopt);
  EXPECT_GE(machine_.now(), 3'600'000u);
  EXPECT_EQ(ticks_, 1199);
}

TEST_F(MissingClientTest, EndsWithTheProcess) {
  machine_.AtAgent(10'000, [this] { platform().processes.ExitSelf(0); });
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), std::nullopt);
  EXPECT_EQ(machine_.exit_code(), 0u);
  EXPECT_LT(machine_.now(), 10'400u);
}

TEST_F(MissingClientTest, AnswersClicksInsideTheWait) {
  std::vector<std::uint64_t> clicks;
  for (const std::uint64_t at : {1000u, 2000u, 50'000u}) {
    machine_.AtAgent(at, [&] { clicks.push_back(machine_.now()); });
  }
  machine_.AtAgent(60'000, [this] { platform().events.Quit(); });
  bridge_.RunEngineCommandAndWait(" 38");
  ASSERT_EQ(clicks.size(), 3u);
  EXPECT_LE(clicks[0], 1303u);
  EXPECT_LE(clicks[2], 50'303u);
}

TEST_F(MissingClientTest, LooksNoMoreOftenThanForAClient) {
  machine_.gate().Start();
  machine_.AtAgent(30'200, [this] { platform().events.Quit(); });
  bridge_.RunEngineCommandAndWait(" 38");
  EXPECT_EQ(machine_.gate().Count("events.WaitForProcess"), 100u);
}

TEST_F(MissingClientTest, IsFreedByAnotherExchangeThatBringsAClient) {
  ScriptedEngine engine(machine_, kAnnasProfile);
  engine.Reply(" 9< >", "402");
  state_.ClientProgram = "Missing.exe";
  machine_.AtAgent(10'000, [this] {
    state_.ClientProgram = "SorvaneEClsClient.exe";
    bridge_.StartEngineCommand(" 9< >");
  });
  EXPECT_EQ(bridge_.RunEngineCommandAndWait(" 38"), 402.0);
  EXPECT_LT(machine_.now(), 12'000u);
}

TEST_F(EngineBridgeTest, WaitsOnTheClientOfAnExchangeThatReplacedItsOwn) {
  engine_.Reply(" 38", {.ret_value = "1", .runs_for = 0});
  engine_.Reply(" 9< >", {.ret_value = "402", .runs_for = 20'000});
  std::optional<double> inner;
  machine_.AtAgent(5000, [&] { inner = bridge_.RunEngineCommandAndWait(" 9< >"); });
  const std::optional<double> outer = bridge_.RunEngineCommandAndWait(" 38");
  EXPECT_EQ(inner, 402.0);
  EXPECT_EQ(outer, 402.0);
  EXPECT_LT(machine_.now(), 26'000u);
  EXPECT_TRUE(machine_.processes().IsRunning("SorvaneEClsClient.exe"));
}

TEST_F(EngineBridgeTest, GoesOnWaitingWhenAnotherExchangeFailedToStartItsClient) {
  engine_.Reply(" 38", {.ret_value = "1", .runs_for = 10'000});
  machine_.AtAgent(5000, [&] {
    state_.ClientProgram = "Missing.exe";
    bridge_.StartEngineCommand(" 20");
  });
  machine_.AtAgent(60'000, [this] { platform().events.Quit(); });
  bridge_.RunEngineCommandAndWait(" 38");
  EXPECT_EQ(state_.ClientProcess, platform::kNoProcess);
  EXPECT_GE(machine_.now(), 60'000u);
}

TEST(EncryptDllInputTest, RaisesEachCodeWithoutATraceForOneThatLeavesTheRange) {
  EXPECT_EQ(EncryptDLLInput("anna"), "erre");
  EXPECT_EQ(EncryptDLLInput(""), "");
  EXPECT_EQ(EncryptDLLInput("a\xFF"
                            "a"),
            "e");
}

}  // namespace
}  // namespace shared
