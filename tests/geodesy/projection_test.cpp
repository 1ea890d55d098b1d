#include "geodesy/projection.h"

#include <gtest/gtest.h>

#include <limits>

#include "geodesy/sample_rows.h"
#include "platform/failures.h"

namespace {

using namespace geodesy;

constexpr double easting_tolerance = 0.04;   // metres, after the narrowing to single
constexpr double northing_tolerance = 0.26;  // metres: half a unit of a single above 4,194,304, and a hair

struct Known {
  float latitude, longitude;
  double easting, northing;
};

// PROJ 9.1.1 (cct +proj=tmerc +k=0.9996 +x_0=500000 +ellps=bessel), on the very singles and with the central meridian
// rounded to single radians as here.
constexpr Known known[] = {
    {35.6809578f, 139.767303f, 388465.3438, 3948870.1258},
    {24.5f, 123.75f, 575978.1707, 2709527.0202},
    {43.0625f, 141.35437f, 528851.8778, 4767335.1235},
    {33.5f, 131.999985f, 778672.2865, 3710380.9807},
    {33.5f, 132.0f, 221326.8855, 3710381.0047},
    {36.0f, 155.998993f, 770298.8122, 3987712.2272},
    {-12.25f, 147.300003f, 532623.9212, -1354086.0936},
    {45.5f, 120.0f, 265649.7237, 5042363.4092},
};

TEST(Projection, UtmAgreesWithAnIndependentTool) {
  for (const Known& row : known) {
    float easting = 0, northing = 0;
    ASSERT_TRUE(latlon_to_utm_auto(row.latitude, row.longitude, easting, northing));
    EXPECT_NEAR(easting, row.easting, easting_tolerance) << row.latitude << " " << row.longitude;
    EXPECT_NEAR(northing, row.northing, northing_tolerance) << row.latitude << " " << row.longitude;
  }
}

TEST(Projection, UtmAgreesWithTheSharedPoints) {
  TAKE_SAMPLE_ROWS(rows, "utm_bessel_sample.csv");
  for (const auto& row : rows) {
    float easting = 0, northing = 0;
    ASSERT_TRUE(latlon_to_utm_auto(std::stof(row.at("lat")), std::stof(row.at("lon")), easting, northing));
    EXPECT_NEAR(easting, std::stod(row.at("easting_s")), easting_tolerance) << row.at("lat") << " " << row.at("lon");
    EXPECT_NEAR(northing, std::stod(row.at("northing_s")), northing_tolerance) << row.at("lat") << " " << row.at("lon");
  }
}

// The series in 40-digit arithmetic (mpmath) on the very singles, narrowed to single: not one bit may differ.
struct Exact {
  float latitude, longitude, easting, northing;
};

constexpr Exact exact[] = {
    {35.6809578f, 139.767303f, 388465.344f, 3948870.25f},
    {24.5f, 123.75f, 575978.188f, 2709527.0f},
    {43.0625f, 141.35437f, 528851.875f, 4767335.0f},
    {33.5f, 131.999985f, 778672.312f, 3710381.0f},
    {33.5f, 132.0f, 221326.891f, 3710381.0f},
    {36.0f, 155.998993f, 770298.812f, 3987712.25f},
    {-12.25f, 147.300003f, 532623.938f, -1354086.12f},
    {45.5f, 120.0f, 265649.719f, 5042363.5f},
};

TEST(Projection, UtmIsItsSeriesToTheLastBit) {
  for (const Exact& row : exact) {
    float easting = 0, northing = 0;
    ASSERT_TRUE(latlon_to_utm_auto(row.latitude, row.longitude, easting, northing));
    EXPECT_EQ(easting, row.easting) << row.latitude << " " << row.longitude;
    EXPECT_EQ(northing, row.northing) << row.latitude << " " << row.longitude;
  }
}

// Far from the meridian the terms of higher order weigh kilometres.
TEST(Projection, UtmIsItsSeriesFarFromTheMeridianToo) {
  const Utm_position east = latlon_to_utm(35, 10, 0);
  EXPECT_EQ(east.easting, 1413994.38f);
  EXPECT_EQ(east.northing, 3918683.75f);
  const Utm_position west = latlon_to_utm(60, -25, 0.1f);
  EXPECT_EQ(west.easting, -1169791.38f);
  EXPECT_EQ(west.northing, 7052933.5f);
  const Utm_position low = latlon_to_utm(1.5f, 20, -0.05f);
  EXPECT_EQ(low.easting, 3113705.5f);
  EXPECT_EQ(low.northing, 180012.703f);
}

TEST(Projection, UtmOfTheCentralMeridianOnTheEquatorIsTheFalseOrigin) {
  const Utm_position position = latlon_to_utm(0, 0, 0);
  EXPECT_EQ(position.easting, 500000.0f);
  EXPECT_EQ(position.northing, 0.0f);
}

TEST(Projection, UtmTakesAnyCentralMeridian) {
  // The meridian of 135 degrees with the point 2 degrees east of it is the one of 0 with the point at 2.
  const Utm_position far = latlon_to_utm(35, 137, static_cast<float>(135 * 3.141592654 / 180));
  const Utm_position near = latlon_to_utm(35, 2, 0);
  EXPECT_NEAR(far.easting, near.easting, 0.7);  // the single-precision meridian shifts by up to half a metre
  EXPECT_NEAR(far.northing, near.northing, 0.3);
}

TEST(Projection, ZonesBeginAtTheirWholeDegree) {
  for (int west = 120; west < 156; west += 6) {
    float first = 0, last = 0, middle = 0, northing = 0;
    ASSERT_TRUE(latlon_to_utm_auto(35, static_cast<float>(west), first, northing));
    ASSERT_TRUE(latlon_to_utm_auto(35, static_cast<float>(west + 3), middle, northing));
    ASSERT_TRUE(latlon_to_utm_auto(35, static_cast<float>(west) + 5.9999f, last, northing));
    EXPECT_NEAR(middle, 500000, 1) << west;
    EXPECT_NEAR(first, 1000000 - last, 20) << west;
    EXPECT_LT(first, 230000) << west;
  }
}

TEST(Projection, OutsideTheZonesTheOutputsStay) {
  for (const float longitude : {119.99f, 156.0f, 0.0f, -135.0f, 400.0f, std::numeric_limits<float>::infinity(),
                                std::numeric_limits<float>::quiet_NaN()}) {
    float easting = 1.5f, northing = 2.5f;
    EXPECT_FALSE(latlon_to_utm_auto(35, longitude, easting, northing)) << longitude;
    EXPECT_EQ(easting, 1.5f) << longitude;
    EXPECT_EQ(northing, 2.5f) << longitude;
  }
}

TEST(Projection, AFailureLeavesTheOutputs) {
  float easting = 1.5f, northing = 2.5f;
  EXPECT_THROW(latlon_to_utm_auto(std::numeric_limits<float>::infinity(), 135, easting, northing),
               platform::Division_failure);
  EXPECT_EQ(easting, 1.5f);
  EXPECT_EQ(northing, 2.5f);
}

struct Plane_known {
  float latitude, longitude;  // radians
  double x, y;
};

// The series in 40-digit arithmetic (mpmath), on the very singles.
constexpr Plane_known plane_known[] = {
    {0.628318548f, 2.440552f, 0.378857196754, 0.000000000525},
    {0.628493071f, 2.44084287f, 1109.80116882, 1502.11802157},
    {0.630063832f, 2.44171572f, 11095.7544128, 6002.8653854},
    {0.623082519f, 2.43647957f, -33255.6239265, -21112.9338874},
    {0.637045205f, 2.45218754f, 55675.1341717, 59714.7526642},
    {0.34906584f, 2.09439516f, -1646644.67272, -2107520.94055},
    {0.785398185f, 2.68780708f, 1097058.81648, 1116665.17652},
};

TEST(Projection, Plane9KeepsItsSeriesAndConstants) {
  for (const Plane_known& row : plane_known) {
    const Plane_position position = latlon_to_plane9(row.latitude, row.longitude);
    EXPECT_NEAR(position.x, row.x, 1e-6 + std::abs(row.x) * 6e-8) << row.latitude;  // half a unit of a single
    EXPECT_NEAR(position.y, row.y, 1e-6 + std::abs(row.y) * 6e-8) << row.latitude;
  }
}

TEST(Projection, Plane9AgreesWithAnIndependentToolNearItsOrigin) {
  // PROJ 9.1.1: +proj=tmerc +lat_0=36 +lon_0=139.8333333 +k=0.9999 +ellps=bessel. The constants of the origin are off
  // by 0.27 m and 0.38 m, and the short arc by 10 cm a tenth of a degree away.
  const Plane_position position = latlon_to_plane9(0.630063832f, 2.44171572f);
  EXPECT_NEAR(position.x, 11095.5828, 0.5);
  EXPECT_NEAR(position.y, 6002.4814, 0.5);
}

}  // namespace
