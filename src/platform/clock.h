// The port to the date and the time of day.
#pragma once

namespace platform {

struct Date_time {
  int year = 0, month = 0, day = 0;
  int hour = 0, minute = 0, second = 0;
};

class Clock {
 public:
  virtual ~Clock() = default;
  virtual Date_time now() = 0;  // local time
};

class System_clock : public Clock {
 public:
  Date_time now() override;
};

}  // namespace platform
