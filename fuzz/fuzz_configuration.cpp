// Configuration.ini. Input: a value, a line end, then a whole file.
#include "fuzz/check.h"
#include "platform/memory/machine.h"
#include "shared/configuration.h"
#include "shared/configuration_keys.h"
#include "shared/convert.h"
#include "shared/deployment.h"

namespace {

constexpr std::string_view kPath = "C:\\Sorvane\\Configuration.ini";
constexpr std::string_view kKeys[] = {shared::config::kProductNumber, shared::config::kProductName,
                                      shared::config::kLanguage};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  std::string_view file = fuzz::Text(data, size);
  const std::string_view value = fuzz::Take(file, '\n');
  platform::memory::Machine machine;
  shared::AgentState state;
  state.InstallFolder = "C:\\Sorvane";
  const auto read = [&](std::string_view section, std::string_view key) {
    const std::string text = ReadConfigValue(machine.platform(), state, section, key);
    fuzz::Check(text.size() < platform::ProfileFiles::kBuffer);
    fuzz::Check(text.find('\0') == std::string::npos && !text.starts_with(' '));
    return text;
  };

  // Any file.
  machine.files().Put(kPath, file);
  for (const std::string_view key : kKeys) read(shared::config::kProductInfo, key);
  for (const auto& link : shared::deployment::kWebLinks) read(shared::config::kWebLink, link.key);

  // Any stored value.
  machine.files().Put(kPath, "[ProductInfo]\r\n" +
                                 shared::ScrambleConfigKey(shared::config::kLanguage) + "=" +
                                 std::string(value) + "\r\n");
  read(shared::config::kProductInfo, shared::config::kLanguage);
  return 0;
}
