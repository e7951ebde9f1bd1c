// The internet library of Windows.
#pragma once

#include "platform/internet.h"

namespace platform::win32 {

class Internet final : public platform::Internet {
 public:
  bool RefreshSettings() override;
};

}  // namespace platform::win32
