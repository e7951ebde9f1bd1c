// Registry values of the product, below Software\Bellwick-Labs\<ProductFolder> unless said
// otherwise.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <variant>

#include "platform/platform.h"
#include "shared/agent_state.h"

namespace shared {

// monostate: the key is missing. A failed query of a text gives "", of a number 0.
using RegValue = std::variant<std::monostate, std::string, std::int32_t, std::uint8_t>;

// A text with the NUL that the registry keeps after it, and a 4-byte number.
platform::RegistryValue TextValue(std::string_view text);
platform::RegistryValue NumberValue(std::int32_t number);

class RegistryStore {
 public:
  RegistryStore(platform::Platform& machine, AgentState& state);

  // `OpenFileMode` of Software\<ProductFolder> below HKEY_LOCAL_MACHINE, as decimal text.
  std::string ReadOpenFileMode();
  void WriteOpenFileMode(int mode);

  // A text of the product's root; when empty, of the older root Software\<ProductFolder>. "" when
  // the first root is missing: the old one is not tried then.
  std::string ReadAppValue(std::string_view name);
  void WriteAppValue(std::string_view value, std::string_view name);

  // `FirstTimeUser`; made "TRUE" where it is missing.
  std::string ReadFirstTimeUser();

  // Generic typed read; one leading backslash of `key` is dropped.
  RegValue QueryRegValue(platform::Hive hive, std::string_view key, std::string_view name);
  // Generic typed write; makes the key. A failure is traced and gives false.
  bool SetRegValue(platform::Hive hive, std::string_view key, std::string_view name,
                   const platform::RegistryValue& value);
  // Sets a value of a key that must exist below HKEY_CURRENT_USER and flushes it. Errors are
  // traced.
  void SetKeyValue(std::string_view key, std::string_view name,
                   const platform::RegistryValue& value);

  // `Status` of `Connection Parameters`: 0 logged out, 1 or 2 logged in. 0 when missing.
  std::int16_t ReadConnectionStatus();
  void WriteConnectionStatus(std::int32_t status);

  // `Version` of `Application`: the installed version; "" when missing.
  std::string ReadApplicationVersion();

  // Makes the dial-up entry of the profile's `ISPName` connect by itself, and has the system's
  // internet settings read anew.
  void ResetDialUpAutoConnect();

 private:
  platform::RegistryResult ReadUserValue(std::string_view key, std::string_view name);
  // Returns 0 or the error of making the key or of writing.
  std::uint32_t CreateAndWrite(platform::Hive hive, std::string_view key, std::string_view name,
                               const platform::RegistryValue& value);
  // Writes one value of an open key of SetKeyValue.
  void SetValueEx(std::string_view key, std::string_view name,
                  const platform::RegistryValue& value);
  void TraceError(std::uint32_t error, std::string_view reason);

  platform::Platform& machine_;
  AgentState& state_;
};

}  // namespace shared
