// The registry of the machine in memory.
//
// Gate names "registry.<Function>", about "HKCU\key" or "HKLM\key". Journal: category "registry"
// ("create HKCU\key", "HKCU\key name=value", "flush HKCU\key"; failed calls end in "failed
// <error>").
#pragma once

#include <map>
#include <optional>
#include <string>
#include <string_view>

#include "platform/memory/text.h"
#include "platform/memory/world.h"
#include "platform/registry.h"

namespace platform::memory {

class MemoryRegistry : public Registry {
 public:
  explicit MemoryRegistry(World& world) : world_(world) {}

  RegistryResult Read(Hive hive, std::string_view key, std::string_view name, std::size_t buffer,
                      RegistryAccess access) override;
  std::uint32_t CreateKey(Hive hive, std::string_view key) override;
  std::uint32_t Write(Hive hive, std::string_view key, std::string_view name,
                      const RegistryValue& value) override;
  std::uint32_t Flush(Hive hive, std::string_view key) override;

  // Seeding and looking, past gate and rights. Keys are made where missing.
  void Put(Hive hive, std::string_view key, std::string_view name, const RegistryValue& value);
  void PutText(Hive hive, std::string_view key, std::string_view name, std::string_view text);
  void PutNumber(Hive hive, std::string_view key, std::string_view name, std::uint32_t number);
  void PutKey(Hive hive, std::string_view key);
  void DeleteKey(Hive hive, std::string_view key);
  void DeleteValue(Hive hive, std::string_view key, std::string_view name);
  bool HasKey(Hive hive, std::string_view key) const;
  std::optional<RegistryValue> Value(Hive hive, std::string_view key, std::string_view name) const;
  // The text up to its NUL, "" when there is none; the number, 0 when there is none.
  std::string Text(Hive hive, std::string_view key, std::string_view name) const;
  std::uint32_t Number(Hive hive, std::string_view key, std::string_view name) const;
  // Every key and value, for the comparison of two machines.
  std::string Dump() const;

  // From now on keys of the hive open for reading only (a user without rights).
  void DenyWriting(Hive hive, bool denied = true);

 private:
  using Values = std::map<std::string, RegistryValue, IgnoreCaseLess>;
  using Keys = std::map<std::string, Values, IgnoreCaseLess>;

  Keys& KeysOf(Hive hive) { return hive == Hive::kCurrentUser ? user_ : machine_; }
  const Keys& KeysOf(Hive hive) const { return hive == Hive::kCurrentUser ? user_ : machine_; }
  bool Denied(Hive hive) const {
    return hive == Hive::kCurrentUser ? user_denied_ : machine_denied_;
  }
  bool Fails(std::string_view name, Hive hive, std::string_view key);
  std::uint32_t Note(std::uint32_t error, std::string text);

  World& world_;
  Keys user_;
  Keys machine_;
  bool user_denied_ = false;
  bool machine_denied_ = false;
};

}  // namespace platform::memory
