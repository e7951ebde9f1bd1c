#include "schedule/mail_list.h"

#include <gtest/gtest.h>

#include "tests/schedule/schedule_machine.h"

namespace schedule {
namespace {

using testing::kMailIds;

class MailList : public ::testing::Test, protected testing::ScheduleMachine {
 protected:
  std::vector<std::string> Read() {
    std::vector<std::string> addresses;
    EXPECT_TRUE(ReadMailList(ports().files, addresses, kMailIds));
    return addresses;
  }
  bool Write(const std::vector<std::string>& addresses) {
    return WriteMailList(ports().files, addresses, kMailIds);
  }
  void Put(std::string_view bytes) { machine.files().Put(kMailIds, bytes); }
  std::string Content() { return machine.files().Content(kMailIds); }
};

TEST_F(MailList, BlankLinesDoNotCount) {
  Put("a@b.c\r\n\r\n   \r\nd@e.f");
  EXPECT_EQ(Read(), (std::vector<std::string>{"a@b.c", "d@e.f"}));
}

TEST_F(MailList, IsAddedToWhatIsThere) {
  Put("d@e.f\r\n");
  std::vector<std::string> addresses = {"a@b.c"};
  EXPECT_TRUE(ReadMailList(ports().files, addresses, kMailIds));
  EXPECT_EQ(addresses, (std::vector<std::string>{"a@b.c", "d@e.f"}));
}

TEST_F(MailList, AMissingFileHoldsNoAddress) {
  EXPECT_EQ(Read(), std::vector<std::string>());
}

TEST_F(MailList, AddressesGatherOldOnesFirst) {
  Put("old@b.c\r\n");
  EXPECT_TRUE(Write({"new@b.c", "old@b.c", "new@b.c"}));
  EXPECT_EQ(Content(), "old@b.c\r\nnew@b.c\r\n");
}

TEST_F(MailList, AddressesCompareExactly) {
  Put("a@b.c\r\n");
  EXPECT_TRUE(Write({"A@b.c", "a@b.c "}));
  EXPECT_EQ(Content(), "a@b.c\r\nA@b.c\r\na@b.c \r\n");
}

TEST_F(MailList, MakesTheFileWhereItIsMissing) {
  EXPECT_TRUE(Write({}));
  EXPECT_TRUE(machine.files().Has(kMailIds));
  EXPECT_EQ(Content(), "");
}

TEST_F(MailList, AWellFormedFileIsWrittenBackByteForByte) {
  const std::string bytes = "a@b.c\r\nodd text \x01\xFF\r\nd@e.f\r\n";
  Put(bytes);
  EXPECT_TRUE(Write(Read()));
  EXPECT_EQ(Content(), bytes);
}

TEST_F(MailList, ALockedFileIsLeftAlone) {
  Put("a@b.c\r\n");
  machine.LockFile(kMailIds);
  std::vector<std::string> addresses = {"x"};
  EXPECT_FALSE(ReadMailList(ports().files, addresses, kMailIds));
  EXPECT_EQ(addresses, std::vector<std::string>{"x"});
  EXPECT_FALSE(Write({"d@e.f"}));
  EXPECT_EQ(Content(), "a@b.c\r\n");
}

}  // namespace
}  // namespace schedule
