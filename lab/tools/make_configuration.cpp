// Prints a Configuration.ini in the form that the agent reads: sections as they are, key names
// raised by both shifts of the profile, values raised by the shift of this file.
#include <cstdio>
#include <string>
#include <string_view>

#include "shared/character_shift.h"
#include "shared/configuration_keys.h"
#include "shared/deployment.h"

namespace {

struct Entry {
  std::string_view key;
  std::string_view value;
};

constexpr Entry kProductInfo[] = {
    {shared::config::kProductNumber, "2"},
    {shared::config::kProductName, "Sorvane"},
    {shared::config::kProductInstallationName, "SorvaneE"},
    {shared::config::kProductTreeViewName, "My Sorvane"},
    {shared::config::kProductCaption, "Sorvane Classic"},
    {shared::config::kExeGroup, "SorvaneE"},
    {shared::config::kLanguage, "English"},
};

constexpr Entry kConnectionInfo[] = {
    {shared::config::kDomainName, shared::deployment::kDomainName},
    {shared::config::kIPAddress1, shared::deployment::kIPAddress1},
    {shared::config::kIPAddress2, shared::deployment::kIPAddress2},
    {shared::config::kPort, shared::deployment::kPort},
};

std::string Shifted(std::string_view text, int by) {
  return shared::ShiftCharacters(text, by).text;
}

void PrintSection(std::string_view name) {
  std::printf("[%.*s]\r\n", static_cast<int>(name.size()), name.data());
}

void PrintEntry(std::string_view key, std::string_view value) {
  std::printf("%s=%s\r\n", Shifted(key, shared::kProfileShift + shared::kShareShift).c_str(),
              Shifted(value, shared::kConfigShift).c_str());
}

}  // namespace

int main() {
  PrintSection(shared::config::kProductInfo);
  for (const Entry& entry : kProductInfo) PrintEntry(entry.key, entry.value);
  PrintSection(shared::config::kConnectionInfo);
  for (const Entry& entry : kConnectionInfo) PrintEntry(entry.key, entry.value);
  PrintSection(shared::config::kWebLink);
  for (const auto& link : shared::deployment::kWebLinks) PrintEntry(link.key, link.page);
  return 0;
}
