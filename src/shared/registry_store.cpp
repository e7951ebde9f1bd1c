#include "shared/registry_store.h"

#include <array>

#include "shared/convert.h"
#include "shared/keys.h"
#include "shared/trace.h"
#include "shared/transfer.h"

namespace shared {
namespace {

using platform::Hive;
using platform::RegistryAccess;
using platform::RegistryResult;
using platform::RegistryType;
using platform::RegistryValue;

constexpr std::size_t kAppValueBuffer = 1024;
constexpr std::size_t kTypedBuffer = 255;
constexpr std::string_view kTrue = "TRUE";

// What the system answers when it has no memory left: the one failure of a query that is told to
// the user, all others read as "not set".
constexpr std::array<std::uint32_t, 2> kOutOfMemory = {8, 14};

std::string RootKey(const AgentState& state) {
  return std::string(registry::kRoot).append(state.ProductFolder);
}

std::string OldRootKey(const AgentState& state) {
  return std::string(registry::kOldRoot).append(state.ProductFolder);
}

std::string CleanText(const RegistryValue& value) {
  return std::string(Trim(StripNulls(value.bytes)));
}

bool Succeeded(const RegistryResult& result) {
  return result.key_opened && result.error == platform::kRegistrySuccess;
}

std::string TextOf(const RegistryResult& result) {
  return Succeeded(result) ? CleanText(result.value) : std::string();
}

std::string_view WithoutLeadingBackslash(std::string_view key) {
  if (key.starts_with('\\')) key.remove_prefix(1);
  return key;
}

std::string ValueText(const RegistryValue& value) {
  if (value.type == RegistryType::kNumber) return std::to_string(value.number);
  return std::string(StripNulls(value.bytes));
}

bool IsWritableType(RegistryType type) {
  return type == RegistryType::kText || type == RegistryType::kBinary ||
         type == RegistryType::kNumber;
}

}  // namespace

RegistryValue TextValue(std::string_view text) {
  RegistryValue value{RegistryType::kText, std::string(text), 0};
  value.bytes.push_back('\0');
  return value;
}

RegistryValue NumberValue(std::int32_t number) {
  return {RegistryType::kNumber, {}, static_cast<std::uint32_t>(number)};
}

RegistryStore::RegistryStore(platform::Platform& machine, AgentState& state)
    : machine_(machine), state_(state) {}

std::string RegistryStore::ReadOpenFileMode() {
  return TextOf(machine_.registry.Read(Hive::kLocalMachine, OldRootKey(state_),
                                       registry::kOpenFileMode, kTypedBuffer,
                                       RegistryAccess::kRead));
}

void RegistryStore::WriteOpenFileMode(int mode) {
  CreateAndWrite(Hive::kLocalMachine, OldRootKey(state_), registry::kOpenFileMode,
                 TextValue(std::to_string(mode)));
}

std::string RegistryStore::ReadAppValue(std::string_view name) {
  const RegistryResult result = ReadUserValue(RootKey(state_), name);
  for (const std::uint32_t error : kOutOfMemory) {
    if (result.error == error) {
      machine_.shell.ShowStopBox(
          "Unable to query the registry, reason : " + machine_.locale.SystemErrorText(error),
          state_.ProductCaption);
    }
  }
  if (!result.key_opened) return {};
  std::string text = TextOf(result);
  if (text.empty()) text = TextOf(ReadUserValue(OldRootKey(state_), name));
  return text;
}

void RegistryStore::WriteAppValue(std::string_view value, std::string_view name) {
  CreateAndWrite(Hive::kCurrentUser, RootKey(state_), name, TextValue(value));
}

std::string RegistryStore::ReadFirstTimeUser() {
  RegistryResult result = ReadUserValue(RootKey(state_), registry::kFirstTimeUser);
  if (Succeeded(result) && CleanText(result.value).empty()) {
    result = ReadUserValue(OldRootKey(state_), registry::kFirstTimeUser);
  }
  if (Succeeded(result)) return CleanText(result.value);
  // Whichever root failed, the value is made under the new one.
  WriteAppValue(kTrue, registry::kFirstTimeUser);
  return std::string(kTrue);
}

RegValue RegistryStore::QueryRegValue(Hive hive, std::string_view key, std::string_view name) {
  const RegistryResult result = machine_.registry.Read(hive, WithoutLeadingBackslash(key), name,
                                                       kTypedBuffer, RegistryAccess::kAll);
  if (!result.key_opened) return std::monostate{};
  // Only a text or a binary can be too long for the buffer.
  if (result.error == platform::kRegistryMoreData) return std::string();
  if (result.error != platform::kRegistrySuccess) return std::int32_t{0};
  switch (result.value.type) {
    case RegistryType::kText: {
      std::string text = result.value.bytes;
      if (text.ends_with('\0')) text.pop_back();
      return text;
    }
    case RegistryType::kNumber:
      return static_cast<std::int32_t>(result.value.number);
    case RegistryType::kBinary:
      return result.value.bytes.empty() ? std::uint8_t{0}
                                        : static_cast<std::uint8_t>(result.value.bytes.front());
    case RegistryType::kNone:
      break;
  }
  return std::monostate{};
}

bool RegistryStore::SetRegValue(Hive hive, std::string_view key, std::string_view name,
                                const RegistryValue& value) {
  constexpr std::uint32_t kUnsupportedType = 1629;
  const std::uint32_t error = IsWritableType(value.type)
                                  ? CreateAndWrite(hive, WithoutLeadingBackslash(key), name, value)
                                  : kUnsupportedType;
  if (error == platform::kRegistrySuccess) return true;
  std::string line = "Error in registry set value of ";
  line.append(key).append(" ").append(name).append(" ");
  line.append(ValueText(value)).append(machine_.locale.SystemErrorText(error));
  Trace(machine_, state_).WriteTrace(line);
  return false;
}

void RegistryStore::SetKeyValue(std::string_view key, std::string_view name,
                                const RegistryValue& value) {
  constexpr std::string_view kReason = "Error in SetKeyValue.Reason:";
  const RegistryResult opened =
      machine_.registry.Read(Hive::kCurrentUser, key, name, kTypedBuffer, RegistryAccess::kAll);
  if (!opened.key_opened) {
    TraceError(opened.error, kReason);
    return;
  }
  SetValueEx(key, name, value);
  const std::uint32_t error = machine_.registry.Flush(Hive::kCurrentUser, key);
  if (error != platform::kRegistrySuccess) TraceError(error, kReason);
}

void RegistryStore::SetValueEx(std::string_view key, std::string_view name,
                               const RegistryValue& value) {
  const std::uint32_t error = machine_.registry.Write(Hive::kCurrentUser, key, name, value);
  if (error != platform::kRegistrySuccess) TraceError(error, "Error in SetValueEx.Reason:");
}

std::int16_t RegistryStore::ReadConnectionStatus() {
  const RegValue value =
      QueryRegValue(Hive::kCurrentUser, RootKey(state_).append(registry::kConnectionParameters),
                    registry::kConnectionStatus);
  std::string text;
  if (const auto* number = std::get_if<std::int32_t>(&value)) text = std::to_string(*number);
  if (const auto* stored = std::get_if<std::string>(&value)) text = *stored;
  return ToInt16(text).value_or(0);
}

std::string RegistryStore::ReadApplicationVersion() {
  const RegValue value = QueryRegValue(
      Hive::kCurrentUser, RootKey(state_).append(registry::kApplication), registry::kVersion);
  const auto* text = std::get_if<std::string>(&value);
  return text == nullptr ? std::string() : *text;
}

void RegistryStore::WriteConnectionStatus(std::int32_t status) {
  SetRegValue(Hive::kCurrentUser, RootKey(state_).append(registry::kConnectionParameters),
              registry::kConnectionStatus, NumberValue(status));
}

void RegistryStore::ResetDialUpAutoConnect() {
  const std::string entry = clsTransfer(machine_, state_).Trf_ReadUserProfile(keys::kIspName);
  SetKeyValue(std::string(registry::kDialUpProfiles).append(entry), registry::kDialUpAutoConnect,
              NumberValue(1));
  machine_.internet.RefreshSettings();
}

RegistryResult RegistryStore::ReadUserValue(std::string_view key, std::string_view name) {
  return machine_.registry.Read(Hive::kCurrentUser, key, name, kAppValueBuffer,
                                RegistryAccess::kRead);
}

std::uint32_t RegistryStore::CreateAndWrite(Hive hive, std::string_view key, std::string_view name,
                                            const RegistryValue& value) {
  const std::uint32_t error = machine_.registry.CreateKey(hive, key);
  if (error != platform::kRegistrySuccess) return error;
  return machine_.registry.Write(hive, key, name, value);
}

void RegistryStore::TraceError(std::uint32_t error, std::string_view reason) {
  Trace(machine_, state_)
      .WriteTrace(std::string("Error No:")
                      .append(std::to_string(error))
                      .append(reason)
                      .append(machine_.locale.SystemErrorText(error)));
}

}  // namespace shared
