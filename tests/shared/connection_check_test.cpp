#include "shared/connection_check.h"

#include "tests/shared/installed_product.h"
#include "tests/shared/scripted_engine.h"

namespace shared {
namespace {

constexpr std::string_view kServer = " 23< >";
constexpr std::string_view kAccount = " 9< >";
constexpr std::string_view kRenew = " 5< >";

class ConnectionCheckTest : public InstalledProduct {
 protected:
  ConnectionCheckTest() { state_.LoginUser = "anna"; }

  std::int16_t Validate() { return check_.ValidateConnection(check_.SaveActingUser()); }
  std::string Pair() { return state_.ServerAddress + ":" + state_.ServerPort; }
  std::string Random() { return Ini(kAnnasProfile, "Tolvex", Shifted("random")); }
  void PutRandom(std::string_view digits) {
    machine_.files().PutIni(kAnnasProfile, sections::kTolvex, Shifted("random"), Shifted(digits));
  }
  void RedirectTo(std::string_view lines) {
    const std::string text(lines);
    engine_.Reply(kServer, {.ret_value = "402", .also = [this, text] {
                              machine_.files().Put(InAnnasFolder("DLLOutput1.txt"), text);
                            }});
  }
  // Fallbacks that were made before each run with this argument.
  std::vector<std::size_t> FallbacksBefore(std::string_view argument) {
    std::vector<std::size_t> before;
    std::size_t so_far = 0;
    for (const auto& entry : machine_.journal().entries()) {
      if (entry.text.find("IPAddres=") != std::string::npos) ++so_far;
      if (entry.category == "shell" && entry.text.ends_with(argument)) before.push_back(so_far);
    }
    return before;
  }
  std::size_t Fallbacks() { return machine_.journal().Count("profile", "IPAddres="); }

  ScriptedEngine engine_{machine_, kAnnasProfile};
  int refreshed_ = 0;
  std::function<void()> on_refresh_;
  ConnectionCheck check_{platform(), state_, [this] {
                           ++refreshed_;
                           if (on_refresh_) on_refresh_();
                         }};
};

TEST_F(ConnectionCheckTest, IsGoodWhenServerAndAccountAnswer) {
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(engine_.CountRuns(kServer), 1u);
  EXPECT_EQ(engine_.CountRuns(kAccount), 1u);
  EXPECT_EQ(Fallbacks(), 0u);
}

TEST_F(ConnectionCheckTest, FallsBackTwiceInTenAttemptsAndGoesOnToTheAccount) {
  engine_.Reply(kServer, "-416");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(engine_.CountRuns(kServer), 10u);
  EXPECT_EQ(Fallbacks(), 2u);
  EXPECT_EQ(Pair(), "192.0.2.10:11905");
}

TEST_F(ConnectionCheckTest, FallsBackAfterTheFifthAndTheTenthAttempt) {
  engine_.Reply(kServer, "-416");
  engine_.Reply(kAccount, "-416");
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(FallbacksBefore(kServer), (std::vector<std::size_t>{0, 0, 0, 0, 0, 1, 1, 1, 1, 1}));
  EXPECT_EQ(FallbacksBefore(kAccount), (std::vector<std::size_t>{2, 2, 2, 2, 2, 3, 3, 3, 3, 3}));
}

TEST_F(ConnectionCheckTest, IsGoodWhenTheServerAnswersBehindTenFailures) {
  for (int attempt = 0; attempt < 10; ++attempt) engine_.Reply(kServer, "-416");
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(engine_.CountRuns(kServer), 10u);
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(engine_.CountRuns(kServer), 11u);
}

TEST_F(ConnectionCheckTest, TriesAgainForEachResultThatMeansUnreachable) {
  for (const std::string_view result : {"-416", "-405", "-12008", "-12009", "-12010"}) {
    engine_.Reply(kServer, result);
  }
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(engine_.CountRuns(kServer), 6u);
  EXPECT_EQ(Fallbacks(), 1u);
}

TEST_F(ConnectionCheckTest, GivesUpAtOnceWhenTheEngineTellsTo) {
  engine_.Reply(kServer, "-40");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(engine_.runs().size(), 1u);
}

TEST_F(ConnectionCheckTest, GivesUpInTheMiddleOfTheAttempts) {
  engine_.Reply(kServer, "-416");
  engine_.Reply(kServer, "-40");
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(engine_.runs().size(), 2u);
}

TEST_F(ConnectionCheckTest, AsksForTheAccountAfterAnyOtherAnswerOfTheServer) {
  for (const std::string_view result : {"-504", "7", "0"}) {
    engine_.Reply(kServer, result);
    engine_.Reply(kAccount, "402");
    EXPECT_EQ(Validate(), 1) << result;
  }
}

TEST_F(ConnectionCheckTest, PausesASecondAfterEachFailureAndBeforeTheRedirection) {
  engine_.Reply(kServer, "-416");
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "402");
  Validate();
  ASSERT_EQ(engine_.runs().size(), 3u);
  EXPECT_GE(machine_.now(), 5000u);
  EXPECT_LT(machine_.now(), 6000u);
}

TEST_F(ConnectionCheckTest, FollowsARedirectionOfTwoLines) {
  RedirectTo("8443\r\n192.0.2.77\r\n");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(Pair(), "192.0.2.77:8443");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "IPAddres"), "192.0.2.77");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "OutPort"), "8443");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", Shifted("serverip")), Shifted("192.0.2.77"));
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", Shifted("port")), Shifted("8443"));
}

