// Owners of the system's objects: one for each kind, each released once, all counted.
#pragma once

#include <windows.h>

#include <utility>

#include "platform/win32/handle_balance.h"

namespace platform::win32 {

// Owns one object. `Traits` says its type (`Value`), its kind (`kKind`), what no object looks like
// (`IsNone`, `None`) and how it is released (`Release`).
template <typename Traits>
class Scoped {
 public:
  using Value = typename Traits::Value;

  Scoped() = default;
  explicit Scoped(Value value) : value_(value) {
    if (*this) CountCreated(Traits::kKind);
  }
  Scoped(Scoped&& other) noexcept : value_(std::exchange(other.value_, Traits::None())) {}
  Scoped& operator=(Scoped&& other) noexcept {
    if (this != &other) {
      Reset();
      value_ = std::exchange(other.value_, Traits::None());
    }
    return *this;
  }
  ~Scoped() { Reset(); }

  Value get() const { return value_; }
  explicit operator bool() const { return !Traits::IsNone(value_); }

  // Releases the object now.
  void Reset() {
    if (!*this) return;
    Traits::Release(std::exchange(value_, Traits::None()));
    CountReleased(Traits::kKind);
  }

 private:
  Value value_ = Traits::None();
};

template <typename Type, ObjectKind kind>
struct NullTraits {
  using Value = Type;
  static constexpr ObjectKind kKind = kind;
  static Value None() { return nullptr; }
  static bool IsNone(Value value) { return value == nullptr; }
};

// Processes, mutexes, threads.
struct HandleTraits : NullTraits<HANDLE, ObjectKind::kHandle> {
  static void Release(Value value) { CloseHandle(value); }
};
using ScopedHandle = Scoped<HandleTraits>;

// Files and snapshots, whose "none" is not null.
struct FileTraits : HandleTraits {
  static Value None() { return INVALID_HANDLE_VALUE; }
  static bool IsNone(Value value) { return value == INVALID_HANDLE_VALUE; }
};
using ScopedFile = Scoped<FileTraits>;

struct FindTraits : FileTraits {
  static void Release(Value value) { FindClose(value); }
};
using ScopedFind = Scoped<FindTraits>;

struct RegistryKeyTraits : NullTraits<HKEY, ObjectKind::kHandle> {
  static void Release(Value value) { RegCloseKey(value); }
};
using ScopedRegistryKey = Scoped<RegistryKeyTraits>;

struct ServiceTraits : NullTraits<SC_HANDLE, ObjectKind::kHandle> {
  static void Release(Value value) { CloseServiceHandle(value); }
};
using ScopedService = Scoped<ServiceTraits>;

struct LibraryTraits : NullTraits<HMODULE, ObjectKind::kHandle> {
  static void Release(Value value) { FreeLibrary(value); }
};
using ScopedLibrary = Scoped<LibraryTraits>;

struct WindowTraits : NullTraits<HWND, ObjectKind::kUser> {
  static void Release(Value value) { DestroyWindow(value); }
};
using ScopedWindow = Scoped<WindowTraits>;

struct IconTraits : NullTraits<HICON, ObjectKind::kUser> {
  static void Release(Value value) { DestroyIcon(value); }
};
using ScopedIcon = Scoped<IconTraits>;

}  // namespace platform::win32
