#include "platform/win32/handle_balance.h"

#include <array>
#include <cstddef>

namespace platform::win32 {
namespace {

// One for the process, as the objects themselves are: wrappers of every window and port meet here.
constinit std::array<ObjectCount, kObjectKinds> counts;

ObjectCount& CountFor(ObjectKind kind) {
  return counts[static_cast<std::size_t>(kind)];
}

}  // namespace

void CountCreated(ObjectKind kind) {
  ++CountFor(kind).created;
}

void CountReleased(ObjectKind kind) {
  ++CountFor(kind).released;
}

ObjectCount CountOf(ObjectKind kind) {
  return CountFor(kind);
}

}  // namespace platform::win32
