#include "shared/tokenizer.h"

#include <gtest/gtest.h>

#include <vector>

namespace shared {
namespace {

std::vector<std::string> Tokens(std::string_view text, std::string_view separator,
                                std::size_t count) {
  Tokenizer tokens;
  tokens.Init(text);
  tokens.setSeparator(separator);
  std::vector<std::string> result;
  for (std::size_t at = 0; at < count; ++at) result.push_back(tokens.nextToken());
  return result;
}

using Strings = std::vector<std::string>;

TEST(TokenizerTest, GivesAnEmptyTokenBetweenTwoSeparators) {
  EXPECT_EQ(Tokens("a;;b", ";", 3), (Strings{"a", "", "b"}));
}

TEST(TokenizerTest, GivesNothingOnEachCallAfterTheLastToken) {
  EXPECT_EQ(Tokens("a", ";", 4), (Strings{"a", "", "", ""}));
  EXPECT_EQ(Tokens("", ";", 2), (Strings{"", ""}));
}

TEST(TokenizerTest, SplitsAtSeparatorsOfSeveralCharactersByteByByte) {
  EXPECT_EQ(Tokens("aXYbxyc", "XY", 3), (Strings{"a", "bxyc", ""}));
}

TEST(TokenizerTest, LeavesTheTextWholeForAnEmptySeparator) {
  EXPECT_EQ(Tokens("a b", "", 2), (Strings{"a b", ""}));
}

TEST(TokenizerTest, HasNoTokensBeforeTheSeparatorIsSet) {
  Tokenizer tokens;
  tokens.Init("a b");
  EXPECT_EQ(tokens.nextToken(), "");
  tokens.setSeparator(" ");
  EXPECT_EQ(tokens.nextToken(), "a");
}

TEST(TokenizerTest, StartsAnewWithANewText) {
  Tokenizer tokens;
  tokens.Init("a;b");
  tokens.setSeparator(";");
  tokens.nextToken();
  tokens.Init("c;d");
  tokens.setSeparator(";");
  EXPECT_EQ(tokens.nextToken(), "c");
}

}  // namespace
}  // namespace shared
