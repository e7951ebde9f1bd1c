#include "shared/client_random.h"

namespace shared {

std::string MakeClientRandom(platform::Random& random) {
  constexpr int kNumbers = 5;
  constexpr double kLargest = 255.0;
  std::string digits;
  for (int number = 0; number < kNumbers; ++number) {
    digits += std::to_string(static_cast<int>(kLargest * random.Next() + 1.0));
  }
  return digits;
}

}  // namespace shared
