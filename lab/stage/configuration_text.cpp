#include "lab/stage/configuration_text.h"

#include <string_view>

#include "shared/character_shift.h"
#include "shared/configuration_keys.h"
#include "shared/deployment.h"

namespace lab {
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

void AddSection(std::string& text, std::string_view name) {
  text += "[" + std::string(name) + "]\r\n";
}

void AddEntry(std::string& text, std::string_view key, std::string_view value) {
  text += Shifted(key, shared::kProfileShift + shared::kShareShift) + "=" +
          Shifted(value, shared::kConfigShift) + "\r\n";
}

}  // namespace

std::string ConfigurationText() {
  std::string text;
  AddSection(text, shared::config::kProductInfo);
  for (const Entry& entry : kProductInfo) AddEntry(text, entry.key, entry.value);
  AddSection(text, shared::config::kConnectionInfo);
  for (const Entry& entry : kConnectionInfo) AddEntry(text, entry.key, entry.value);
  AddSection(text, shared::config::kWebLink);
  for (const auto& link : shared::deployment::kWebLinks) AddEntry(text, link.key, link.page);
  return text;
}

}  // namespace lab
