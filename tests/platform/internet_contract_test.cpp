// The internet library of the system.
#include "tests/platform/contract_test.h"

namespace {

using InternetContract = ContractTest;

TEST_F(InternetContract, HasTheSettingsReadAnewAsOftenAsItIsAsked) {
  EXPECT_TRUE(ports().internet.RefreshSettings());
  EXPECT_TRUE(ports().internet.RefreshSettings());
}

}  // namespace
