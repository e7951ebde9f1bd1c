// The registry of Windows.
#pragma once

#include "platform/registry.h"

namespace platform::win32 {

class Registry final : public platform::Registry {
 public:
  RegistryResult Read(Hive hive, std::string_view key, std::string_view name, std::size_t buffer,
                      RegistryAccess access) override;
  std::uint32_t CreateKey(Hive hive, std::string_view key) override;
  std::uint32_t Write(Hive hive, std::string_view key, std::string_view name,
                      const RegistryValue& value) override;
  std::uint32_t Flush(Hive hive, std::string_view key) override;
};

}  // namespace platform::win32
