// Telling the system what this thread needs.
#include "tests/platform/contract_test.h"

namespace {

using PowerContract = ContractTest;

TEST_F(PowerContract, TakesEachStateOfThisSystem) {
  EXPECT_TRUE(
      ports().power.SetThreadExecutionState(platform::kContinuous | platform::kSystemRequired));
  EXPECT_TRUE(ports().power.SetThreadExecutionState(platform::kSystemRequired));
  EXPECT_TRUE(ports().power.SetThreadExecutionState(platform::kContinuous));
}

}  // namespace
