#include "platform/memory/memory_registry.h"

namespace platform::memory {
namespace {

std::string PathOf(Hive hive, std::string_view key) {
  return (hive == Hive::kCurrentUser ? "HKCU\\" : "HKLM\\") + std::string(key);
}

std::string Readable(const RegistryValue& value) {
  if (value.type == RegistryType::kNumber) return std::to_string(value.number);
  if (value.type == RegistryType::kText) return value.bytes.substr(0, value.bytes.find('\0'));
  constexpr char kDigits[] = "0123456789abcdef";
  std::string hex;
  for (const char byte : value.bytes) {
    hex += kDigits[static_cast<unsigned char>(byte) >> 4];
    hex += kDigits[byte & 0xF];
  }
  return hex;
}

std::size_t SizeOf(const RegistryValue& value) {
  return value.type == RegistryType::kNumber ? sizeof(std::uint32_t) : value.bytes.size();
}

}  // namespace

bool MemoryRegistry::Fails(std::string_view name, Hive hive, std::string_view key) {
  return world_.gate.on() && world_.gate.Fails(name, PathOf(hive, key));
}

std::uint32_t MemoryRegistry::Note(std::uint32_t error, std::string text) {
  if (error != kRegistrySuccess) text += " failed " + std::to_string(error);
  world_.Note("registry", std::move(text));
  return error;
}

RegistryResult MemoryRegistry::Read(Hive hive, std::string_view key, std::string_view name,
                                    std::size_t buffer, RegistryAccess access) {
  if (Fails("registry.Read", hive, key)) return {false, kRegistryAccessDenied, {}};
  const auto found = KeysOf(hive).find(key);
  if (found == KeysOf(hive).end()) return {false, kRegistryNotFound, {}};
  if (access == RegistryAccess::kAll && Denied(hive)) return {false, kRegistryAccessDenied, {}};
  const auto value = found->second.find(name);
  if (value == found->second.end()) return {true, kRegistryNotFound, {}};
  if (SizeOf(value->second) > buffer) return {true, kRegistryMoreData, {}};
  return {true, kRegistrySuccess, value->second};
}

std::uint32_t MemoryRegistry::CreateKey(Hive hive, std::string_view key) {
  std::uint32_t error = kRegistrySuccess;
  if (Fails("registry.CreateKey", hive, key) || Denied(hive)) {
    error = kRegistryAccessDenied;
  } else if (HasKey(hive, key)) {
    return kRegistrySuccess;
  } else {
    PutKey(hive, key);
  }
  return Note(error, "create " + PathOf(hive, key));
}

std::uint32_t MemoryRegistry::Write(Hive hive, std::string_view key, std::string_view name,
                                    const RegistryValue& value) {
  std::uint32_t error = kRegistrySuccess;
  if (Fails("registry.Write", hive, key)) {
    error = kRegistryAccessDenied;
  } else if (!HasKey(hive, key)) {
    error = kRegistryNotFound;
  } else if (Denied(hive)) {
    error = kRegistryAccessDenied;
  } else {
    Put(hive, key, name, value);
  }
  return Note(error, PathOf(hive, key) + " " + std::string(name) + "=" + Readable(value));
}

std::uint32_t MemoryRegistry::Flush(Hive hive, std::string_view key) {
  std::uint32_t error = kRegistrySuccess;
  if (Fails("registry.Flush", hive, key)) {
    error = kRegistryAccessDenied;
  } else if (!HasKey(hive, key)) {
    error = kRegistryNotFound;
  }
  return Note(error, "flush " + PathOf(hive, key));
}

void MemoryRegistry::Put(Hive hive, std::string_view key, std::string_view name,
                         const RegistryValue& value) {
  PutKey(hive, key);
  KeysOf(hive).find(key)->second.insert_or_assign(std::string(name), value);
}

void MemoryRegistry::PutText(Hive hive, std::string_view key, std::string_view name,
                             std::string_view text) {
  Put(hive, key, name, {RegistryType::kText, std::string(text) + '\0', 0});
}

void MemoryRegistry::PutNumber(Hive hive, std::string_view key, std::string_view name,
                               std::uint32_t number) {
  Put(hive, key, name, {RegistryType::kNumber, {}, number});
}

void MemoryRegistry::PutKey(Hive hive, std::string_view key) {
  Keys& keys = KeysOf(hive);
  for (std::size_t end = key.find('\\'); end != std::string_view::npos;
       end = key.find('\\', end + 1)) {
    keys.try_emplace(std::string(key.substr(0, end)));
  }
  keys.try_emplace(std::string(key));
}

void MemoryRegistry::DeleteKey(Hive hive, std::string_view key) {
  const std::string below = std::string(key) + "\\";
  std::erase_if(KeysOf(hive), [&](const auto& entry) {
    const std::string_view path = entry.first;
    return EqualIgnoreCase(path, key) || EqualIgnoreCase(path.substr(0, below.size()), below);
  });
}

void MemoryRegistry::DeleteValue(Hive hive, std::string_view key, std::string_view name) {
  const auto found = KeysOf(hive).find(key);
  if (found == KeysOf(hive).end()) return;
  const auto value = found->second.find(name);
  if (value != found->second.end()) found->second.erase(value);
}

bool MemoryRegistry::HasKey(Hive hive, std::string_view key) const {
  return KeysOf(hive).find(key) != KeysOf(hive).end();
}

std::optional<RegistryValue> MemoryRegistry::Value(Hive hive, std::string_view key,
                                                   std::string_view name) const {
  const auto found = KeysOf(hive).find(key);
  if (found == KeysOf(hive).end()) return std::nullopt;
  const auto value = found->second.find(name);
  if (value == found->second.end()) return std::nullopt;
  return value->second;
}

std::string MemoryRegistry::Text(Hive hive, std::string_view key, std::string_view name) const {
  const std::optional<RegistryValue> value = Value(hive, key, name);
  return value ? value->bytes.substr(0, value->bytes.find('\0')) : std::string();
}

std::uint32_t MemoryRegistry::Number(Hive hive, std::string_view key, std::string_view name) const {
  const std::optional<RegistryValue> value = Value(hive, key, name);
  return value ? value->number : 0;
}

std::string MemoryRegistry::Dump() const {
  std::string dump;
  for (const Hive hive : {Hive::kCurrentUser, Hive::kLocalMachine}) {
    for (const auto& [key, values] : KeysOf(hive)) {
      dump += PathOf(hive, key) + "\n";
      for (const auto& [name, value] : values) dump += "  " + name + "=" + Readable(value) + "\n";
    }
  }
  return dump;
}

void MemoryRegistry::DenyWriting(Hive hive, bool denied) {
  (hive == Hive::kCurrentUser ? user_denied_ : machine_denied_) = denied;
}

}  // namespace platform::memory
