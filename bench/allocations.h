// Counts what the program takes from the heap. Linking this replaces the operators of allocation.
#pragma once

#include <cstdint>

namespace bench {

struct Allocations {
  std::uint64_t count = 0;
  std::uint64_t bytes = 0;

  friend Allocations operator-(const Allocations& one, const Allocations& other) {
    return {one.count - other.count, one.bytes - other.bytes};
  }
};

// All since the program began; what was given back is not taken off. One thread.
Allocations AllocationsSoFar();

}  // namespace bench
