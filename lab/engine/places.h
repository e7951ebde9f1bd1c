// Where the engine's programs find the files of an installation. The folders are told anew here,
// apart from the agent's own code, so that a mistake on one side shows as a disagreement.
#pragma once

#include <string>
#include <string_view>

#include "platform/files.h"
#include "platform/profile_files.h"

namespace lab {

// The ports that the stand-ins need. They never show anything and use no registry.
struct Ports {
  platform::Files& files;
  platform::ProfileFiles& profile_files;
};

struct Places {
  std::string install_folder;               // without a final backslash
  std::string product_folder = "SorvaneE";  // first word of every user's folder

  std::string InInstallFolder(std::string_view name) const;
  std::string UserFolder(std::string_view user) const;
  std::string InUserFolder(std::string_view user, std::string_view name) const;
  // The user's profile, named after the product.
  std::string Profile(std::string_view user) const;
  std::string UserNameIni() const;
};

// A key or value of the profile as it stands in the file, and back.
std::string Stored(std::string_view text);
std::string Readable(std::string_view stored);

// The one logged-in user of the installation; "" for nobody.
std::string DefaultUser(const Ports& ports, const Places& places);

// The user for whom a command acts: `Interactive`, or the logged-in one when it is empty.
std::string ActingUser(const Ports& ports, const Places& places);

}  // namespace lab