TEST_F(ConnectionCheckTest, ChangesOnlyThePortForARedirectionOfOneLineAndWritesBoth) {
  RedirectTo("8443");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(Pair(), "192.0.2.99:8443");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "IPAddres"), "192.0.2.99");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "OutPort"), "8443");
}

TEST_F(ConnectionCheckTest, KeepsThePairForAnEmptyRedirectionAndWritesIt) {
  RedirectTo("");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(Pair(), "192.0.2.99:4000");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "IPAddres"), "192.0.2.99");
}

TEST_F(ConnectionCheckTest, KeepsThePairForARedirectionThatCannotBeReadAndWritesIt) {
  engine_.Reply(kServer, {.ret_value = "402", .also = [this] {
                            machine_.files().Put(InAnnasFolder("DLLOutput1.txt"), "1\r\n2\r\n");
                            machine_.LockFile(InAnnasFolder("DLLOutput1.txt"));
                          }});
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(Pair(), "192.0.2.99:4000");
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "OutPort"), "4000");
}

TEST_F(ConnectionCheckTest, TakesAnEmptyLineOfARedirectionAsItStands) {
  RedirectTo("\r\n192.0.2.77\r\n");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(Pair(), "192.0.2.77:");
}

TEST_F(ConnectionCheckTest, WritesNoServerKeyWithoutARedirection) {
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "402");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(Ini(kAnnasProfile, "Tolvex", "IPAddres"), "");
}

TEST_F(ConnectionCheckTest, DoesNotFollowTheRedirectionOfAnEarlierLogin) {
  machine_.files().Put(InAnnasFolder("DLLOutput1.txt"), "1\r\n2\r\n");
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "402");
  Validate();
  EXPECT_EQ(Pair(), "192.0.2.99:4000");
}

TEST_F(ConnectionCheckTest, KeepsTheAddressAndTakesTheLocalPortWithALocalServer) {
  machine_.files().Put(InInstall("localhost.txt"), "");
  engine_.Reply(kServer, "-416");
  engine_.Reply(kAccount, "-416");
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(Pair(), "192.0.2.99:700");
  EXPECT_EQ(engine_.CountRuns(kAccount), 10u);
  EXPECT_EQ(Fallbacks(), 4u);
}

TEST_F(ConnectionCheckTest, TriesTheAccountAgainOnlyForAnUnreachableServer) {
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "-416");
  engine_.Reply(kAccount, "-405");
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(engine_.CountRuns(kAccount), 2u);
}

TEST_F(ConnectionCheckTest, MakesAndWritesRandomDigitsForALogin) {
  machine_.random().Script({0.0, 0.0, 0.0, 0.0, 0.5});
  std::string random_of_the_first_run;
  engine_.Reply(kServer, {.ret_value = "402", .also = [&] { random_of_the_first_run = Random(); }});
  engine_.Reply(kAccount, "402");
  Validate();
  EXPECT_EQ(random_of_the_first_run, Shifted("1111128"));
  EXPECT_EQ(Random(), Shifted("1111128"));
  EXPECT_EQ(state_.ClientRandom, "1111128");
}

TEST_F(ConnectionCheckTest, KeepsTheRandomDigitsThatAreThere) {
  PutRandom("12345");
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "402");
  Validate();
  EXPECT_EQ(Random(), Shifted("12345"));
  EXPECT_EQ(state_.ClientRandom, "12345");
}

TEST_F(ConnectionCheckTest, TakesTheMachinesDigitsWithoutAUserOfTheLogin) {
  state_.LoginUser = "";
  machine_.files().PutIni(kUserNameIniPath, sections::kRegistry,
                          "SorvaneE client system random number", "777");
  engine_.Reply(kServer, "-40");
  Validate();
  EXPECT_EQ(Random(), "");
  EXPECT_EQ(state_.ClientRandom, "777");
}

