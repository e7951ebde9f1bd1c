#include "bench/allocations.h"

#include <cstdlib>
#include <new>

namespace {

bench::Allocations so_far;

}  // namespace

bench::Allocations bench::AllocationsSoFar() {
  return so_far;
}

// The other forms of both operators come down to these.
void* operator new(std::size_t size) {
  ++so_far.count;
  so_far.bytes += size;
  void* const block = std::malloc(size > 0 ? size : 1);
  if (!block) std::abort();
  return block;
}

void operator delete(void* block) noexcept {
  std::free(block);
}

void operator delete(void* block, std::size_t) noexcept {
  std::free(block);
}
