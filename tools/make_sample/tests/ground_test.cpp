#include "make_sample/ground.h"

#include <gtest/gtest.h>

#include <cmath>
#include <numbers>

#include "make_sample/random.h"

namespace {

using ground::Attitude;
using ground::Height;
using ground::Point;

constexpr double degrees = 180 / std::numbers::pi;

const ground::Ground& the_ground() {
  static const ground::Ground made = ground::make_ground();
  return made;
}

std::vector<Point> scattered_points(int count) {
  ground::Random random{1};
  std::vector<Point> points;
  for (int i = 0; i < count; ++i)
    points.push_back({ground::next_between(random, -11300, 11300), ground::next_between(random, -9200, 9200)});
  return points;
}

// The plane through a surface's heights on a small square, by least squares; on a centred square the two slopes
// separate into sums of products.
Attitude fitted_attitude(int k, double x, double y) {
  double xz = 0, yz = 0, xx = 0, yy = 0;
  for (int i = -3; i <= 3; ++i)
    for (int j = -3; j <= 3; ++j) {
      const double z = ground::boundary(k, x + i, y + j).z;
      xz += i * z;
      yz += j * z;
      xx += i * i;
      yy += j * j;
    }
  // The normal (-a, -b, 1) leans towards the dip direction.
  const double a = xz / xx, b = yz / yy;
  double direction = 90 - std::atan2(-b, -a) * degrees;
  if (direction < 0) direction += 360;
  const double strike = direction < 90 ? direction + 270 : direction - 90;
  return {strike, std::acos(1 / std::sqrt(a * a + b * b + 1)) * degrees, direction};
}

TEST(Ground, HasHeightsOfAFewHundredMetres) {
  double lowest = 1e9, highest = -1e9;
  for (double x = -11250; x <= 11250; x += 150)
    for (double y = -9200; y <= 9200; y += 150) {
      const double z = ground::topography(the_ground(), x, y).z;
      lowest = std::min(lowest, z);
      highest = std::max(highest, z);
    }
  EXPECT_GT(lowest, 100);
  EXPECT_LT(lowest, 250);
  EXPECT_GT(highest, 700);
  EXPECT_LT(highest, 1000);
}

TEST(Ground, GivesTheTopographysSlopesExactly) {
  // On a ridge's very line, and where two pieces of a stream meet, a step to either side sees two valleys; such points
  // are rare.
  int disagreeing = 0;
  const std::vector<Point> points = scattered_points(4000);
  for (Point p : points) {
    constexpr double step = 0.01;
    const Height height = ground::topography(the_ground(), p.x, p.y);
    const double dx =
        (ground::topography(the_ground(), p.x + step, p.y).z - ground::topography(the_ground(), p.x - step, p.y).z) /
        (2 * step);
    const double dy =
        (ground::topography(the_ground(), p.x, p.y + step).z - ground::topography(the_ground(), p.x, p.y - step).z) /
        (2 * step);
    if (std::hypot(dx - height.dx, dy - height.dy) > 1e-4) ++disagreeing;
  }
  EXPECT_LE(disagreeing, 20) << "of " << points.size();
}

TEST(Ground, GivesTheBoundariesSlopesExactly) {
  for (Point p : scattered_points(500))
    for (int k = 1; k <= ground::boundaries; ++k) {
      constexpr double step = 0.01;
      const Height height = ground::boundary(k, p.x, p.y);
      const double dx = (ground::boundary(k, p.x + step, p.y).z - ground::boundary(k, p.x - step, p.y).z) / (2 * step);
      const double dy = (ground::boundary(k, p.x, p.y + step).z - ground::boundary(k, p.x, p.y - step).z) / (2 * step);
      ASSERT_NEAR(height.dx, dx, 1e-6) << p.x << " " << p.y;
      ASSERT_NEAR(height.dy, dy, 1e-6) << p.x << " " << p.y;
    }
}

TEST(Ground, LetsEveryStreamFallTowardsItsMouth) {
  for (const ground::Stream& stream : the_ground().streams)
    for (std::size_t i = 1; i < stream.nodes.size(); ++i) ASSERT_GT(stream.nodes[i].bed, stream.nodes[i - 1].bed);
}

TEST(Ground, KeepsTheBedOfAStreamAtItsNodes) {
  // A deeper valley close by may cut a small stream off: then the land lies lower there. It never lies higher.
  int nodes = 0, cut_off = 0;
  for (const ground::Stream& stream : the_ground().streams)
    for (const ground::Stream_node& node : stream.nodes) {
      if (std::abs(node.at.x) > 11300 || std::abs(node.at.y) > 9200) continue;
      const double z = ground::topography(the_ground(), node.at.x, node.at.y).z;
      ASSERT_LE(z, node.bed + 1e-6);
      ++nodes;
      if (z < node.bed - 3) ++cut_off;
      // The river keeps its bed.
      if (stream.order == 0) {
        ASSERT_GT(z, node.bed - 1);
      }
    }
  EXPECT_GT(nodes, 5000);
  EXPECT_LT(cut_off, nodes / 16);
}

TEST(Ground, ReadsAttitudesFromSlopes) {
  // Falls a metre a metre towards the east; towards the south-west; a third towards the north.
  const Attitude east = ground::attitude_of_slopes(-1, 0);
  EXPECT_NEAR(east.dip, 45, 1e-9);
  EXPECT_NEAR(east.dip_direction, 90, 1e-9);
  EXPECT_NEAR(east.strike, 0, 1e-9);
  const Attitude south_west = ground::attitude_of_slopes(0.5, 0.5);
  EXPECT_NEAR(south_west.dip, 35.26438968, 1e-8);
  EXPECT_NEAR(south_west.dip_direction, 225, 1e-9);
  EXPECT_NEAR(south_west.strike, 135, 1e-9);
  const Attitude north = ground::attitude_of_slopes(0, -1 / std::sqrt(3.0));
  EXPECT_NEAR(north.dip, 30, 1e-9);
  EXPECT_NEAR(north.dip_direction, 0, 1e-9);
  EXPECT_NEAR(north.strike, 270, 1e-9);
}

TEST(Ground, HasTheStrikeAndDipOfAPlaneFittedToABoundary) {
  for (Point p : scattered_points(300))
    for (int k = 1; k <= ground::boundaries; ++k) {
      // Beside the fault the fitted square would bend over its edge.
      if (std::abs(ground::boundary(k, p.x, p.y).z - ground::fault_plane(p.x, p.y).z) < 40) continue;
      const Attitude told = ground::strike_dip(k, p.x, p.y), fitted = fitted_attitude(k, p.x, p.y);
      ASSERT_NEAR(told.dip, fitted.dip, 0.02);
      ASSERT_NEAR(std::remainder(told.dip_direction - fitted.dip_direction, 360), 0, 0.05 + 0.5 / fitted.dip);
      ASSERT_NEAR(std::remainder(told.strike + 90 - told.dip_direction, 360), 0, 1e-9);
    }
}

TEST(Ground, TearsEachBoundaryByTheThrowAndTheHeave) {
  // From the fault's own point down its dip the boundary is first met by the plane at one torn edge and leaves it at
  // the other: the way between them is the movement.
  const double direction = ground::fault_strike_dip().dip_direction / degrees;
  for (int k = 1; k <= ground::boundaries; ++k) {
    double first = 1e9, last = -1e9, high = 0, low = 0;
    for (double along = -700; along < 700; along += 0.05) {
      const double x = ground::fault_point().x + along * std::sin(direction);
      const double y = ground::fault_point().y + along * std::cos(direction);
      const double plane = ground::fault_plane(x, y).z;
      if (ground::boundary(k, x, y).z != plane) continue;
      if (along < first) {
        first = along;
        high = plane;
      }
      last = along;
      low = plane;
    }
    EXPECT_NEAR(last - first, ground::fault_heave(), 0.1) << k;
    EXPECT_NEAR(high - low, ground::fault_throw, 0.25) << k;
  }
}

TEST(Ground, StacksTheStrataFromOneToFour) {
  for (Point p : scattered_points(500)) {
    int before = 1;
    for (double z = -1500; z < 2500; z += 20) {
      const int stratum = ground::stratum_at(p.x, p.y, z);
      // Going up through the fault plane one comes into the block that has gone down: older below, younger above.
      ASSERT_GE(stratum, before);
      before = stratum;
    }
    EXPECT_EQ(before, ground::strata);
  }
}

TEST(Ground, ChangesTheStratumAtItsBoundary) {
  for (Point p : scattered_points(300))
    for (int k = 1; k <= ground::boundaries; ++k) {
      const double z = ground::boundary(k, p.x, p.y).z;
      if (std::abs(z - ground::fault_plane(p.x, p.y).z) < 1) continue;
      EXPECT_EQ(ground::stratum_at(p.x, p.y, z + 0.01), k + 1);
      EXPECT_EQ(ground::stratum_at(p.x, p.y, z - 0.01), k);
    }
}

TEST(Ground, BringsEveryStratumToTheSurface) {
  std::vector<int> seen(ground::strata + 1);
  for (Point p : scattered_points(2000))
    ++seen[static_cast<std::size_t>(ground::stratum_at(p.x, p.y, ground::topography(the_ground(), p.x, p.y).z))];
  for (int stratum = 1; stratum <= ground::strata; ++stratum)
    EXPECT_GT(seen[static_cast<std::size_t>(stratum)], 100) << stratum;
}

}  // namespace
