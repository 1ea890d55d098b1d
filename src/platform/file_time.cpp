#include "platform/file_time.h"

#include <ctime>

#include "platform/digits.h"
#include "platform/numbers.h"

namespace platform {

Date_time local_time(std::int64_t milliseconds) {
  // Whole seconds downwards, before 1970 too.
  const auto seconds = static_cast<std::time_t>(milliseconds / 1000 - (milliseconds % 1000 < 0 ? 1 : 0));
  std::tm local{};
#ifdef _WIN32
  const bool reached = localtime_s(&local, &seconds) == 0;
#else
  const bool reached = localtime_r(&seconds, &local) != nullptr;
#endif
  if (!reached) return {};
  return {local.tm_year + 1900, local.tm_mon + 1, local.tm_mday, local.tm_hour, local.tm_min, local.tm_sec};
}

std::string date_time_text(const Date_time& time) {
  return format_number(time.year, "0000") + "/" + two_digits(time.month) + "/" + two_digits(time.day) + " " +
         two_digits(time.hour) + ":" + two_digits(time.minute) + ":" + two_digits(time.second);
}

}  // namespace platform
