#include "platform/file_time.h"

#include <gtest/gtest.h>

#include <ctime>
#include <limits>

namespace {

using platform::Date_time;
using platform::date_time_text;
using platform::local_time;

// Seconds since 1970 of a local time, by the standard library's own way back.
std::time_t seconds_of(const Date_time& time) {
  std::tm local{};
  local.tm_year = time.year - 1900;
  local.tm_mon = time.month - 1;
  local.tm_mday = time.day;
  local.tm_hour = time.hour;
  local.tm_min = time.minute;
  local.tm_sec = time.second;
  local.tm_isdst = -1;
  return std::mktime(&local);
}

TEST(File_time, IsTheLocalTimeOfTheStamp) {
  for (const std::int64_t seconds : {86'400LL, 1'226'712'600LL, 4'102'444'800LL}) {
    EXPECT_EQ(seconds_of(local_time(seconds * 1000)), seconds);
    EXPECT_EQ(seconds_of(local_time(seconds * 1000 + 999)), seconds) << "parts of a second are dropped";
  }
}

TEST(File_time, IsNothingBeyondTheCalendar) {
  const Date_time none = local_time(std::numeric_limits<std::int64_t>::max());
  EXPECT_TRUE(none.year == 0 || none.year > 9999);
}

TEST(File_time, ShowsTwoDigitsOfEachPart) {
  EXPECT_EQ(date_time_text({2008, 1, 2, 3, 4, 5}), "2008/01/02 03:04:05");
  EXPECT_EQ(date_time_text({2008, 11, 15, 23, 59, 58}), "2008/11/15 23:59:58");
}

}  // namespace
