// The random digits by which the server knows this client.
#pragma once

#include <string>

#include "platform/random.h"

namespace shared {

// Five whole numbers from 1 to 255, joined without a separator: 5 to 15 digits.
std::string MakeClientRandom(platform::Random& random);

}  // namespace shared
