#include "geodesy/packed_angle.h"

#include <gtest/gtest.h>

#include <limits>

#include "platform/failures.h"

namespace {

using namespace geodesy;

constexpr double infinity = std::numeric_limits<double>::infinity();

TEST(Unpack, ReadsDegreesMinutesAndSeconds) {
  const Unpacked_angle angle = unpack(360730.5);
  EXPECT_EQ(angle.sign, 1);
  EXPECT_EQ(angle.degrees, 36);
  EXPECT_NEAR(angle.decimal, 36 + 7 / 60.0 + 30.5 / 3600, 1e-11);
}

TEST(Unpack, WholeDegreesDoNotFallToTheMinuteBelow) {
  for (int d = 20; d < 155; ++d) {
    EXPECT_EQ(unpack(d * 10000.0).degrees, d);
    EXPECT_NEAR(unpack(d * 10000.0).decimal, d, 1e-11);
  }
  EXPECT_NEAR(unpack(350100).decimal, 35 + 1 / 60.0, 1e-11);
}

TEST(Unpack, KeepsTheSignApart) {
  EXPECT_EQ(unpack(-353000).sign, -1);
  EXPECT_EQ(unpack(-353000).degrees, 35);
  EXPECT_NEAR(unpack(-353000).decimal, -35.5, 1e-11);
  EXPECT_EQ(unpack(0).sign, 0);
  EXPECT_EQ(unpack(0).decimal, 0);
}

TEST(Degrees_to_packed, LeavesTheBinaryNoiseBehind) {
  EXPECT_EQ(degrees_to_packed(36.1), 360600.0);
  EXPECT_EQ(degrees_to_packed(35.5), 353000.0);
  EXPECT_EQ(degrees_to_packed(140), 1400000.0);
  EXPECT_EQ(degrees_to_packed(0), 0);
  EXPECT_NEAR(degrees_to_packed(140.0875), 1400515.0, 1e-9);
  EXPECT_NEAR(degrees_to_packed(139.7413571667), 1394428.88580012, 1e-8);
}

TEST(Degrees_to_packed, PadsMinutesAndSecondsToTwoDigits) {
  EXPECT_NEAR(degrees_to_packed(36 + 1 / 60.0 + 2.25 / 3600), 360102.25, 1e-9);
  EXPECT_NEAR(degrees_to_packed(136 + 0.5 / 3600), 1360000.5, 1e-9);
}

TEST(Degrees_to_packed, IsUndoneByUnpack) {
  for (int i = 0; i < 2000; ++i) {
    const double degrees = 20 + i * 0.0671234567;
    EXPECT_NEAR(unpack(degrees_to_packed(degrees)).decimal, degrees, 1e-12) << degrees;
  }
}

TEST(Degrees_to_packed, OfANegativeAngleGivesItsWholeDegreesOnly) {
  EXPECT_EQ(degrees_to_packed(-35.5), -35);
  EXPECT_EQ(degrees_to_packed(-0.5), 0);
}

TEST(Degrees_to_packed, OverflowIsAFailure) {
  EXPECT_THROW(degrees_to_packed(infinity), platform::Division_failure);
  EXPECT_THROW(degrees_to_packed(1e10), platform::Division_failure);
}

TEST(Degrees_to_dms, SplitsTheSize) {
  const Signed_dms dms = degrees_to_dms(36.516675);  // 36 degrees 31 minutes 0.03
  EXPECT_EQ(dms.sign, " ");
  EXPECT_EQ(dms.d, 36);
  EXPECT_EQ(dms.m, 31);
  EXPECT_NEAR(dms.s, 0.03, 1e-6);
}

TEST(Degrees_to_dms, SignIsAMinusOrABlank) {
  EXPECT_EQ(degrees_to_dms(-0.5).sign, "-");
  EXPECT_EQ(degrees_to_dms(-0.5).m, 30);
  EXPECT_EQ(degrees_to_dms(0).sign, " ");
}

TEST(Degrees_to_dms, SecondsThatPrintAs60CarryIntoTheMinutes) {
  const Signed_dms minute = degrees_to_dms(35 + 7 / 60.0 - 1e-9);  // 35 06 59.9999964
  EXPECT_EQ(minute.d, 35);
  EXPECT_EQ(minute.m, 7);
  EXPECT_EQ(minute.s, 0);
  const Signed_dms degree = degrees_to_dms(36 - 1e-9);
  EXPECT_EQ(degree.d, 36);
  EXPECT_EQ(degree.m, 0);
  EXPECT_EQ(degree.s, 0);
}

TEST(Degrees_to_dms, SecondsThatPrintBelow60Stay) {
  const Signed_dms dms = degrees_to_dms(36 - 1e-8);  // 59.999964 seconds and the hair
  EXPECT_EQ(dms.d, 35);
  EXPECT_EQ(dms.m, 59);
  EXPECT_NEAR(dms.s, 59.999964, 1e-7);
}

TEST(Degrees_to_dms, AnInfinityIsAFailure) {
  EXPECT_THROW(degrees_to_dms(infinity), platform::Division_failure);
}

}  // namespace
