// A clock that stands still until the test moves it.
#pragma once

#include "platform/clock.h"

namespace support {

class Fixed_clock : public platform::Clock {
 public:
  explicit Fixed_clock(platform::Date_time start) : time(start) {}
  platform::Date_time now() override { return time; }
  platform::Date_time time;
};

}  // namespace support
