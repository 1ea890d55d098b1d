#include "instruments/scatter.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

namespace {

using namespace instruments;

TEST(Scatter, HasNoMeanOfNothing) {
  EXPECT_FALSE(scatter_of({}));
  EXPECT_EQ(scatter_text({}, true), "選択された行に面がありません。");
  EXPECT_EQ(scatter_text({}, false), "No plane among the ticked rows.");
}

TEST(Scatter, OfOnePlaneIsThePlane) {
  const auto scatter = scatter_of({{50, 49}});
  ASSERT_TRUE(scatter);
  EXPECT_NEAR(scatter->mean.azimuth, 50, 1e-9);
  EXPECT_NEAR(scatter->mean.dip, 49, 1e-9);
  EXPECT_FALSE(scatter->k);
  EXPECT_FALSE(scatter->cone);
}

TEST(Scatter, OfEqualPlanesHasNoBound) {
  const auto scatter = scatter_of({{50, 49}, {50, 49}, {50, 49}});
  EXPECT_FALSE(scatter->k);
  EXPECT_EQ(scatter_text(scatter, true), "n = 3   平均 N50.0E 49.0S   k = -   α95 = -");
}

// Four planes that dip by 10 degrees to the four sides: each pole is 10 degrees off the vertical. R = 4 cos 10 =
// 3.9392310, k = 3 / 0.0607690 = 49.3673; the cone: 1 - 0.0607690 / 3.9392310 x (20^(1/3) - 1) = 0.9735524, 13.2057.
TEST(Scatter, OfPlanesAboutTheHorizontal) {
  const auto scatter = scatter_of({{0, 10}, {90, 10}, {180, 10}, {270, 10}});
  EXPECT_NEAR(scatter->mean.dip, 0, 1e-6);
  EXPECT_NEAR(scatter->resultant, 3.9392310, 1e-7);
  EXPECT_NEAR(*scatter->k, 49.3673, 1e-3);
  EXPECT_NEAR(*scatter->cone, 13.2057, 1e-3);
  EXPECT_NEAR(scatter->share, 0.9698463, 1e-7);  // cos^2 10
}

// Two steep planes that fall to opposite sides: their lower poles lie 170 degrees apart, their axes 10. R = 2 cos 5.
TEST(Scatter, TakesAPoleByEitherEnd) {
  const auto scatter = scatter_of({{0, 85}, {180, 85}});
  EXPECT_NEAR(scatter->mean.dip, 90, 1e-6);
  EXPECT_NEAR(std::fmod(scatter->mean.azimuth, 180), 0, 1e-6);
  EXPECT_NEAR(scatter->resultant, 2 * std::cos(5 * std::numbers::pi / 180), 1e-12);
  EXPECT_NEAR(*scatter->k, 131.396, 1e-2);
}

// A mean must not depend on which side of the vertical its planes happen to fall. The numbers of both tests are those
// of the longest sum over every choice of the poles' ends, worked out apart.
TEST(Scatter, IsTheSameForSteepPlanesOnBothSidesOfTheVertical) {
  const auto scatter = scatter_of({{30, 88}, {210, 88}, {34, 89}, {206, 87}});
  EXPECT_NEAR(scatter->resultant, 3.99254309, 1e-8);
  EXPECT_NEAR(*scatter->k, 402.31139, 1e-4);
  EXPECT_NEAR(scatter->mean.azimuth, 210.00122, 1e-5);
  EXPECT_NEAR(scatter->mean.dip, 89.49939, 1e-5);
}

TEST(Scatter, OfAnUnevenGroup) {
  const auto scatter = scatter_of({{50, 49}, {55, 45}, {47, 52}, {62, 40}, {41, 50}});
  EXPECT_NEAR(*scatter->k, 118.841112, 1e-5);
  EXPECT_NEAR(*scatter->cone, 7.04736987, 1e-7);
  EXPECT_NEAR(scatter->mean.azimuth, 50.5394979, 1e-6);
  EXPECT_NEAR(scatter->mean.dip, 46.9901795, 1e-6);
  EXPECT_EQ(scatter_text(scatter, false), "n = 5   mean N50.5E 47.0S   k = 118.8   α95 = 7.0°");
}

// Poles along the three axes of space have no common one.
TEST(Scatter, SaysHowLittleAMeanOfAllDirectionsSays) {
  const auto scatter = scatter_of({{0, 0}, {0, 90}, {90, 90}});
  EXPECT_NEAR(scatter->share, 1.0 / 3, 1e-12);
}

TEST(Scatter, HasNoConeForThreePolesAllAround) {
  EXPECT_FALSE(scatter_of({{0, 0}, {0, 90}, {90, 90}})->cone);
}

TEST(Pole_of, StandsOppositeToTheFall) {
  const Axis pole = pole_of({0, 30});  // falls to the east by 30
  EXPECT_NEAR(pole.trend, 270, 1e-12);
  EXPECT_NEAR(pole.plunge, 60, 1e-12);
  const Plane plane = plane_of(pole);
  EXPECT_NEAR(plane.azimuth, 0, 1e-12);
  EXPECT_NEAR(plane.dip, 30, 1e-12);
}

TEST(Axis_of, TakesADirectionThatPointsUpByItsOtherEnd) {
  const Axis axis = axis_of({0, 0.5, -std::sqrt(0.75)});
  EXPECT_NEAR(axis.trend, 270, 1e-9);
  EXPECT_NEAR(axis.plunge, 60, 1e-9);
}

TEST(Measured_of, AddsTheDeclinationToTheMagneticColumns) {
  const Measured measured = measured_of("1,L,N50E,49S,3.5,N30E,12,t,★,0,0,wrong,wrong", -7.5);
  ASSERT_TRUE(measured.plane);
  EXPECT_EQ(measured.plane->azimuth, 42.5);
  EXPECT_EQ(measured.plane->dip, 49);
  ASSERT_TRUE(measured.lineation);
  EXPECT_EQ(measured.lineation->trend, 22.5);
  EXPECT_EQ(measured.lineation->plunge, 12);
  EXPECT_EQ(measured.mark, "★");
}

TEST(Measured_of, BringsTheAzimuthIntoTheCircle) {
  EXPECT_EQ(measured_of("1,P,N5E,49E", -7.5).plane->azimuth, 357.5);
  EXPECT_EQ(measured_of("1,P,N5W,49E", 7).plane->azimuth, 2);
}

TEST(Measured_of, HasNeitherWhereNoneWasMeasured) {
  for (const char* line : {"", "1,L,-0-,,0.2,-0-,,t,m", "1,P,,,0.2,N30E,12,t,m", "1,L, ,,0.2,  ,  ,t,m"}) {
    EXPECT_FALSE(measured_of(line, 0).plane) << line;
    EXPECT_FALSE(measured_of(line, 0).lineation) << line;
  }
  EXPECT_FALSE(measured_of("1,P,1e308,30", 1.7e308).plane);
}

TEST(Plane_text, ReadsFromTheNorthWithTheQuadrantOfTheFall) {
  EXPECT_EQ(plane_text({0, 30}), "N0.0E 30.0E");
  EXPECT_EQ(plane_text({180, 30}), "N0.0E 30.0W");
  EXPECT_EQ(plane_text({50.24, 49}), "N50.2E 49.0S");
  EXPECT_EQ(plane_text({230, 49}), "N50.0E 49.0N");
  EXPECT_EQ(plane_text({340, 30}), "N20.0W 30.0E");
  EXPECT_EQ(plane_text({160, 30}), "N20.0W 30.0W");
  EXPECT_EQ(plane_text({110, 30}), "N70.0W 30.0S");
  EXPECT_EQ(plane_text({90, 30}), "N90.0E 30.0S");
}

}  // namespace