TEST_F(ConnectionCheckTest, DeletesTheSideFilesOfTheUserWhoLogsIn) {
  state_.LoginUser = "ben";
  machine_.files().Put("C:\\Sorvane\\SorvaneEben\\DLLOutput.txt", "");
  machine_.files().Put("C:\\Sorvane\\SorvaneEben\\DLLInput.txt", "");
  machine_.files().Put(InAnnasFolder("DLLOutput.txt"), "");
  PutRandom("12345");
  engine_.Reply(kServer, "-40");
  Validate();
  EXPECT_FALSE(machine_.files().Has("C:\\Sorvane\\SorvaneEben\\DLLOutput.txt"));
  EXPECT_FALSE(machine_.files().Has("C:\\Sorvane\\SorvaneEben\\DLLInput.txt"));
  EXPECT_TRUE(machine_.files().Has(InAnnasFolder("DLLOutput.txt")));
}

TEST_F(ConnectionCheckTest, RestoresTheActingUserInEveryCase) {
  for (const auto& [server, account] :
       {std::pair{"-40", "402"}, {"402", "402"}, {"402", "-505"}, {"402", "-416"}}) {
    ScriptedEngine engine(machine_, kAnnasProfile);
    engine.Reply(kServer, server);
    engine.Reply(kAccount, account);
    state_.CurrentUser = "anna";
    machine_.files().PutIni(kUserNameIniPath, sections::kTolvex, keys::kInteractive, "anna");
    check_.ValidateConnection({.interactive = "carl", .current_user = "dora"});
    EXPECT_EQ(Ini(kUserNameIniPath, "Tolvex", "Interactive"), "carl");
    EXPECT_EQ(state_.CurrentUser, "dora");
  }
}

TEST_F(ConnectionCheckTest, DoesNotRenewUnknownDigitsUnconfirmed) {
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "-505");
  state_.RandomRenewConfirmed = -1;
  EXPECT_EQ(Validate(), -1);
  EXPECT_EQ(refreshed_, 2);
  EXPECT_EQ(engine_.CountRuns(kRenew), 0u);
}

TEST_F(ConnectionCheckTest, RenewsUnknownDigitsOnceConfirmed) {
  PutRandom("12345");
  machine_.random().Script({0.0, 0.0, 0.0, 0.0, 0.0});
  on_refresh_ = [this] { state_.RandomRenewConfirmed = -1; };
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "-505");
  engine_.Reply(kRenew, "-414");
  EXPECT_EQ(Validate(), 1);
  EXPECT_EQ(Random(), Shifted("11111"));
  EXPECT_EQ(Ini(kUserNameIniPath, "Tolvex", "Interactive"), "anna");
}

TEST_F(ConnectionCheckTest, TellsWhetherTheServerTookTheNewDigits) {
  on_refresh_ = [this] { state_.RandomRenewConfirmed = -1; };
  const std::pair<std::string_view, int> cases[] = {
      {"402", 1}, {"-414", 1}, {"-416", 2}, {"-504", 2}, {"", 2}};
  for (const auto& [result, answer] : cases) {
    ScriptedEngine engine(machine_, kAnnasProfile);
    engine.Reply(kRenew, result);
    EXPECT_EQ(check_.RenewClientRandom(), answer) << result;
    EXPECT_EQ(engine.CountRuns(kRenew), result == "-416" ? 10u : 1u);
  }
}

TEST_F(ConnectionCheckTest, ActsForTheUserOfTheLoginWhileItRenews) {
  on_refresh_ = [this] { state_.RandomRenewConfirmed = -1; };
  machine_.files().Put(InAnnasFolder("DLLOutput.txt"), "");
  machine_.files().PutIni(kUserNameIniPath, sections::kTolvex, keys::kInteractive, "carl");
  std::string interactive;
  engine_.Reply(kRenew, {.ret_value = "402", .also = [&] {
                           interactive = Ini(kUserNameIniPath, "Tolvex", "Interactive");
                         }});
  check_.RenewClientRandom();
  EXPECT_EQ(interactive, "anna");
  EXPECT_EQ(Ini(kUserNameIniPath, "Tolvex", "Interactive"), "carl");
  EXPECT_EQ(state_.CurrentUser, "anna");
  EXPECT_FALSE(machine_.files().Has(InAnnasFolder("DLLOutput.txt")));
}

TEST_F(ConnectionCheckTest, FailsWhenTheClientNeverWritesAResult) {
  engine_.Reply(kServer, EngineReply{});
  engine_.Reply(kAccount, EngineReply{});
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(engine_.runs().size(), 2u);
}

TEST_F(ConnectionCheckTest, KeepsTheLastResultWhenALaterRunWritesText) {
  engine_.Reply(kServer, "402");
  engine_.Reply(kAccount, "-416");
  engine_.Reply(kAccount, "reached");
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(engine_.CountRuns(kAccount), 10u);
}

TEST_F(ConnectionCheckTest, EndsWhenTheProgramQuitsInsideAnAttempt) {
  engine_.Reply(kServer, "-416");
  engine_.Reply(kAccount, "402");
  machine_.AtAgent(2500, [this] { platform().events.Quit(); });
  EXPECT_EQ(Validate(), 0);
  EXPECT_EQ(engine_.CountRuns(kServer), 2u);
}

}  // namespace
}  // namespace shared
