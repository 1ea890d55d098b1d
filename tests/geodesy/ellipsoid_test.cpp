#include "geodesy/ellipsoid.h"

#include <gtest/gtest.h>

namespace {

using geodesy::ellipsoid;

TEST(Ellipsoid, BesselStandsInRow0) {
  EXPECT_EQ(ellipsoid[0].name, "Bessel");
  EXPECT_EQ(ellipsoid[0].a, 6377397.155);
  EXPECT_EQ(ellipsoid[0].inverse_f, 299.152813);
  EXPECT_NEAR(ellipsoid[0].f, 0.003342773179939979, 1e-17);
  EXPECT_NEAR(ellipsoid[0].e2, 0.006674372227347433, 1e-17);
}

TEST(Ellipsoid, Grs80StandsInRow1) {
  EXPECT_EQ(ellipsoid[1].name, "GRS-80");
  EXPECT_EQ(ellipsoid[1].a, 6378137.0);
  EXPECT_EQ(ellipsoid[1].inverse_f, 298.257222101);
  EXPECT_NEAR(ellipsoid[1].f, 0.003352810681182319, 1e-17);  // Moritz, Geodetic Reference System 1980
  EXPECT_NEAR(ellipsoid[1].e2, 0.006694380022900788, 1e-17);
}

}  // namespace
