// The source of chance.
#pragma once

namespace platform {

class Random {
 public:
  virtual ~Random() = default;

  // A number in [0, 1), evenly spread.
  virtual double Next() = 0;
};

}  // namespace platform
