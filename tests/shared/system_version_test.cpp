#include "shared/system_version.h"

#include <gtest/gtest.h>

#include <string_view>

namespace shared {
namespace {

using platform::SystemFamily;
using platform::SystemVersion;

struct VersionRow {
  SystemVersion version;
  bool vista;
  std::string_view name;
};

constexpr VersionRow kVersions[] = {
    {{SystemFamily::kWindows9x, 4, 0}, false, "Windows 95"},
    {{SystemFamily::kWindows9x, 4, 10}, false, "Windows 98"},
    {{SystemFamily::kWindows9x, 4, 90}, false, "Windows ME"},
    {{SystemFamily::kWindows9x, 6, 0}, false, ""},
    {{SystemFamily::kNt, 3, 51}, false, "Windows NT"},
    {{SystemFamily::kNt, 4, 0}, false, "Windows NT"},
    {{SystemFamily::kNt, 5, 0}, false, "2000"},
    {{SystemFamily::kNt, 5, 1}, false, "XP"},
    {{SystemFamily::kNt, 5, 2}, false, "2003"},
    {{SystemFamily::kNt, 6, 0}, true, "Vista"},
    {{SystemFamily::kNt, 6, 1}, true, "Vista"},
    {{SystemFamily::kNt, 6, 2}, false, ""},
    {{SystemFamily::kNt, 10, 0}, false, ""},
};

TEST(SystemVersionTest, CountsOnlySixZeroAndSixOneAsVista) {
  for (const VersionRow& row : kVersions) {
    EXPECT_EQ(IsVistaOrLater(row.version), row.vista)
        << row.version.major << "." << row.version.minor;
  }
}

TEST(SystemVersionTest, NamesTheSystemsItKnows) {
  for (const VersionRow& row : kVersions) EXPECT_EQ(GetOsName(row.version), row.name);
}

TEST(SystemVersionTest, NumbersTheFamilies) {
  EXPECT_EQ(GetPlatformFamily({SystemFamily::kWindows9x, 4, 0}), 1);
  EXPECT_EQ(GetPlatformFamily({SystemFamily::kNt, 6, 1}), 2);
}

}  // namespace
}  // namespace shared
