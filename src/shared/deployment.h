// The constants of this deployment: servers and pages, all in one place.
#pragma once

#include <string_view>

#include "shared/configuration_keys.h"

namespace shared::deployment {

// They stand in for whatever Configuration.ini says of the connection.
inline constexpr std::string_view kIPAddress1 = "192.0.2.10";
inline constexpr std::string_view kIPAddress2 = "192.0.2.20";
inline constexpr std::string_view kPort = "11905";
inline constexpr std::string_view kDomainName = "backup.sorvane.example";

// The pages that a staged Configuration.ini names.
struct WebLink {
  std::string_view key;
  std::string_view page;
};
inline constexpr WebLink kWebLinks[] = {
    {config::kFirewallLink, "https://backup.sorvane.example/help/firewall"},
    {config::kUpgradeLink, "https://backup.sorvane.example/upgrade"},
    {config::kAccountUpgradeLink, "https://backup.sorvane.example/account/upgrade"},
    {config::kLoginLink, "https://backup.sorvane.example/login"},
    {config::kForgotPwdLink, "https://backup.sorvane.example/login/forgotten-password"},
    {config::kFeaturesLink, "https://backup.sorvane.example/features"},
    {config::kSignupLink, "https://backup.sorvane.example/signup"},
    {config::kUpdateLink, "https://backup.sorvane.example/update"},
    {config::kSupportLink, "https://backup.sorvane.example/support"},
    {config::kSetupLink, "https://backup.sorvane.example/download/setup"},
    {config::kPromoteLink, "https://backup.sorvane.example/recommend"},
    {config::kWebsiteLink, "https://backup.sorvane.example/"},
};

}  // namespace shared::deployment
