#include "shared/system_version.h"

namespace shared {
namespace {

using platform::SystemFamily;

struct OsName {
  SystemFamily family;
  std::uint32_t major;
  std::uint32_t minor;
  std::string_view name;
};

constexpr OsName kOsNames[] = {
    {SystemFamily::kNt, 5, 2, "2003"},
    {SystemFamily::kNt, 5, 1, "XP"},
    {SystemFamily::kNt, 5, 0, "2000"},
    {SystemFamily::kNt, 6, 0, "Vista"},
    {SystemFamily::kNt, 6, 1, "Vista"},
    {SystemFamily::kNt, 4, 0, "Windows NT"},
    {SystemFamily::kNt, 3, 51, "Windows NT"},
    {SystemFamily::kWindows9x, 4, 90, "Windows ME"},
    {SystemFamily::kWindows9x, 4, 10, "Windows 98"},
    {SystemFamily::kWindows9x, 4, 0, "Windows 95"},
};

}  // namespace

bool IsVistaOrLater(const platform::SystemVersion& version) {
  return version.family == SystemFamily::kNt && version.major == 6 && version.minor <= 1;
}

int GetPlatformFamily(const platform::SystemVersion& version) {
  return static_cast<int>(version.family);
}

std::string_view GetOsName(const platform::SystemVersion& version) {
  for (const OsName& row : kOsNames) {
    if (row.family == version.family && row.major == version.major && row.minor == version.minor) {
      return row.name;
    }
  }
  return "";
}

}  // namespace shared
