// A file's time stamp as a date and a time of day.
#pragma once

#include <cstdint>
#include <string>

#include "platform/clock.h"

namespace platform {

// Local date and time of a time stamp in milliseconds since 1970 UTC; all zeros for one that this machine's calendar
// doesn't reach.
Date_time local_time(std::int64_t milliseconds);

// "yyyy/mm/dd hh:mm:ss"
std::string date_time_text(const Date_time& time);

}  // namespace platform
