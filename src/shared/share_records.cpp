#include "shared/share_records.h"

#include <array>
#include <string>
#include <vector>

#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/profile_store.h"
#include "shared/tokenizer.h"

namespace shared {
namespace {

constexpr std::string_view kDone = "1";
constexpr std::string_view kSeparator = ";";

using ShareRecord = std::array<std::string, 6>;

std::string RecordKey(std::size_t number) {
  return std::string(keys::kSharePrefix).append(std::to_string(number));
}

ShareRecord ReadRecord(ProfileStore& store, std::size_t number) {
  std::string value = store.ReadUserNameIniPlain(RecordKey(number));
  // The writer replaces the value in two steps: an empty one may be there a moment later.
  if (value.empty()) value = store.ReadUserNameIniPlain(RecordKey(number));
  Tokenizer tokens;
  tokens.Init(value);
  tokens.setSeparator(kSeparator);
  ShareRecord record;
  for (std::string& field : record) field = tokens.nextToken();
  return record;
}

std::string Join(const ShareRecord& record) {
  std::string text;
  for (const std::string& field : record) text.append(field).append(kSeparator);
  return text;
}

}  // namespace

void MigrateShareRecords(platform::Platform& machine, AgentState& state) {
  ProfileStore store(machine, state);
  // 1.
  if (store.ReadUserNameIniPlain(keys::kSharesEncrypted) == kDone) return;
  // 2.
  const std::int16_t count = ToInt16(store.ReadUserNameIniPlain(keys::kShareCount)).value_or(0);
  std::vector<ShareRecord> records;
  for (std::size_t number = 1; static_cast<int>(number) <= count; ++number) {
    records.push_back(ReadRecord(store, number));
  }
  // 3.
  for (std::size_t number = 1; number <= records.size(); ++number) {
    store.WriteUserNameIni(RecordKey(number), store.EncryptShareText(Join(records[number - 1])));
  }
  // 4.
  store.WriteUserNameIni(keys::kSharesEncrypted, kDone);
}

}  // namespace shared
