// The internet library of the system.
#pragma once

namespace platform {

class Internet {
 public:
  virtual ~Internet() = default;

  // Tells every program that the system's internet settings were changed, and has them read anew.
  // False when either is refused; the second is asked for in any case.
  virtual bool RefreshSettings() = 0;
};

}  // namespace platform
