// A library of the system that most runs of this program never need: it is taken into the process
// at its first use and stays. One thread.
#pragma once

#include <windows.h>

#include "platform/win32/scoped.h"

namespace platform::win32 {

class SystemLibrary {
 public:
  // `name` is that of its file; it must outlive this. Nothing is loaded yet.
  explicit SystemLibrary(const char* name) : name_(name) {}

  // The function of this name, loading the library when it is not there; null without either.
  template <class Function>
  Function Find(const char* function) {
    return reinterpret_cast<Function>(Address(function));
  }

 private:
  void* Address(const char* function);

  const char* name_;
  ScopedLibrary library_;
};

}  // namespace platform::win32
