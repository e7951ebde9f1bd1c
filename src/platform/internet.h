// The internet library of the system.
#pragma once

namespace platform {

class Internet {
 public:
  virtual ~Internet() = default;

  // Tells every program that the system's internet settings were changed, and asks this one's
  // library to read them anew. False when nobody could be told; the second is not answered for,
  // since not every system does it without an open session.
  virtual bool RefreshSettings() = 0;
};

}  // namespace platform
