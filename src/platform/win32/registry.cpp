#include "platform/win32/registry.h"

#include <windows.h>

#include <cstring>

#include "platform/win32/scoped.h"

namespace platform::win32 {
namespace {

static_assert(kRegistryNotFound == ERROR_FILE_NOT_FOUND);
static_assert(kRegistryAccessDenied == ERROR_ACCESS_DENIED);
static_assert(kRegistryMoreData == ERROR_MORE_DATA);

HKEY RootOf(Hive hive) {
  return hive == Hive::kCurrentUser ? HKEY_CURRENT_USER : HKEY_LOCAL_MACHINE;
}

struct OpenedKey {
  ScopedRegistryKey key;
  std::uint32_t error = kRegistrySuccess;
};

OpenedKey Open(Hive hive, std::string_view path, REGSAM access) {
  HKEY key = nullptr;
  const LSTATUS status = RegOpenKeyExA(RootOf(hive), std::string(path).c_str(), 0, access, &key);
  return {ScopedRegistryKey(status == ERROR_SUCCESS ? key : nullptr),
          static_cast<std::uint32_t>(status)};
}

RegistryValue ToValue(DWORD type, std::string bytes) {
  RegistryValue value;
  value.type = static_cast<RegistryType>(type);
  if (value.type != RegistryType::kNumber) {
    value.bytes = std::move(bytes);
  } else if (bytes.size() == sizeof(value.number)) {
    std::memcpy(&value.number, bytes.data(), sizeof(value.number));
  }
  return value;
}

std::string ToBytes(const RegistryValue& value) {
  if (value.type != RegistryType::kNumber) return value.bytes;
  std::string bytes(sizeof(value.number), '\0');
  std::memcpy(bytes.data(), &value.number, sizeof(value.number));
  return bytes;
}

}  // namespace

RegistryResult Registry::Read(Hive hive, std::string_view key, std::string_view name,
                              std::size_t buffer, RegistryAccess access) {
  const OpenedKey opened =
      Open(hive, key, access == RegistryAccess::kAll ? KEY_ALL_ACCESS : KEY_READ);
  RegistryResult result;
  result.key_opened = static_cast<bool>(opened.key);
  result.error = opened.error;
  if (!result.key_opened) return result;

  std::string bytes(buffer, '\0');
  DWORD type = REG_NONE;
  DWORD size = static_cast<DWORD>(bytes.size());
  result.error = static_cast<std::uint32_t>(
      RegQueryValueExA(opened.key.get(), std::string(name).c_str(), nullptr, &type,
                       reinterpret_cast<BYTE*>(bytes.data()), &size));
  if (result.error != kRegistrySuccess) return result;
  bytes.resize(size);
  result.value = ToValue(type, std::move(bytes));
  return result;
}

std::uint32_t Registry::CreateKey(Hive hive, std::string_view key) {
  HKEY created = nullptr;
  const LSTATUS status =
      RegCreateKeyExA(RootOf(hive), std::string(key).c_str(), 0, nullptr, REG_OPTION_NON_VOLATILE,
                      KEY_SET_VALUE, nullptr, &created, nullptr);
  const ScopedRegistryKey owner(status == ERROR_SUCCESS ? created : nullptr);
  return static_cast<std::uint32_t>(status);
}

std::uint32_t Registry::Write(Hive hive, std::string_view key, std::string_view name,
                              const RegistryValue& value) {
  const OpenedKey opened = Open(hive, key, KEY_SET_VALUE);
  if (!opened.key) return opened.error;
  const std::string bytes = ToBytes(value);
  return static_cast<std::uint32_t>(RegSetValueExA(
      opened.key.get(), std::string(name).c_str(), 0, static_cast<DWORD>(value.type),
      reinterpret_cast<const BYTE*>(bytes.data()), static_cast<DWORD>(bytes.size())));
}

std::uint32_t Registry::Flush(Hive hive, std::string_view key) {
  const OpenedKey opened = Open(hive, key, KEY_QUERY_VALUE);
  if (!opened.key) return opened.error;
  return static_cast<std::uint32_t>(RegFlushKey(opened.key.get()));
}

}  // namespace platform::win32
