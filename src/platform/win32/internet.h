// The internet library of Windows.
#pragma once

#include "platform/internet.h"
#include "platform/win32/system_library.h"

namespace platform::win32 {

class Internet final : public platform::Internet {
 public:
  bool RefreshSettings() override;

 private:
  SystemLibrary library_{"wininet.dll"};
};

}  // namespace platform::win32
