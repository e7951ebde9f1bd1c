// The source of chance, seeded from the clock.
#pragma once

#include <random>

#include "platform/random.h"

namespace platform::win32 {

class Random final : public platform::Random {
 public:
  Random();
  double Next() override;

 private:
  std::mt19937 generator_;
};

}  // namespace platform::win32
