#include "geodesy/arithmetic.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace {

using geodesy::finite;
using geodesy::single;
using geodesy::whole;
using platform::Division_failure;

constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double no_number = std::numeric_limits<double>::quiet_NaN();

TEST(Arithmetic, LetsWhatFitsThrough) {
  EXPECT_EQ(finite(-1e300), -1e300);
  EXPECT_EQ(single(0.1), 0.1f);
  EXPECT_EQ(whole(2.9), 2);
  EXPECT_EQ(whole(-2.9), -2);
  EXPECT_EQ(whole(2147483647.5), 2147483647);
  EXPECT_EQ(whole(-2147483648.5), std::numeric_limits<int>::min());
}

TEST(Arithmetic, RefusesAnInfinityAndAnInvalidResult) {
  for (const double bad : {infinity, -infinity, no_number}) {
    EXPECT_THROW(finite(bad), Division_failure);
    EXPECT_THROW(single(bad), Division_failure);
    EXPECT_THROW(whole(bad), Division_failure);
  }
}

TEST(Arithmetic, RefusesWhatIsTooLargeForItsType) {
  EXPECT_THROW(single(1e39), Division_failure);
  EXPECT_THROW(whole(2147483648.0), Division_failure);
  EXPECT_THROW(whole(-2147483649.0), Division_failure);
}

}  // namespace
