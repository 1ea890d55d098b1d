#include "geodesy/geocentric.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

#include "geodesy/sample_rows.h"
#include "platform/failures.h"

namespace {

using namespace geodesy;

constexpr double degree = 3.14159265358979323846 / 180;
constexpr double angle_tolerance = 2e-9;  // degrees, a fifth of a millimetre

// PROJ 9.1.1, cct +proj=cart +ellps=bessel
TEST(Geocentric, AgreesWithAnIndependentTool) {
  const Geocentric place = to_geocentric(ellipsoid[0], {35.6580992222 * degree, 139.7413571667 * degree, 0});
  EXPECT_NEAR(place.x, -3958828.221335, 1e-4);
  EXPECT_NEAR(place.y, 3352420.753072, 1e-4);
  EXPECT_NEAR(place.z, 3697067.530716, 1e-4);
}

TEST(Geocentric, ComesBackToWhereItWas) {
  for (const double longitude : {0.0, 1.0, 2.0, 3.0, -1.0, -2.0, -3.0})
    for (const double latitude : {0.0, 0.4, 0.8, 1.4, -0.7}) {
      const Geodetic back = to_geodetic(ellipsoid[1], to_geocentric(ellipsoid[1], {latitude, longitude, 25}));
      EXPECT_NEAR(back.latitude, latitude, 1e-12);
      EXPECT_NEAR(back.longitude, longitude, 1e-12);
      EXPECT_NEAR(back.height, 25, 1e-6);
    }
}

TEST(Geocentric, ALongitudeWithoutXIsAQuarterTurnEastOnEitherSide) {
  EXPECT_NEAR(to_geodetic(ellipsoid[1], {0, 6378137, 0}).longitude, 90 * degree, 1e-12);
  EXPECT_NEAR(to_geodetic(ellipsoid[1], {0, -6378137, 0}).longitude, 90 * degree, 1e-12);
}

TEST(Geocentric, ALongitudePastHalfATurnIsNegative) {
  EXPECT_NEAR(to_geodetic(ellipsoid[1], {-6378137, 1, 0}).longitude, 180 * degree, 1e-6);
  EXPECT_NEAR(to_geodetic(ellipsoid[1], {-6378137, -1, 0}).longitude, -180 * degree, 1e-6);
  EXPECT_NEAR(to_geodetic(ellipsoid[1], {-6378137, 6378137, 0}).longitude, 135 * degree, 1e-12);
  EXPECT_NEAR(to_geodetic(ellipsoid[1], {-6378137, -6378137, 0}).longitude, 225 * degree - 360 * degree, 1e-12);
}

TEST(Geocentric, OnTheAxisEverythingIsNought) {
  const Geodetic pole = to_geodetic(ellipsoid[1], {0, 0, 6356752});
  EXPECT_EQ(pole.latitude, 0);
  EXPECT_EQ(pole.longitude, 0);
  EXPECT_EQ(pole.height, 0);
}

struct Shifted {
  double latitude, longitude, new_latitude, new_longitude;
};

// PROJ 9.1.1: cart on Bessel, helmert x=-146.414 y=507.337 z=680.507, inverse cart on GRS80
constexpr Shifted shifted[] = {
    {35.6580992222, 139.7413571667, 35.661340011336, 139.738126308289},
    {20, 120, 20.004577883133, 119.998787598582},
    {46.99, 154.99, 46.992488591623, 154.984769537669},
};

TEST(Shift_3parameters, AgreesWithAnIndependentTool) {
  for (const Shifted& row : shifted) {
    const Position position = shift_3parameters(row.latitude, row.longitude);
    EXPECT_NEAR(position.latitude, row.new_latitude, angle_tolerance);
    EXPECT_NEAR(position.longitude, row.new_longitude, angle_tolerance);
  }
}

TEST(Shift_3parameters, AnInfinityIsAFailure) {
  constexpr double infinity = std::numeric_limits<double>::infinity();
  EXPECT_THROW(shift_3parameters(infinity, 140), platform::Division_failure);
  EXPECT_THROW(shift_3parameters(36, std::numeric_limits<double>::quiet_NaN()), platform::Division_failure);
}

TEST(Shift_3parameters, AgreesWithThePublishedPoints) {
  TAKE_SAMPLE_ROWS(rows, "tky2jgd_sample.csv");
  for (const auto& row : rows) {
    if (row.at("method") != "3param") continue;
    const Position position = shift_3parameters(std::stod(row.at("tokyo_lat")), std::stod(row.at("tokyo_lon")));
    EXPECT_NEAR(position.latitude, std::stod(row.at("jgd2000_lat")), std::stod(row.at("tol_deg")));
    EXPECT_NEAR(position.longitude, std::stod(row.at("jgd2000_lon")), std::stod(row.at("tol_deg")));
  }
}

}  // namespace
