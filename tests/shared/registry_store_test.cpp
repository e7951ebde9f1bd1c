#include "shared/registry_store.h"

#include "tests/shared/installed_product.h"

namespace shared {
namespace {

using platform::Hive;

constexpr std::string_view kRoot = "Software\\Bellwick-Labs\\SorvaneE";
constexpr std::string_view kOldRoot = "Software\\SorvaneE";
constexpr std::string_view kConnection = "Software\\Bellwick-Labs\\SorvaneE\\Connection Parameters";

class RegistryStoreTest : public InstalledProduct {
 protected:
  void PutUser(std::string_view key, std::string_view name, std::string_view text) {
    machine_.registry().PutText(Hive::kCurrentUser, key, name, text);
  }
  std::string User(std::string_view key, std::string_view name) {
    return machine_.registry().Text(Hive::kCurrentUser, key, name);
  }

  RegistryStore store_{platform(), state_};
};

TEST_F(RegistryStoreTest, ReadsAValueOfTheNewRootFirst) {
  PutUser(kRoot, "PluginFlag", " 1 ");
  PutUser(kOldRoot, "PluginFlag", "0");
  EXPECT_EQ(store_.ReadAppValue("PluginFlag"), "1");
}

TEST_F(RegistryStoreTest, FallsBackToTheOldRootForAValueThatIsOnlyThere) {
  machine_.registry().PutKey(Hive::kCurrentUser, kRoot);
  PutUser(kOldRoot, "PluginFlag", "1");
  EXPECT_EQ(store_.ReadAppValue("PluginFlag"), "1");
  PutUser(kRoot, "PluginFlag", "  ");
  EXPECT_EQ(store_.ReadAppValue("PluginFlag"), "1");
}

TEST_F(RegistryStoreTest, DoesNotTryTheOldRootWithoutTheNewOne) {
  PutUser(kOldRoot, "PluginFlag", "1");
  EXPECT_EQ(store_.ReadAppValue("PluginFlag"), "");
}

TEST_F(RegistryStoreTest, ReadsValuesOfUpToOneThousandCharacters) {
  PutUser(kRoot, "PluginFlag", std::string(1000, 'x'));
  EXPECT_EQ(store_.ReadAppValue("PluginFlag"), std::string(1000, 'x'));
  PutUser(kRoot, "PluginFlag", std::string(1100, 'x'));
  EXPECT_EQ(store_.ReadAppValue("PluginFlag"), "");
}

TEST_F(RegistryStoreTest, MakesTheKeyForAValue) {
  store_.WriteAppValue("1", "InstalledFirst");
  EXPECT_EQ(User(kRoot, "InstalledFirst"), "1");
}

TEST_F(RegistryStoreTest, MakesTheFirstTimeUserWhereItIsMissing) {
  EXPECT_EQ(store_.ReadFirstTimeUser(), "TRUE");
  EXPECT_EQ(User(kRoot, "FirstTimeUser"), "TRUE");
  PutUser(kRoot, "FirstTimeUser", "FALSE");
  EXPECT_EQ(store_.ReadFirstTimeUser(), "FALSE");
}

TEST_F(RegistryStoreTest, LooksForAnEmptyFirstTimeUserUnderTheOldRoot) {
  PutUser(kRoot, "FirstTimeUser", "");
  PutUser(kOldRoot, "FirstTimeUser", "FALSE");
  EXPECT_EQ(store_.ReadFirstTimeUser(), "FALSE");
  EXPECT_EQ(User(kRoot, "FirstTimeUser"), "");
}

TEST_F(RegistryStoreTest, MakesTheFirstTimeUserUnderTheNewRootWhenTheOldOneFails) {
  PutUser(kRoot, "FirstTimeUser", "");
  EXPECT_EQ(store_.ReadFirstTimeUser(), "TRUE");
  EXPECT_EQ(User(kRoot, "FirstTimeUser"), "TRUE");
  EXPECT_FALSE(machine_.registry().HasKey(Hive::kCurrentUser, kOldRoot));
}

TEST_F(RegistryStoreTest, KeepsTheOpenFileModeAsTextOfTheMachine) {
  EXPECT_EQ(store_.ReadOpenFileMode(), "");
  store_.WriteOpenFileMode(2);
  EXPECT_EQ(store_.ReadOpenFileMode(), "2");
  EXPECT_EQ(machine_.registry().Text(Hive::kLocalMachine, kOldRoot, "OpenFileMode"), "2");
}

TEST_F(RegistryStoreTest, GivesEachTypeItsOwnKindOfAnswer) {
  auto& registry = machine_.registry();
  PutUser("K", "text", "ab");
  registry.PutNumber(Hive::kCurrentUser, "K", "number", 4294967295u);
  registry.Put(Hive::kCurrentUser, "K", "bytes", {platform::RegistryType::kBinary, "\x07\x08", 0});
  registry.Put(Hive::kCurrentUser, "K", "nobytes", {platform::RegistryType::kBinary, "", 0});
  registry.Put(Hive::kCurrentUser, "K", "none", {platform::RegistryType::kNone, "", 0});
  PutUser("K", "long", std::string(300, 'x'));
  const std::pair<std::string_view, RegValue> cases[] = {
      {"text", std::string("ab")},  {"number", std::int32_t{-1}}, {"bytes", std::uint8_t{7}},
      {"nobytes", std::uint8_t{0}}, {"none", std::monostate{}},   {"long", std::string()},
      {"missing", std::int32_t{0}},
  };
  for (const auto& [name, value] : cases) {
    EXPECT_EQ(store_.QueryRegValue(Hive::kCurrentUser, "K", name), value) << name;
    EXPECT_EQ(store_.QueryRegValue(Hive::kCurrentUser, "\\K", name), value) << name;
  }
  EXPECT_EQ(store_.QueryRegValue(Hive::kCurrentUser, "L", "text"), RegValue(std::monostate{}));
}

TEST_F(RegistryStoreTest, KeepsTheInnerNulsOfAQueriedText) {
  machine_.registry().Put(Hive::kCurrentUser, "K", "text",
                          {platform::RegistryType::kText, std::string("a\0b\0", 4), 0});
  EXPECT_EQ(store_.QueryRegValue(Hive::kCurrentUser, "K", "text"),
            RegValue(std::string("a\0b", 3)));
}

TEST_F(RegistryStoreTest, AsksForAllRightsWhenItQueries) {
  PutUser("K", "text", "ab");
  machine_.registry().DenyWriting(Hive::kCurrentUser);
  EXPECT_EQ(store_.QueryRegValue(Hive::kCurrentUser, "K", "text"), RegValue(std::monostate{}));
}

TEST_F(RegistryStoreTest, MakesTheKeyOfATypedValue) {
  EXPECT_TRUE(store_.SetRegValue(Hive::kCurrentUser, "\\A\\B", "n", NumberValue(-2)));
  EXPECT_EQ(machine_.registry().Number(Hive::kCurrentUser, "A\\B", "n"), 4294967294u);
  EXPECT_TRUE(store_.SetRegValue(Hive::kCurrentUser, "A", "t", TextValue("x")));
  EXPECT_EQ(machine_.registry().Value(Hive::kCurrentUser, "A", "t")->bytes, std::string("x\0", 2));
}

TEST_F(RegistryStoreTest, TracesATypedValueThatCannotBeSet) {
  machine_.registry().DenyWriting(Hive::kLocalMachine);
  EXPECT_FALSE(store_.SetRegValue(Hive::kLocalMachine, "A", "n", NumberValue(5)));
  EXPECT_EQ(TraceOfAnna(), "Error in registry set value of A n 5Access denied.\r\n");
}

TEST_F(RegistryStoreTest, SetsNoValueOfAnotherType) {
  EXPECT_FALSE(store_.SetRegValue(Hive::kCurrentUser, "A", "n", {}));
  EXPECT_FALSE(machine_.registry().HasKey(Hive::kCurrentUser, "A"));
  EXPECT_TRUE(TraceOfAnna().starts_with("Error in registry set value of A n "));
}

TEST_F(RegistryStoreTest, FlushesAValueOfAnExistingKey) {
  machine_.registry().PutKey(Hive::kCurrentUser, "A");
  store_.SetKeyValue("A", "n", NumberValue(1));
  EXPECT_EQ(machine_.journal().Excerpt("registry"),
            (std::vector<std::string>{"HKCU\\A n=1", "flush HKCU\\A"}));
}

TEST_F(RegistryStoreTest, TracesAKeyThatIsNotThere) {
  store_.SetKeyValue("A", "n", NumberValue(1));
  EXPECT_FALSE(machine_.registry().HasKey(Hive::kCurrentUser, "A"));
  EXPECT_EQ(TraceOfAnna(), "Error No:2Error in SetKeyValue.Reason:File not found.\r\n");
}

TEST_F(RegistryStoreTest, TracesAValueAndAFlushThatFail) {
  machine_.registry().PutKey(Hive::kCurrentUser, "A");
  machine_.gate().FailAll("registry.Write");
  machine_.gate().FailAll("registry.Flush");
  store_.SetKeyValue("A", "n", NumberValue(1));
  EXPECT_EQ(TraceOfAnna(),
            "Error No:5Error in SetValueEx.Reason:Access denied.\r\n"
            "Error No:5Error in SetKeyValue.Reason:Access denied.\r\n");
}

TEST_F(RegistryStoreTest, ReadsTheConnectionStatusAsASixteenBitNumber) {
  EXPECT_EQ(store_.ReadConnectionStatus(), 0);
  store_.WriteConnectionStatus(2);
  EXPECT_EQ(store_.ReadConnectionStatus(), 2);
  EXPECT_EQ(machine_.registry().Number(Hive::kCurrentUser, kConnection, "Status"), 2u);
  store_.WriteConnectionStatus(70000);
  EXPECT_EQ(store_.ReadConnectionStatus(), 0);
  PutUser(kConnection, "Status", "1");
  EXPECT_EQ(store_.ReadConnectionStatus(), 1);
  PutUser(kConnection, "Status", "yes");
  EXPECT_EQ(store_.ReadConnectionStatus(), 0);
}

TEST_F(RegistryStoreTest, LetsTheDialUpEntryConnectByItself) {
  machine_.files().PutIni(kAnnasProfile, sections::kTolvex, Shifted("ISPName"), Shifted("Net 1"));
  machine_.registry().PutKey(Hive::kCurrentUser, "RemoteAccess\\Profile\\Net 1");
  store_.ResetDialUpAutoConnect();
  EXPECT_EQ(
      machine_.registry().Number(Hive::kCurrentUser, "RemoteAccess\\Profile\\Net 1", "AutoConnect"),
      1u);
  EXPECT_EQ(machine_.journal().Count("internet", "refresh settings"), 1u);
}

// A registry that has no memory left.
class ExhaustedRegistry final : public platform::Registry {
 public:
  platform::RegistryResult Read(Hive, std::string_view, std::string_view, std::size_t,
                                platform::RegistryAccess) override {
    return {true, kOutOfMemory, {}};
  }
  std::uint32_t CreateKey(Hive, std::string_view) override { return kOutOfMemory; }
  std::uint32_t Write(Hive, std::string_view, std::string_view,
                      const platform::RegistryValue&) override {
    return kOutOfMemory;
  }
  std::uint32_t Flush(Hive, std::string_view) override { return kOutOfMemory; }

 private:
  static constexpr std::uint32_t kOutOfMemory = 8;
};

TEST_F(RegistryStoreTest, TellsTheUserThatThereIsNoMemoryForAQuery) {
  ExhaustedRegistry exhausted;
  platform::Platform& all = platform();
  platform::Platform without_memory{.files = all.files,
                                    .profile_files = all.profile_files,
                                    .registry = exhausted,
                                    .processes = all.processes,
                                    .services = all.services,
                                    .shell = all.shell,
                                    .other_windows = all.other_windows,
                                    .clock = all.clock,
                                    .events = all.events,
                                    .power = all.power,
                                    .locale = all.locale,
                                    .libraries = all.libraries,
                                    .random = all.random,
                                    .internet = all.internet};
  EXPECT_EQ(RegistryStore(without_memory, state_).ReadAppValue("PluginFlag"), "");
  EXPECT_EQ(
      machine_.journal().Excerpt("box"),
      (std::vector<std::string>{
          "stop Sorvane Classic: Unable to query the registry, reason : Not enough memory."}));
}

}  // namespace
}  // namespace shared
