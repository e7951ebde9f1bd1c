#include "agent/product_config.h"

#include <string>
#include <string_view>

#include "shared/configuration.h"
#include "shared/configuration_keys.h"
#include "shared/convert.h"
#include "shared/deployment.h"
#include "shared/file_names.h"
#include "shared/paths.h"

namespace agent {
namespace {

using shared::AgentState;
using shared::WebLinks;
namespace config = shared::config;
namespace deployment = shared::deployment;

struct TextKey {
  std::string_view section;
  std::string_view key;
  std::string AgentState::*field;
};

constexpr TextKey kTextKeys[] = {
    {config::kProductInfo, config::kProductName, &AgentState::ProductName},
    {config::kProductInfo, config::kProductInstallationName, &AgentState::ProductFolder},
    {config::kProductInfo, config::kProductTreeViewName, &AgentState::ProductTreeViewName},
    {config::kProductInfo, config::kProductCaption, &AgentState::ProductCaption},
    {config::kProductInfo, config::kExeGroup, &AgentState::ExeGroup},
    {config::kProductInfo, config::kLanguage, &AgentState::Language},
    {config::kConnectionInfo, config::kDomainName, &AgentState::DomainName},
    {config::kConnectionInfo, config::kIPAddress1, &AgentState::PrimaryServerAddress},
    {config::kConnectionInfo, config::kIPAddress2, &AgentState::SecondaryServerAddress},
    {config::kConnectionInfo, config::kPort, &AgentState::DefaultPort},
};

// In the order of the deployment's pages.
constexpr std::string WebLinks::*kLinkFields[] = {
    &WebLinks::firewall,
    &WebLinks::upgrade,
    &WebLinks::account_upgrade,
    &WebLinks::login,
    &WebLinks::forgotten_password,
    &WebLinks::features,
    &WebLinks::signup,
    &WebLinks::update,
    &WebLinks::support,
    &WebLinks::setup,
    &WebLinks::promote,
    &WebLinks::website,
};
static_assert(std::size(kLinkFields) == std::size(deployment::kWebLinks));

struct FixedText {
  std::string AgentState::*field;
  std::string_view text;
};

constexpr std::int16_t kThisProduct = 2;
constexpr FixedText kFixedTexts[] = {
    {&AgentState::PrimaryServerAddress, deployment::kIPAddress1},
    {&AgentState::SecondaryServerAddress, deployment::kIPAddress2},
    {&AgentState::DefaultPort, deployment::kPort},
    {&AgentState::DomainName, deployment::kDomainName},
    {&AgentState::ProductName, "Sorvane"},
    {&AgentState::ProductFolder, "SorvaneE"},
    {&AgentState::ProductTreeViewName, "My Sorvane"},
    {&AgentState::ProductCaption, "Sorvane Classic"},
    {&AgentState::ExeGroup, "SorvaneE"},
};

void ReadLinks(platform::Platform& machine, AgentState& state) {
  for (std::size_t i = 0; i < std::size(kLinkFields); ++i) {
    const deployment::WebLink& link = deployment::kWebLinks[i];
    std::string page = shared::ReadConfigValue(machine, state, config::kWebLink, link.key);
    state.links.*kLinkFields[i] = page.empty() ? std::string(link.page) : std::move(page);
  }
}

}  // namespace

bool LoadProductConfig(platform::Platform& machine, AgentState& state) {
  const auto file = shared::InInstallFolder(state, shared::files::kConfigurationIni);
  if (!machine.files.Exists(file)) return false;
  const auto number = shared::ToInt16(
      shared::ReadConfigValue(machine, state, config::kProductInfo, config::kProductNumber));
  if (number) state.ProductNumber = *number;
  for (const TextKey& row : kTextKeys) {
    state.*row.field = shared::ReadConfigValue(machine, state, row.section, row.key);
  }
  ReadLinks(machine, state);
  // The identity of this build is constant: the file decides the language and the links only.
  state.ProductNumber = kThisProduct;
  for (const FixedText& row : kFixedTexts) state.*row.field = row.text;

  return !state.ProductName.empty() && !state.ProductFolder.empty() &&
         !state.ProductTreeViewName.empty() && !state.ProductCaption.empty() &&
         state.ProductNumber != 0;
}

}  // namespace agent
