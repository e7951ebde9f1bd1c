// Draws of chance.
#include <set>

#include "tests/platform/contract_test.h"

namespace {

constexpr int kDraws = 4000;

class RandomContract : public ContractTest {
 protected:
  double Draw() { return ports().random.Next(); }
};

TEST_F(RandomContract, DrawsFromZeroUpToBelowOne) {
  for (int i = 0; i < kDraws; ++i) {
    const double draw = Draw();
    ASSERT_GE(draw, 0.0);
    ASSERT_LT(draw, 1.0);
  }
}

TEST_F(RandomContract, ReachesEveryTenthOfTheRange) {
  std::set<int> tenths;
  for (int i = 0; i < kDraws; ++i) tenths.insert(static_cast<int>(Draw() * 10));
  EXPECT_EQ(tenths.size(), 10u);
}

TEST_F(RandomContract, DoesNotRepeatItself) {
  std::set<double> draws;
  for (int i = 0; i < kDraws; ++i) draws.insert(Draw());
  EXPECT_GT(draws.size(), static_cast<std::size_t>(kDraws / 2));
}

}  // namespace
