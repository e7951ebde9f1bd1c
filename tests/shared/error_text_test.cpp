#include "shared/error_text.h"

#include <gtest/gtest.h>

namespace shared {
namespace {

TEST(ErrorTextTest, HasATextForEachFileError) {
  EXPECT_EQ(LookupFileErrorText(52), "Bad file name or number.");
  EXPECT_EQ(LookupFileErrorText(53), "File not found.");
  EXPECT_EQ(LookupFileErrorText(54), "Bad file mode.");
  EXPECT_EQ(LookupFileErrorText(55), "File already open.");
  EXPECT_EQ(LookupFileErrorText(57), "Device I/O error.");
  EXPECT_EQ(LookupFileErrorText(68), "Device unavailable.");
  EXPECT_EQ(LookupFileErrorText(70), "Permission Denied.");
  EXPECT_EQ(LookupFileErrorText(71), "Disk Not Ready.");
  EXPECT_EQ(LookupFileErrorText(75), "Path/File Access Error.");
  EXPECT_EQ(LookupFileErrorText(76), "Path not found.");
}

TEST(ErrorTextTest, HasNoTextForAnyOtherNumber) {
  for (const int number : {-1, 0, 51, 56, 58, 69, 72, 77, 1000}) {
    EXPECT_EQ(LookupFileErrorText(number), "") << number;
  }
}

}  // namespace
}  // namespace shared
