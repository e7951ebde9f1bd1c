// The system's window for each kind of control.
#pragma once

#include <windows.h>

#include "forms/control.h"

namespace forms::win32 {

struct ChildKind {
  const char* window_class;
  DWORD style;
  DWORD extended_style;
};

ChildKind KindOf(const Control& control);

}  // namespace forms::win32
