#include <gtest/gtest.h>

#include "shared/text_file.h"

namespace shared {
namespace {

TEST(TextFileLinesTest, TakesAnyLineEnd) {
  for (const std::string_view text : {"a\r\nb\r\nc", "a\nb\nc\n", "a\rb\rc\r"}) {
    EXPECT_EQ(LineOf(text, 0), "a");
    EXPECT_EQ(LineOf(text, 1), "b");
    EXPECT_EQ(LineOf(text, 2), "c");
    EXPECT_EQ(LineOf(text, 3), "");
  }
}

TEST(TextFileLinesTest, TellsAnEmptyLineFromOneThatIsNotThere) {
  EXPECT_EQ(FindLine("a\r\n\r\n", 1), "");
  EXPECT_FALSE(FindLine("a\r\n\r\n", 2));
  EXPECT_FALSE(FindLine("a\r\n", 1));
  EXPECT_FALSE(FindLine("", 0));
}

}  // namespace
}  // namespace shared
