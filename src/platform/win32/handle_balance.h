// Counts what this process created of the system's objects against what it released.
//
// The counts are those of the owning wrappers (scoped.h): an object that does not go through one is
// not in them. They serve measurements and tests; nothing decides by them.
#pragma once

#include <cstdint>

namespace platform::win32 {

// Files, keys, processes and the like; fonts, brushes and the like; windows, icons and the like.
enum class ObjectKind { kHandle, kGdi, kUser };
inline constexpr int kObjectKinds = 3;

struct ObjectCount {
  std::uint64_t created = 0;
  std::uint64_t released = 0;

  std::uint64_t Outstanding() const { return created - released; }
};

void CountCreated(ObjectKind kind);
void CountReleased(ObjectKind kind);

// The counts since the process began.
ObjectCount CountOf(ObjectKind kind);

}  // namespace platform::win32
