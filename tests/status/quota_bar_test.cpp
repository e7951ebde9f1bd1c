#include "status/quota_bar.h"

#include <gtest/gtest.h>

#include "tests/status/idle_fixture.h"

namespace status {
namespace {

struct BarCase {
  double used;
  double max;
  std::int16_t position;
  QuotaColour colour;
  bool exceeded;
};

constexpr BarCase kBars[] = {
    {-1, 0, 0, QuotaColour::kGreen, false},      {-0.5, 100, 0, QuotaColour::kGreen, false},
    {0, 0, 0, QuotaColour::kGreen, false},       {0, 100, 0, QuotaColour::kGreen, false},
    {0.5, 100, 0, QuotaColour::kGreen, false},   {1.5, 100, 2, QuotaColour::kGreen, false},
    {2.5, 100, 2, QuotaColour::kGreen, false},   {90, 100, 90, QuotaColour::kGreen, false},
    {90.5, 100, 90, QuotaColour::kGreen, false}, {90.51, 100, 91, QuotaColour::kRed, false},
    {91, 100, 91, QuotaColour::kRed, false},     {99.9, 100, 100, QuotaColour::kRed, false},
    {100, 100, 100, QuotaColour::kRed, false},   {100.001, 100, 100, QuotaColour::kRed, true},
    {1, 0, 100, QuotaColour::kRed, true},
};

TEST(QuotaBar, StandsAtTheRoundedShareAndTurnsRedAboveNinety) {
  for (const BarCase& bar : kBars) {
    SCOPED_TRACE(testing::Message() << bar.used << " of " << bar.max);
    const QuotaBar result = ComputeQuotaBar(bar.used, bar.max);
    EXPECT_EQ(result.position, bar.position);
    EXPECT_EQ(result.colour, bar.colour);
    EXPECT_EQ(result.exceeded, bar.exceeded);
  }
}

class QuotaRow : public testing::Test, public IdleFixture {};

TEST_F(QuotaRow, SaysHowMuchIsUsed) {
  Rules().QuotaRow();
  EXPECT_EQ(view.quota_text, "1.5 KB out of 4.0 KB");
  EXPECT_EQ(view.quota_bar, 38);
  EXPECT_TRUE(view.quota_bar_shown && view.space_label_shown && view.quota_text_shown);
}

TEST_F(QuotaRow, HidesWhileTheQuotaIsUnknown) {
  now.quota = {};
  Rules().QuotaRow();
  EXPECT_FALSE(view.quota_bar_shown || view.space_label_shown || view.quota_text_shown);
  EXPECT_EQ(view.status_line, "before");
}

TEST_F(QuotaRow, IsFullAndRedWithoutTheMessageWhenUsedEqualsTheMaximum) {
  now.quota = {4096, 4096};
  Rules().QuotaRow();
  EXPECT_EQ(view.quota_bar, 100);
  EXPECT_EQ(view.quota_colour, QuotaColour::kRed);
  EXPECT_EQ(view.status_line, "before");
}

TEST_F(QuotaRow, TellsInTwoLinesThatTheQuotaIsExceeded) {
  now.quota = {4097, 4096};
  now.ret_value = "-432";
  Rules().QuotaRow();
  EXPECT_EQ(view.status_line,
            "Your data could not be backed up as you have utilized\r\n"
            "the allocated quota. Upgrade and try again.");
  EXPECT_EQ(view.status_points, 9);
  EXPECT_TRUE(effects.InOrder().empty());
}

TEST_F(QuotaRow, AsksForNewFiguresWhenTheResultSpeaksAgainstThem) {
  now.ret_value = "-432";
  Rules().QuotaRow();
  EXPECT_EQ(Writes(), (std::vector<Effect>{{EffectKind::kRefreshQuota, ""}}));
  EXPECT_EQ(view.status_line, context.texts.quota_exceeded);
}

TEST_F(QuotaRow, AsksOnceInOneDecision) {
  now.ret_value = "-432";
  IdleView rules = Rules();
  rules.QuotaRow();
  rules.GetNextTransferTime();
  EXPECT_EQ(Writes().size(), 1u);
}

TEST_F(QuotaRow, AsksNothingWhenUsedEqualsTheMaximum) {
  now.quota = {4096, 4096};
  now.ret_value = "-432";
  Rules().QuotaRow();
  EXPECT_TRUE(effects.InOrder().empty());
}

}  // namespace
}  // namespace status
