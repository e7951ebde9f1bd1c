#include "agent/continuous_login.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "shared/file_names.h"
#include "tests/agent/continuous_fixture.h"
#include "tests/agent/effects.h"

namespace agent {
namespace {

using testing::Effects;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
namespace files = shared::files;
namespace keys = shared::keys;

constexpr const char* kServer = " 23< >";
constexpr const char* kAccount = " 9< >";
constexpr std::string_view kSideFiles[] = {files::kDllOutput, files::kDllInput, files::kDllOutput1};

class ContinuousLoginTest : public testing::ContinuousFixture {
 protected:
  std::string Shifted(std::string_view key) {
    return shared::clsTransfer(agent_.machine.platform(), agent_.state()).Trf_ReadUserProfile(key);
  }
  std::ptrdiff_t Asked(const char* command) {
    return std::ranges::count(asked_, std::string(command));
  }
  bool IsOn() { return agent_.Shared(keys::kRealTimeBackup) == "1"; }
  // Confirms new random digits as soon as they are asked for.
  void ConfirmRenewal() {
    agent_.machine.WhenPumped([this] {
      if (!agent_.state().LoginUser.empty()) agent_.state().RandomRenewConfirmed = -1;
      ConfirmRenewal();
    });
  }
};

// --- what is prepared

TEST_F(ContinuousLoginTest, BlankRandomDigitsAreMadeAndWrittenBeforeTheFirstRun) {
  agent_.SetShifted(keys::kRandom, "");
  Start();
  agent_.machine.random().Script({0.0, 0.5, 0.999, 0.004, 0.1});
  std::string at_first;
  when_answered_ = [&] {
    if (at_first.empty()) at_first = Shifted(keys::kRandom);
  };
  SwitchOn();
  EXPECT_EQ(at_first, "1128255226");
  EXPECT_TRUE(IsOn());
}

TEST_F(ContinuousLoginTest, RandomDigitsThatAreThereStay) {
  Start();
  SwitchOn();
  EXPECT_EQ(Shifted(keys::kRandom), "12345");
  EXPECT_THAT(Effects(agent_), ::testing::Not(::testing::Contains("write Tolvex.random=12345")));
}

TEST_F(ContinuousLoginTest, TheThreeSideFilesAreGoneBeforeTheFirstRun) {
  for (const std::string_view name : kSideFiles) agent_.PutUserFile(name, "old\r\nold\r\n");
  Start();
  std::vector<bool> there;
  when_answered_ = [&] {
    for (const std::string_view name : kSideFiles) there.push_back(agent_.HasUserFile(name));
    when_answered_ = nullptr;
  };
  SwitchOn();
  EXPECT_THAT(there, ElementsAre(false, false, false));
  EXPECT_EQ(agent_.machine.journal().Count("profile", "[Tolvex] IPAddres="), 0u);
}

struct PairRow {
  const char* address;
  const char* port;
  const char* used_address;
  const char* used_port;
};

TEST_F(ContinuousLoginTest, AnEmptyPortTakesTheDefaultPairAndALocalServerItsOwnPort) {
  constexpr PairRow kRows[] = {{"192.0.2.77", "4000", "192.0.2.77", "4000"},
                               {"192.0.2.77", "", "192.0.2.10", "11905"},
                               {"", "", "192.0.2.10", "11905"},
                               {"localhost", "4000", "localhost", "700"}};
  Start();
  for (const PairRow& row : kRows) {
    agent_.SetShifted(keys::kServerIp, row.address);
    agent_.SetShifted(keys::kPort, row.port);
    SwitchOn();
    EXPECT_EQ(agent_.state().ServerAddress, row.used_address) << row.address << " " << row.port;
    EXPECT_EQ(agent_.state().ServerPort, row.used_port) << row.address << " " << row.port;
    // The pair is kept by a fallback or a redirection only.
    EXPECT_EQ(Shifted(keys::kServerIp), row.address);
  }
}

// --- the server

TEST_F(ContinuousLoginTest, ARefusedLoginTakesTheChoiceBack) {
  script_ = {"-40"};
  Start();
  SwitchOn();
  EXPECT_EQ(asked_, std::vector<std::string>{" 23< >"});
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_EQ(Profile(keys::kRealTimeBackup), "0");
  EXPECT_THAT(orders_, IsEmpty());
  EXPECT_FALSE(Timer().Enabled());
}

TEST_F(ContinuousLoginTest, AServerThatCannotBeReachedIsLeftForTheOtherOnce) {
  script_ = {"-12010", "-12010", "-416"};
  Start();
  SwitchOn();
  EXPECT_EQ(asked_, (std::vector<std::string>{" 23< >", " 23< >", " 23< >", " 23< >", " 9< >"}));
  EXPECT_EQ(agent_.machine.journal().Count("profile", "[Tolvex] IPAddres="), 1u);
  EXPECT_EQ(Profile(keys::kPlainAddress), "192.0.2.10");
  EXPECT_EQ(Profile(keys::kPlainPort), "11905");
}

TEST_F(ContinuousLoginTest, TheAccountIsAskedTenTimesWithOneFallback) {
  script_ = std::vector<std::string>(11, "-416");
  script_[0] = "402";
  Start();
  SwitchOn();
  EXPECT_EQ(asked_.size(), 11u);
  EXPECT_EQ(agent_.machine.journal().Count("profile", "[Tolvex] IPAddres="), 1u);
  EXPECT_THAT(orders_, IsEmpty());
}

TEST_F(ContinuousLoginTest, ARedirectionIsFollowed) {
  when_answered_ = [this] { agent_.PutUserFile(files::kDllOutput1, "5000\r\n192.0.2.99\r\n"); };
  Start();
  SwitchOn();
  EXPECT_EQ(Profile(keys::kPlainAddress), "192.0.2.99");
  EXPECT_EQ(Profile(keys::kPlainPort), "5000");
}

TEST_F(ContinuousLoginTest, UnknownRandomDigitsThatAreNotRenewedRefuse) {
  script_ = {"402", "-505"};
  Start();
  SwitchOn();
  EXPECT_EQ(agent_.Shared(keys::kRealTimeBackup), "0");
  EXPECT_THAT(orders_, IsEmpty());
}

TEST_F(ContinuousLoginTest, TheUserOfTheClientIsPutBack) {
  agent_.SetShared(keys::kInteractive, "bob");
  script_ = {"-12010"};
  Start();
  SwitchOn();
  EXPECT_EQ(agent_.Shared(keys::kInteractive), "bob");
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
}

TEST_F(ContinuousLoginTest, TheEngineActsForTheUserWhoSwitches) {
  agent_.SetShared(keys::kInteractive, "");
  std::string acted_for;
  when_answered_ = [&] { acted_for = agent_.Shared(keys::kInteractive); };
  Start();
  SwitchOn();
  EXPECT_EQ(acted_for, "ann");
  EXPECT_EQ(agent_.Shared(keys::kInteractive), "");
  EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
}

TEST_F(ContinuousLoginTest, AnyOtherFailureOfTheServerIsTriedTenTimesASecondApart) {
  for (const char* failure : {"-416", "-12008", "0", "-1"}) {
    SCOPED_TRACE(failure);
    asked_.clear();
    orders_.clear();
    script_ = std::vector<std::string>(10, failure);
    Start();
    const auto before = agent_.machine.now();
    SwitchOn();
    EXPECT_EQ(Asked(kServer), 10);
    EXPECT_EQ(Asked(kAccount), 1);
    // Eleven runs of half a second, ten pauses, and the timer's tick.
    EXPECT_GE(agent_.machine.now() - before, 11u * 500 + 10u * 1000);
    EXPECT_EQ(agent_.machine.journal().Count("profile", "[Tolvex] IPAddres="), 0u);
    EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
  }
}

TEST_F(ContinuousLoginTest, AServerThatNeverAnswersFallsBackOnceAndStillAsksForTheAccount) {
  script_ = std::vector<std::string>(10, "-12010");
  Start();
  SwitchOn();
  EXPECT_EQ(Asked(kServer), 10);
  EXPECT_EQ(Asked(kAccount), 1);
  EXPECT_EQ(agent_.machine.journal().Count("profile", "[Tolvex] IPAddres="), 1u);
}

TEST_F(ContinuousLoginTest, TheFallbackWritesItsFourKeysInOrder) {
  script_ = {"-12010"};
  Start();
  SwitchOn();
  const std::vector<std::string> effects = Effects(agent_);
  const auto first = std::ranges::find(effects, "write Tolvex.IPAddres=192.0.2.10");
  ASSERT_GE(effects.end() - first, 4);
  EXPECT_THAT(std::vector<std::string>(first, first + 4),
              ElementsAre("write Tolvex.IPAddres=192.0.2.10", "write Tolvex.OutPort=11905",
                          "write Tolvex.serverip=192.0.2.10", "write Tolvex.port=11905"));
}

TEST_F(ContinuousLoginTest, AClientThatWritesNothingIsRunTenTimesForEachQuestion) {
  script_ = std::vector<std::string>(20, std::string(testing::kNoResult));
  Start();
  SwitchOn();
  EXPECT_EQ(Asked(kServer), 10);
  EXPECT_EQ(Asked(kAccount), 10);
  EXPECT_FALSE(IsOn());
  EXPECT_THAT(orders_, IsEmpty());
}

TEST_F(ContinuousLoginTest, AClientThatWritesWordsIsRunTenTimesForEachQuestion) {
  script_ = std::vector<std::string>(20, "ready");
  Start();
  SwitchOn();
  EXPECT_EQ(asked_.size(), 20u);
  EXPECT_FALSE(IsOn());
}

TEST_F(ContinuousLoginTest, GivingUpShowsThePlainPointerAndAsksNothingMore) {
  script_ = {"-1", "-40"};
  Start();
  Click("Continue");
  EXPECT_EQ(Pointer(), forms::Pointer::kBusy);
  agent_.machine.Run(100);
  EXPECT_EQ(asked_, (std::vector<std::string>{kServer, kServer}));
  EXPECT_EQ(Pointer(), forms::Pointer::kDefault);
}

// --- the account

TEST_F(ContinuousLoginTest, OnlyTheOneResultIsSuccessForTheAccount) {
  for (const char* result : {"401", "1", "-40", "-504"}) {
    SCOPED_TRACE(result);
    script_ = std::vector<std::string>(11, result);
    script_[0] = "402";
    Start();
    SwitchOn();
    EXPECT_FALSE(IsOn());
    EXPECT_THAT(orders_, IsEmpty());
  }
}

TEST_F(ContinuousLoginTest, AnAccountThatAnswersLateIsTaken) {
  script_ = {"402", "-504", "-511", "402"};
  Start();
  SwitchOn();
  EXPECT_EQ(asked_, (std::vector<std::string>{kServer, kAccount, kAccount, kAccount}));
  EXPECT_TRUE(IsOn());
}

TEST_F(ContinuousLoginTest, RenewedRandomDigitsAreStoredAndLetTheSwitchGoOn) {
  script_ = {"402", "-505", "-414"};
  agent_.SetShared(keys::kInteractive, "bob");
  Start();
  ConfirmRenewal();
  SwitchOn();
  EXPECT_EQ(asked_, (std::vector<std::string>{kServer, kAccount, " 5< >"}));
  EXPECT_NE(agent_.state().ClientRandom, "12345");
  EXPECT_EQ(Shifted(keys::kRandom), agent_.state().ClientRandom);
  // Once for the engine to read, once more when the server has taken them.
  EXPECT_EQ(
      std::ranges::count(Effects(agent_), "write Tolvex.random=" + agent_.state().ClientRandom), 2);
  EXPECT_TRUE(IsOn());
  EXPECT_EQ(orders_, std::vector<std::int32_t>{1});
  EXPECT_EQ(agent_.Shared(keys::kInteractive), "bob");
  EXPECT_EQ(agent_.state().CurrentUser, "ann");
}

TEST_F(ContinuousLoginTest, RandomDigitsThatTheServerRefusesEndTheSwitch) {
  script_ = {"402", "-505", "-511"};
  Start();
  ConfirmRenewal();
  SwitchOn();
  EXPECT_EQ(asked_, (std::vector<std::string>{kServer, kAccount, " 5< >"}));
  EXPECT_FALSE(IsOn());
  EXPECT_THAT(orders_, IsEmpty());
}

}  // namespace
}  // namespace agent
