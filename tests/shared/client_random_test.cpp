#include "shared/client_random.h"

#include <gtest/gtest.h>

#include <vector>

namespace shared {
namespace {

class Scripted final : public platform::Random {
 public:
  explicit Scripted(std::vector<double> numbers) : numbers_(std::move(numbers)) {}
  double Next() override { return numbers_[at_++ % numbers_.size()]; }

 private:
  std::vector<double> numbers_;
  std::size_t at_ = 0;
};

TEST(ClientRandomTest, JoinsFiveNumbersFromOneToTwoHundredFiftyFive) {
  Scripted lowest({0.0});
  EXPECT_EQ(MakeClientRandom(lowest), "11111");
  Scripted highest({0.9999999999});
  EXPECT_EQ(MakeClientRandom(highest), "255255255255255");
  Scripted mixed({0.0, 0.5, 0.999999, 1.0 / 255, 0.25});
  EXPECT_EQ(MakeClientRandom(mixed), "1128255264");
}

}  // namespace
}  // namespace shared
