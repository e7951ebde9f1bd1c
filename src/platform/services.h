// The service manager, as far as this program asks it.
#pragma once

#include <string_view>

namespace platform {

// The system's own numbers; kUnknown when the service or its manager cannot be opened.
enum class ServiceState {
  kUnknown = 0,
  kStopped = 1,
  kStartPending = 2,
  kStopPending = 3,
  kRunning = 4,
  kContinuePending = 5,
  kPausePending = 6,
  kPaused = 7,
};

// The rights asked of the manager and of the service: all of them, or just reading.
enum class ServiceAccess { kAll, kRead };

class Services {
 public:
  virtual ~Services() = default;

  // Queries the state of the service with this name.
  virtual ServiceState State(std::string_view name, ServiceAccess access) = 0;
};

}  // namespace platform
