#include "status/size_text.h"

#include <gtest/gtest.h>

#include <string>

namespace status {
namespace {

constexpr double kKilo = 1024.0;
constexpr double kMega = kKilo * 1024;
constexpr double kGiga = kMega * 1024;

struct SizeCase {
  double bytes;
  std::string_view point;
  std::string_view comma;
};

constexpr SizeCase kSizes[] = {
    {0, "0.0 B", "0,0 B"},
    {1, "1.0 B", "1,0 B"},
    {-1, "-1.0 B", "-1,0 B"},
    {0.96, "0.9 B", "0,9 B"},
    {1023, "1023.0 B", "1023,0 B"},
    {1023.99, "1023.9 B", "1023,9 B"},
    {1024, "0.0", "0,0"},
    {1025, "1.0 KB", "1,0 KB"},
    {1536, "1.5 KB", "1,5 KB"},
    {kMega - 1, "1023.9 KB", "1023,9 KB"},
    {kMega, "1024.0 KB", "1024,0 KB"},
    {kMega + 1, "1.0 MB", "1,0 MB"},
    {2 * kMega, "2.0 MB", "2,0 MB"},
    {kGiga - 1, "1023.9 MB", "1023,9 MB"},
    {kGiga, "1024.0 MB", "1024,0 MB"},
    {kGiga + 1, "1.0 GB", "1,0 GB"},
    {1.99 * kGiga, "1.9 GB", "1,9 GB"},
    {1234567 * kGiga, "1234567.0 GB", "1234567,0 GB"},
};

TEST(FormatSizeText, CutsToOneDecimalWithAPoint) {
  for (const SizeCase& size : kSizes) {
    EXPECT_EQ(FormatSizeText(size.bytes, "."), size.point) << size.bytes;
  }
}

TEST(FormatSizeText, CutsToOneDecimalWithAComma) {
  for (const SizeCase& size : kSizes) {
    EXPECT_EQ(FormatSizeText(size.bytes, ","), size.comma) << size.bytes;
  }
}

TEST(FormatSizeText, TakesThePointForAnyOtherSeparator) {
  for (const std::string_view separator : {"", "'", ",,", " "}) {
    EXPECT_EQ(FormatSizeText(1536, separator), "1.5 KB");
  }
}

TEST(FormatSizeText, GivesExactlyOneKilobyteNoUnit) {
  EXPECT_EQ(FormatSizeText(1024, "."), "0.0");
}

}  // namespace
}  // namespace status
