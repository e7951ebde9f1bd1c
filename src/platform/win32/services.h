// The service manager of Windows.
#pragma once

#include "platform/services.h"

namespace platform::win32 {

class Services final : public platform::Services {
 public:
  ServiceState State(std::string_view name, ServiceAccess access) override;
};

}  // namespace platform::win32
