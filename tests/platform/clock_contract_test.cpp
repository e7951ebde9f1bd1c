// The clock: it goes on, and sleeping takes the time that was asked for.
#include "tests/platform/contract_test.h"

namespace {

class ClockContract : public ContractTest {
 protected:
  platform::Clock& clock() { return ports().clock; }
};

TEST_F(ClockContract, TellsAMomentOfTheCalendar) {
  const platform::LocalTime now = clock().Now();
  EXPECT_GE(now.year, 2024);
  EXPECT_TRUE(now.month >= 1 && now.month <= 12);
  EXPECT_TRUE(now.day >= 1 && now.day <= 31);
  EXPECT_TRUE(now.hour >= 0 && now.hour <= 23);
  EXPECT_TRUE(now.minute >= 0 && now.minute <= 59);
  EXPECT_TRUE(now.second >= 0 && now.second <= 59);
}

TEST_F(ClockContract, SleepsAtLeastAsLongAsAsked) {
  constexpr std::uint32_t kAsked = 60;
  // The system counts in steps of up to 16 milliseconds.
  constexpr std::uint32_t kStep = 16;
  const std::uint64_t before = clock().Milliseconds();
  clock().Sleep(kAsked);
  EXPECT_GE(clock().Milliseconds() - before, kAsked - kStep);
}

TEST_F(ClockContract, MovesTheWallClockWithTheMilliseconds) {
  const platform::LocalTime before = clock().Now();
  clock().Sleep(1100);
  EXPECT_GT(clock().Now(), before);
}

TEST_F(ClockContract, SleepsNoTimeWithoutHarm) {
  const std::uint64_t before = clock().Milliseconds();
  clock().Sleep(0);
  EXPECT_GE(clock().Milliseconds(), before);
}

}  // namespace
