#include "shared/profile_store.h"

#include "shared/character_shift.h"
#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/paths.h"
#include "shared/trace.h"

namespace shared {
namespace {

// A `Max` of this text stands for "more than is used", whatever is used.
constexpr std::string_view kUnlimitedMax = "1";
constexpr double kUnlimitedHeadRoom = 1073741824.0;

std::string Clean(std::string_view text) {
  return std::string(StripNulls(Trim(text)));
}

// A number that 16 bits do not hold is not taken.
std::int16_t Narrow(std::int32_t number) {
  const auto narrow = static_cast<std::int16_t>(number);
  return narrow == number ? narrow : std::int16_t{0};
}

}  // namespace

ProfileStore::ProfileStore(platform::Platform& machine, AgentState& state)
    : machine_(machine), state_(state) {}

std::string ProfileStore::ReadUserNameIni(std::string_view key) {
  return DecodeStored(ReadUserNameIniPlain(key));
}

std::string ProfileStore::ReadUserNameIniPlain(std::string_view key) {
  return Clean(machine_.profile_files.ReadText(UserNameIni(state_), sections::kRegistry, key));
}

void ProfileStore::WriteUserNameIni(std::string_view key, std::string_view value) {
  machine_.profile_files.WriteText(UserNameIni(state_), sections::kRegistry, key, value);
}

std::string ProfileStore::ReadUserNameProfile(std::string_view key) {
  return machine_.profile_files.ReadText(UserNameIni(state_), sections::kTolvex, key);
}

void ProfileStore::WriteUserNameProfile(std::string_view key, std::string_view value) {
  machine_.profile_files.WriteText(UserNameIni(state_), sections::kTolvex, key, value);
}

std::int16_t ProfileStore::ReadUserNameInt(std::string_view section, std::string_view key) {
  return Narrow(machine_.profile_files.ReadInt(UserNameIni(state_), section, key));
}

std::string ProfileStore::ReadProfileKey(std::string_view section, std::string_view key) {
  return machine_.profile_files.ReadText(ProfileIni(state_), section, key);
}

std::int16_t ProfileStore::ReadProfileInt(std::string_view section, std::string_view key) {
  return Narrow(machine_.profile_files.ReadInt(ProfileIni(state_), section, key));
}

std::string ProfileStore::ReadProfileKeyDecrypted(std::string_view key) {
  return DecodeStored(Clean(ReadProfileKey(sections::kTolvex, key)));
}

QuotaStatus ProfileStore::ReadQuotaStatus() {
  QuotaStatus quota;
  const std::string used = ReadProfileKey(sections::kQuotaStatus, keys::kQuotaUsed);
  if (const auto bytes = ToDouble(used)) quota.used = *bytes;
  const std::string max = ReadProfileKey(sections::kQuotaStatus, keys::kQuotaMax);
  if (Trim(max) == kUnlimitedMax) {
    quota.max = quota.used + kUnlimitedHeadRoom;
  } else if (const auto bytes = ToDouble(max)) {
    quota.max = *bytes;
  }
  return quota;
}

const std::string& ProfileStore::RefreshCurrentUser() {
  // Through a local: decoding pumps messages, and a nested tick must not see half of a name.
  std::string user = ReadUserNameIni(keys::kDefaultUserName);
  state_.CurrentUser = std::move(user);
  return state_.CurrentUser;
}

std::string ProfileStore::EncryptProfileText(std::string_view text) {
  ShiftResult result = ShiftCharacters(text, kProfileShift);
  if (!result.complete) {
    Trace(machine_, state_)
        .WriteTrace("Error encrypting of monitor Reason: Invalid procedure call or argument  5");
  }
  return std::move(result.text);
}

std::string ProfileStore::DecryptProfileText(std::string_view text) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size(); ++at) {
    const ShiftResult shifted = ShiftCharacters(text.substr(at, 1), -kProfileShift);
    if (!shifted.complete) break;
    result += shifted.text;
    machine_.events.Pump();
  }
  return result;
}

std::string ProfileStore::EncryptShareText(std::string_view text) {
  return ShiftCharacters(text, kShareShift).text;
}

std::string ProfileStore::DecryptShareText(std::string_view text) {
  return ShiftCharacters(text, -kShareShift).text;
}

std::string ProfileStore::DecodeStored(const std::string& stored) {
  if (stored.empty()) return stored;
  return Clean(DecryptProfileText(stored));
}

}  // namespace shared
