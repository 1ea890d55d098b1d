#include "platform/clock.h"

#include <ctime>

namespace platform {

Date_time System_clock::now() {
  const std::time_t seconds = std::time(nullptr);
  std::tm local{};
#ifdef _WIN32
  localtime_s(&local, &seconds);
#else
  localtime_r(&seconds, &local);
#endif
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

}  // namespace platform
