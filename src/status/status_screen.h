// The status window as its rules see it.
#pragma once

#include "status/status_view.h"

namespace status {

class StatusScreen {
 public:
  virtual ~StatusScreen() = default;

  // True on a screen of other than 96 dots per inch: texts are smaller and break earlier.
  virtual bool LargeFontMode() const = 0;

  // Shows what differs from before.
  virtual void Render(const StatusView& view) = 0;

  // Hides the window for as long as another one stands in for it, or shows it again.
  virtual void SetShown(bool shown) = 0;

  // Takes the window away. Nothing when it is gone.
  virtual void Unload() = 0;
};

}  // namespace status
