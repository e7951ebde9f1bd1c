#include "shared/share_records.h"

#include "tests/shared/installed_product.h"

namespace shared {
namespace {

class ShareRecordsTest : public InstalledProduct {
 protected:
  void PutRegistry(std::string_view key, std::string_view value) {
    machine_.files().PutIni(kUserNameIniPath, sections::kRegistry, key, value);
  }
  std::string Record(std::string_view key) {
    return ShiftCharacters(Ini(kUserNameIniPath, "Registry", key), -kShareShift).text;
  }
  void Migrate() { MigrateShareRecords(platform(), state_); }
};

TEST_F(ShareRecordsTest, ShiftsEachRecordWithSixClosedFields) {
  PutRegistry("UNCCount", "2");
  PutRegistry("UNC1", "Z:;\\\\nas\\a;ann;pw;1;0");
  PutRegistry("UNC2", "Y:;\\\\nas\\b;;;;;7;8");
  Migrate();
  EXPECT_EQ(Record("UNC1"), "Z:;\\\\nas\\a;ann;pw;1;0;");
  EXPECT_EQ(Record("UNC2"), "Y:;\\\\nas\\b;;;;;");
  EXPECT_EQ(Ini(kUserNameIniPath, "Registry", "UNCEncrypted"), "1");
}

TEST_F(ShareRecordsTest, ShiftsNoRecordTwice) {
  PutRegistry("UNCCount", "1");
  PutRegistry("UNC1", "a;b;c;d;e;f");
  Migrate();
  const std::string once = machine_.files().Content(kUserNameIniPath);
  Migrate();
  EXPECT_EQ(machine_.files().Content(kUserNameIniPath), once);
}

TEST_F(ShareRecordsTest, MarksAMachineWithoutSharesAsDone) {
  for (const std::string_view count : {"", "0", "-4", "many", "99999"}) {
    PutRegistry("UNCEncrypted", "");
    PutRegistry("UNCCount", count);
    machine_.journal().Clear();
    Migrate();
    EXPECT_EQ(machine_.journal().Count("profile"), 1u) << count;
    EXPECT_EQ(Ini(kUserNameIniPath, "Registry", "UNCEncrypted"), "1");
  }
}

TEST_F(ShareRecordsTest, ReadsAnEmptyRecordOnceMore) {
  PutRegistry("UNCCount", "1");
  machine_.gate().Start(true);
  Migrate();
  int reads = 0;
  for (const auto& call : machine_.gate().calls()) {
    reads += call.argument.ends_with("UNC1") && call.name == "profile_files.ReadText";
  }
  EXPECT_EQ(reads, 2);
  EXPECT_EQ(Record("UNC1"), ";;;;;;");
}

TEST_F(ShareRecordsTest, ReadsAllRecordsBeforeItWritesOne) {
  PutRegistry("UNCCount", "2");
  PutRegistry("UNC1", "a");
  PutRegistry("UNC2", "b");
  machine_.gate().Start(true);
  Migrate();
  std::string order;
  for (const auto& call : machine_.gate().calls()) {
    if (call.name == "profile_files.ReadText") order += 'r';
    if (call.name == "profile_files.WriteText") order += 'w';
  }
  EXPECT_EQ(order, "rrrrwww");
}

}  // namespace
}  // namespace shared
