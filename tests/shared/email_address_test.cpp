#include "shared/email_address.h"

#include <gtest/gtest.h>

#include <string>

namespace shared {
namespace {

TEST(EmailAddressTest, LetsAnAddressWithOneSignAndALaterDotThrough) {
  for (const std::string_view text :
       {"a@b.c", "anna@example.org", "a.b@c.d", "a)b@c.d", " a@bc.d", "a b@cd.e f", "a@b.c..d"}) {
    EXPECT_EQ(IsValidEmailAddress(text), kValidEmail) << text;
  }
}

TEST(EmailAddressTest, RefusesATextThatLacksAMarkOrHoldsAForbiddenOne) {
  for (const std::string_view text : {"", "@", ".", "a", "a.b", "a@b", "a(b@c.d", "a,b@c.d",
                                      "a@b.c,d", "a@b.c.", "a@b.", "@.", "."}) {
    EXPECT_EQ(IsValidEmailAddress(text), kInvalidEmail) << text;
  }
}

TEST(EmailAddressTest, RefusesASecondSign) {
  EXPECT_EQ(IsValidEmailAddress("a@@b.c"), kInvalidEmail);
  EXPECT_EQ(IsValidEmailAddress("a@b@c.d"), kInvalidEmail);
}

TEST(EmailAddressTest, RefusesAnAddressWithoutADotBehindTheSign) {
  EXPECT_EQ(IsValidEmailAddress("a.b@cd"), kInvalidEmail);
}

TEST(EmailAddressTest, RefusesAFirstDotThatTouchesTheSignOnEitherSide) {
  EXPECT_EQ(IsValidEmailAddress("a@.b"), kInvalidEmail);
  EXPECT_EQ(IsValidEmailAddress("ab.@cd.e"), kInvalidEmail);
  EXPECT_EQ(IsValidEmailAddress("a.b.@c.d"), kValidEmail);
}

TEST(EmailAddressTest, TakesAnyBytes) {
  EXPECT_EQ(IsValidEmailAddress(std::string(100000, '@')), kInvalidEmail);
  EXPECT_EQ(IsValidEmailAddress("\xE4@\xF6x.\xFC"), kValidEmail);
}

}  // namespace
}  // namespace shared
