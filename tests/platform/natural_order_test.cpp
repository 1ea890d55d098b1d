#include "platform/natural_order.h"

#include <gtest/gtest.h>

namespace {

using platform::natural_order;

TEST(Natural_order, ComparesRunsOfDigitsByTheirValue) {
  EXPECT_LT(natural_order("ttyUSB2", "ttyUSB10"), 0);
  EXPECT_GT(natural_order("a10b", "a9c"), 0);
  EXPECT_EQ(natural_order("n007", "n7"), 0);
  EXPECT_LT(natural_order("12", "12a"), 0);
  EXPECT_LT(natural_order("99999999999999999999998", "99999999999999999999999"), 0);
}

TEST(Natural_order, ComparesAllElseByteByByte) {
  EXPECT_EQ(natural_order("", ""), 0);
  EXPECT_LT(natural_order("", "0"), 0);
  EXPECT_LT(natural_order("A", "a"), 0);
  EXPECT_LT(natural_order("a1", "砂"), 0);
  EXPECT_LT(natural_order("ttyACM9", "ttyUSB0"), 0);
}

}  // namespace
