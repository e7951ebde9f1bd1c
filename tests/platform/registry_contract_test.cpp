// The registry: types, buffers and the numbers of errors.
#include "tests/platform/contract_test.h"

namespace {

using platform::Hive;
using platform::RegistryAccess;
using platform::RegistryResult;
using platform::RegistryType;
using platform::RegistryValue;

RegistryValue Text(std::string bytes) {
  return {.type = RegistryType::kText, .bytes = std::move(bytes)};
}

RegistryValue Number(std::uint32_t number) {
  return {.type = RegistryType::kNumber, .bytes = "", .number = number};
}

class RegistryContract : public ContractTest {
 protected:
  static constexpr std::size_t kBuffer = 255;

  platform::Registry& registry() { return ports().registry; }

  RegistryResult Read(const std::string& name, std::size_t buffer = kBuffer,
                      RegistryAccess access = RegistryAccess::kRead) {
    return registry().Read(Hive::kCurrentUser, key_, name, buffer, access);
  }

  std::uint32_t Write(const std::string& name, const RegistryValue& value) {
    return registry().Write(Hive::kCurrentUser, key_, name, value);
  }

  std::uint32_t CreateKey() { return registry().CreateKey(Hive::kCurrentUser, key_); }

  const std::string key_ = machine_->RegistryKey();
};

TEST_F(RegistryContract, TellsAMissingKeyFromAMissingValue) {
  RegistryResult result = Read("Status");
  EXPECT_FALSE(result.key_opened);
  EXPECT_EQ(result.error, platform::kRegistryNotFound);
  ASSERT_EQ(CreateKey(), platform::kRegistrySuccess);
  result = Read("Status");
  EXPECT_TRUE(result.key_opened);
  EXPECT_EQ(result.error, platform::kRegistryNotFound);
}

TEST_F(RegistryContract, MakesAKeyWithItsParentsAndAgain) {
  EXPECT_EQ(registry().CreateKey(Hive::kCurrentUser, key_ + "\\A\\B c"), 0u);
  EXPECT_EQ(registry().CreateKey(Hive::kCurrentUser, key_ + "\\A\\B c"), 0u);
  EXPECT_TRUE(registry()
                  .Read(Hive::kCurrentUser, key_ + "\\A", "x", kBuffer, RegistryAccess::kRead)
                  .key_opened);
}

TEST_F(RegistryContract, KeepsTextWithItsNuls) {
  ASSERT_EQ(CreateKey(), 0u);
  for (const std::string& bytes : {std::string("TRUE\0", 5), std::string("\0", 1),
                                   std::string("a\0b\0", 4), std::string("\xE4\xDF\0", 3)}) {
    EXPECT_EQ(Write("Text", Text(bytes)), 0u);
    const RegistryResult result = Read("Text");
    EXPECT_EQ(result.error, 0u);
    EXPECT_EQ(result.value.type, RegistryType::kText);
    EXPECT_EQ(result.value.bytes, bytes);
    EXPECT_EQ(machine_->RegistryValueBytes(key_, "Text")->bytes, bytes);
  }
}

TEST_F(RegistryContract, KeepsNumbers) {
  ASSERT_EQ(CreateKey(), 0u);
  for (const std::uint32_t number : {0u, 1u, 2u, 0x80000000u, 0xFFFFFFFFu}) {
    EXPECT_EQ(Write("Status", Number(number)), 0u);
    const RegistryResult result = Read("Status");
    EXPECT_EQ(result.error, 0u);
    EXPECT_EQ(result.value.type, RegistryType::kNumber);
    EXPECT_EQ(result.value.number, number);
  }
  EXPECT_EQ(machine_->RegistryValueBytes(key_, "Status")->bytes, "\xFF\xFF\xFF\xFF");
}

TEST_F(RegistryContract, KeepsBytes) {
  ASSERT_EQ(CreateKey(), 0u);
  const std::string bytes("\0\1\xFF\x80", 4);
  EXPECT_EQ(Write("Bytes", {.type = RegistryType::kBinary, .bytes = bytes}), 0u);
  RegistryResult result = Read("Bytes");
  EXPECT_EQ(result.value.type, RegistryType::kBinary);
  EXPECT_EQ(result.value.bytes, bytes);
  EXPECT_EQ(Write("Bytes", {.type = RegistryType::kBinary, .bytes = ""}), 0u);
  result = Read("Bytes");
  EXPECT_EQ(result.error, 0u);
  EXPECT_EQ(result.value.bytes, "");
}

TEST_F(RegistryContract, ChangesTheTypeWithTheValue) {
  ASSERT_EQ(CreateKey(), 0u);
  EXPECT_EQ(Write("Status", Number(1)), 0u);
  EXPECT_EQ(Write("Status", Text(std::string("2\0", 2))), 0u);
  const RegistryResult result = Read("Status");
  EXPECT_EQ(result.value.type, RegistryType::kText);
  EXPECT_EQ(result.value.bytes, std::string("2\0", 2));
}

TEST_F(RegistryContract, FillsTheBufferToTheLastByteAndNotBeyond) {
  ASSERT_EQ(CreateKey(), 0u);
  const std::string fits = std::string(254, 'x') + '\0';
  EXPECT_EQ(Write("Text", Text(fits)), 0u);
  EXPECT_EQ(Read("Text").value.bytes, fits);
  EXPECT_EQ(Read("Text", 254).error, platform::kRegistryMoreData);
  EXPECT_EQ(Write("Text", Text("x" + fits)), 0u);
  const RegistryResult result = Read("Text");
  EXPECT_TRUE(result.key_opened);
  EXPECT_EQ(result.error, platform::kRegistryMoreData);
  EXPECT_EQ(Read("Text", 1024).value.bytes, "x" + fits);
}

TEST_F(RegistryContract, NeedsFourBytesForANumber) {
  ASSERT_EQ(CreateKey(), 0u);
  EXPECT_EQ(Write("Status", Number(7)), 0u);
  EXPECT_EQ(Read("Status", 4).value.number, 7u);
  EXPECT_EQ(Read("Status", 3).error, platform::kRegistryMoreData);
}

TEST_F(RegistryContract, GivesOtherTypesByTheirNumbers) {
  constexpr std::uint32_t kExpandable = 2;
  constexpr std::uint32_t kLongNumber = 11;
  machine_->PutRegistryValue(key_, "Path", kExpandable, std::string("%X%\0", 4));
  machine_->PutRegistryValue(key_, "Long", kLongNumber, std::string("\1\0\0\0\0\0\0\0", 8));
  EXPECT_EQ(static_cast<std::uint32_t>(Read("Path").value.type), kExpandable);
  EXPECT_EQ(Read("Path").value.bytes, std::string("%X%\0", 4));
  EXPECT_EQ(static_cast<std::uint32_t>(Read("Long").value.type), kLongNumber);
  EXPECT_EQ(Read("Long").value.bytes.size(), 8u);
}

TEST_F(RegistryContract, ReadsWhatAnotherProgramWrote) {
  machine_->PutRegistryValue(key_, "Status", 4, std::string("\2\0\0\0", 4));
  EXPECT_EQ(Read("Status").value.number, 2u);
  machine_->PutRegistryValue(key_, "Status", 4, std::string("\3\0\0\0", 4));
  EXPECT_EQ(Read("Status").value.number, 3u);
}

TEST_F(RegistryContract, FindsKeysAndNamesWithoutRegardToCase) {
  machine_->PutRegistryValue(key_ + "\\Sub Key", "StAtUs", 4, std::string("\2\0\0\0", 4));
  const RegistryResult result = registry().Read(Hive::kCurrentUser, key_ + "\\sUB kEY", "sTaTuS",
                                                kBuffer, RegistryAccess::kRead);
  EXPECT_EQ(result.value.number, 2u);
}

TEST_F(RegistryContract, KeepsTheValueWithoutAName) {
  ASSERT_EQ(CreateKey(), 0u);
  EXPECT_EQ(Write("", Text(std::string("d\0", 2))), 0u);
  EXPECT_EQ(Read("").value.bytes, std::string("d\0", 2));
}

TEST_F(RegistryContract, ReadsWithAllRightsWhereTheUserHasThem) {
  ASSERT_EQ(CreateKey(), 0u);
  EXPECT_EQ(Write("Status", Number(1)), 0u);
  const RegistryResult result = Read("Status", kBuffer, RegistryAccess::kAll);
  EXPECT_TRUE(result.key_opened);
  EXPECT_EQ(result.value.number, 1u);
}

TEST_F(RegistryContract, WritesOnlyIntoKeysThatExist) {
  EXPECT_EQ(Write("Status", Number(1)), platform::kRegistryNotFound);
  EXPECT_FALSE(Read("Status").key_opened);
}

TEST_F(RegistryContract, FlushesKeysThatExist) {
  EXPECT_EQ(registry().Flush(Hive::kCurrentUser, key_), platform::kRegistryNotFound);
  ASSERT_EQ(CreateKey(), 0u);
  EXPECT_EQ(registry().Flush(Hive::kCurrentUser, key_), 0u);
}

TEST_F(RegistryContract, KeepsTheHivesApart) {
  ASSERT_EQ(CreateKey(), 0u);
  EXPECT_EQ(
      registry().Read(Hive::kLocalMachine, key_, "Status", kBuffer, RegistryAccess::kRead).error,
      platform::kRegistryNotFound);
}

}  // namespace
