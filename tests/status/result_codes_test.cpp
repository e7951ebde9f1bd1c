#include "status/result_codes.h"

#include <gtest/gtest.h>

#include <string>

namespace status {
namespace {

TEST(ResultCodes, HoldEachCodeUnderItsOwnText) {
  EXPECT_EQ(ResultCodes().size(), 11u);
  for (const ResultCode& code : ResultCodes()) {
    EXPECT_EQ(std::to_string(code.code), code.text);
    EXPECT_EQ(MeaningOf(code.code), code.meaning);
    EXPECT_EQ(MeaningOf(code.text), code.meaning);
  }
}

TEST(ResultCodes, TellTheMeaningsApart) {
  EXPECT_EQ(MeaningOf(-432), ResultMeaning::kQuotaExceeded);
  EXPECT_EQ(MeaningOf(-514), ResultMeaning::kAccountInactive);
  EXPECT_EQ(MeaningOf(-507), ResultMeaning::kAccountInactive);
  EXPECT_EQ(MeaningOf(-403), ResultMeaning::kCredentialsOutdated);
  EXPECT_EQ(MeaningOf(-12009), ResultMeaning::kProxyFailure);
  EXPECT_EQ(MeaningOf(-504), ResultMeaning::kAccountMaintenance);
  EXPECT_EQ(MeaningOf(-511), ResultMeaning::kServerMaintenance);
}

TEST(ResultCodes, TakeAnythingElseAsOther) {
  EXPECT_EQ(MeaningOf(0), ResultMeaning::kOther);
  EXPECT_EQ(MeaningOf(402), ResultMeaning::kOther);
  for (const std::string_view text : {"", " ", "4 32", "-432x", "99999999999"}) {
    EXPECT_EQ(MeaningOf(text), ResultMeaning::kOther) << text;
  }
}

TEST(ResultCodes, IgnoreBlanksAroundTheNumber) {
  EXPECT_EQ(MeaningOf(" -432 "), ResultMeaning::kQuotaExceeded);
}

}  // namespace
}  // namespace status
