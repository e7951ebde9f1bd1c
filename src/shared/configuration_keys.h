// Sections and keys of Configuration.ini, in the order in which start-up reads them.
#pragma once

#include <string_view>

namespace shared::config {

inline constexpr std::string_view kProductInfo = "ProductInfo";
inline constexpr std::string_view kProductNumber = "ProductNumber";
inline constexpr std::string_view kProductName = "ProductName";
inline constexpr std::string_view kProductInstallationName = "ProductInstallationName";
inline constexpr std::string_view kProductTreeViewName = "ProductTreeViewName";
inline constexpr std::string_view kProductCaption = "ProductCaption";
inline constexpr std::string_view kExeGroup = "ExeGroup";
inline constexpr std::string_view kLanguage = "Language";

inline constexpr std::string_view kConnectionInfo = "ConnectionInfo";
inline constexpr std::string_view kDomainName = "DomainName";
inline constexpr std::string_view kIPAddress1 = "IPAddress1";
inline constexpr std::string_view kIPAddress2 = "IPAddress2";
inline constexpr std::string_view kPort = "Port";

inline constexpr std::string_view kWebLink = "WebLink";
inline constexpr std::string_view kFirewallLink = "FirewallLink";
inline constexpr std::string_view kUpgradeLink = "UpgradeLink";
inline constexpr std::string_view kAccountUpgradeLink = "AccountUpgradeLink";
inline constexpr std::string_view kLoginLink = "LoginLink";
inline constexpr std::string_view kForgotPwdLink = "ForgotPwdLink";
inline constexpr std::string_view kFeaturesLink = "FeaturesLink";
inline constexpr std::string_view kSignupLink = "SignupLink";
inline constexpr std::string_view kUpdateLink = "UpdateLink";
inline constexpr std::string_view kSupportLink = "SupportLink";
inline constexpr std::string_view kSetupLink = "SetupLink";
inline constexpr std::string_view kPromoteLink = "PromoteLink";
inline constexpr std::string_view kWebsiteLink = "WebsiteLink";

}  // namespace shared::config
