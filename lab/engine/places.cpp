#include "lab/engine/places.h"

#include "shared/character_shift.h"
#include "shared/file_names.h"
#include "shared/keys.h"

namespace lab {
namespace {

std::string Join(std::string_view folder, std::string_view name) {
  return std::string(folder) + "\\" + std::string(name);
}

}  // namespace

std::string Places::InInstallFolder(std::string_view name) const {
  return Join(install_folder, name);
}

std::string Places::UserFolder(std::string_view user) const {
  return InInstallFolder(product_folder + std::string(user));
}

std::string Places::InUserFolder(std::string_view user, std::string_view name) const {
  return Join(UserFolder(user), name);
}

std::string Places::Profile(std::string_view user) const {
  return InUserFolder(user, product_folder + ".ini");
}

std::string Places::UserNameIni() const {
  return InInstallFolder(shared::files::kUserNameIni);
}

std::string Stored(std::string_view text) {
  return shared::ShiftCharacters(text, shared::kProfileShift).text;
}

std::string Readable(std::string_view stored) {
  return shared::ShiftCharacters(stored, -shared::kProfileShift).text;
}

std::string DefaultUser(const Ports& ports, const Places& places) {
  return Readable(ports.profile_files.ReadText(places.UserNameIni(), shared::sections::kRegistry,
                                               shared::keys::kDefaultUserName));
}

std::string ActingUser(const Ports& ports, const Places& places) {
  const std::string user = ports.profile_files.ReadText(
      places.UserNameIni(), shared::sections::kTolvex, shared::keys::kInteractive);
  return user.empty() ? DefaultUser(ports, places) : user;
}

}  // namespace lab
