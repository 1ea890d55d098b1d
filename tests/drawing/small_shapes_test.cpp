#include "drawing/small_shapes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

#include "drawing/pixel_target.h"

using drawing::Point;
using drawing::Small_shapes;
using support::Pixel_target;

namespace {

struct Small : ::testing::Test {
  Pixel_target target{200, 200};
  Small_shapes shapes;
  Small() {
    shapes.raster = target.raster();
    shapes.clip = target.whole();
  }
};

}  // namespace

// A pen of width 2 and its square ends: the line is 2 longer than from end to end.
TEST_F(Small, ALineIsARectangleWithSquareEnds) {
  ASSERT_TRUE(drawing::small_line(shapes, {100, 50}, {110, 50}, 2, drawing::black));
  EXPECT_EQ(target.all_ink(), 24);
  EXPECT_EQ(target.ink(99, 49), 255);
  EXPECT_EQ(target.ink(110, 50), 255);
  EXPECT_EQ(target.ink(111, 50), 0);
}

TEST_F(Small, ALineHasTheSameInkInEachDirection) {
  for (int degrees = 0; degrees < 360; degrees += 7) {
    Pixel_target page(60, 60);
    shapes.raster = page.raster();
    shapes.clip = page.whole();
    const double a = degrees * std::numbers::pi / 180;
    ASSERT_TRUE(drawing::small_line(shapes, {30.3, 29.8}, {30.3 + 20 * std::cos(a), 29.8 + 20 * std::sin(a)}, 1.5,
                                    drawing::black));
    EXPECT_NEAR(page.all_ink(), 21.5 * 1.5, 0.15) << degrees;
  }
}

TEST_F(Small, ACircleIsARingOrADisc) {
  ASSERT_TRUE(drawing::small_circle(shapes, {50.4, 60.7}, 10, 2, drawing::black, false));
  EXPECT_NEAR(target.all_ink(), std::numbers::pi * (11 * 11 - 9 * 9), 0.7);
  EXPECT_EQ(target.ink(50, 60), 0);
  Pixel_target other(200, 200);
  shapes.raster = other.raster();
  ASSERT_TRUE(drawing::small_circle(shapes, {50.4, 60.7}, 10, 2, drawing::black, true));
  EXPECT_NEAR(other.all_ink(), std::numbers::pi * 11 * 11, 1.2);
}

// Against the share of 32 x 32 places in each pixel that lie on the ring.
TEST_F(Small, EachPixelOfACircleIsCoveredByItsArea) {
  constexpr int places = 32;
  for (const double radius : {2.5, 5.0, 12.3, 40.0}) {
    Pixel_target page(100, 100);
    shapes.raster = page.raster();
    const Point centre{50.3, 49.6};
    ASSERT_TRUE(drawing::small_circle(shapes, centre, radius, 2, drawing::black, false));
    for (int y = 0; y < 100; ++y)
      for (int x = 0; x < 100; ++x) {
        int on_ring = 0;
        for (int i = 0; i < places * places; ++i) {
          const double r = std::hypot(x + (i % places + 0.5) / places - centre.x,
                                      y + (std::floor(i / double(places)) + 0.5) / places - centre.y);
          if (std::abs(r - radius) <= 1) ++on_ring;
        }
        // The chords lie up to 0.02 pixels off at either edge of the ring.
        EXPECT_NEAR(page.ink(x, y), 255.0 * on_ring / (places * places), 12) << x << " " << y << " " << radius;
      }
  }
}

// A square of 20 with a pen of 2: 22 x 22 without the four bevels of half a square pixel each; inside 18 x 18.
TEST_F(Small, ASquareHasBevelledCorners) {
  const std::vector<Point> corners{{20, 20}, {40, 20}, {40, 40}, {20, 40}};
  ASSERT_TRUE(drawing::small_polygon(shapes, corners, 2, drawing::black, false));
  EXPECT_NEAR(target.all_ink(), 484 - 2 - 324, 0.05);
  EXPECT_EQ(target.ink(19, 19), 128);
  EXPECT_EQ(target.ink(30, 30), 0);
  ASSERT_TRUE(drawing::small_polygon(shapes, corners, 2, drawing::black, true));
  EXPECT_EQ(target.ink(30, 30), 255);
}

TEST_F(Small, BothWaysRoundGiveTheSamePicture) {
  ASSERT_TRUE(drawing::small_polygon(shapes, std::vector<Point>{{50, 20}, {62, 44}, {38, 44}}, 2, 0, false));
  Pixel_target other(200, 200);
  shapes.raster = other.raster();
  ASSERT_TRUE(drawing::small_polygon(shapes, std::vector<Point>{{38, 44}, {62, 44}, {50, 20}}, 2, 0, false));
  EXPECT_EQ(target.pixels, other.pixels);
}

TEST_F(Small, AThickPenOnASmallMarkLeavesNoHole) {
  ASSERT_TRUE(drawing::small_polygon(shapes, std::vector<Point>{{50, 50}, {52, 50}, {52, 52}, {50, 52}}, 4, 0, false));
  EXPECT_EQ(target.ink(50, 50), 255);
  EXPECT_EQ(target.ink(51, 51), 255);
  ASSERT_TRUE(drawing::small_circle(shapes, {100, 100}, 1, 4, 0, false));
  EXPECT_EQ(target.ink(100, 100), 255);
}

TEST_F(Small, WhatItIsNotMadeForIsLeftToThePainter) {
  const double nan = std::numeric_limits<double>::quiet_NaN();
  EXPECT_FALSE(drawing::small_line(shapes, {10, 10}, {10, 10}, 2, 0));
  EXPECT_FALSE(drawing::small_line(shapes, {10, 10}, {190, 10}, 2, 0));
  EXPECT_FALSE(drawing::small_line(shapes, {nan, 10}, {20, 10}, 2, 0));
  EXPECT_FALSE(drawing::small_line(shapes, {3e38, 10}, {-3e38, 10}, 2, 0));
  EXPECT_FALSE(drawing::small_circle(shapes, {100, 100}, 90, 2, 0, true));
  EXPECT_FALSE(drawing::small_circle(shapes, {100, 100}, 0, 2, 0, true));
  EXPECT_FALSE(drawing::small_circle(shapes, {3e38, 100}, 5, 2, 0, true));
  EXPECT_FALSE(drawing::small_polygon(shapes, std::vector<Point>{{10, 10}, {20, 10}}, 2, 0, false));
  EXPECT_FALSE(drawing::small_polygon(shapes, std::vector<Point>{{10, 10}, {20, 10}, {30, 10}}, 2, 0, false));
  const std::vector<Point> dented{{10, 10}, {20, 15}, {30, 10}, {20, 30}};
  EXPECT_FALSE(drawing::small_polygon(shapes, dented, 2, 0, false));
  const std::vector<Point> crossed{{10, 10}, {30, 30}, {30, 10}, {10, 30}};
  EXPECT_FALSE(drawing::small_polygon(shapes, crossed, 2, 0, false));
  const std::vector<Point> star{{50, 20}, {68, 76}, {20, 41}, {80, 41}, {32, 76}};
  EXPECT_FALSE(drawing::small_polygon(shapes, star, 2, 0, false));
  EXPECT_FALSE(drawing::small_line(shapes, {10, 10}, {20, 10}, 0, 0));
  EXPECT_FALSE(drawing::small_circle(shapes, {100, 100}, 5, 0, 0, true));
  EXPECT_FALSE(drawing::small_circle(shapes, {100, 100}, 5, nan, 0, true));
  for (std::size_t i = 0; i < 3; ++i)
    for (const double bad : {nan, 1e308}) {
      std::vector<Point> corners{{50, 20}, {62, 44}, {38, 44}};
      corners[i].x = bad;
      EXPECT_FALSE(drawing::small_polygon(shapes, corners, 2, 0, false)) << i << " " << bad;
    }
  EXPECT_EQ(target.all_ink(), 0);
}

// Corners that lie level with one another, in each order and both ways round, belong to one round all the same.
TEST_F(Small, AConvexPolygonIsDrawnFromWhicheverCornerItBegins) {
  std::vector<Point> corners{{40, 40}, {60, 40}, {70, 60}, {60, 80}, {40, 80}, {30, 60}};
  for (int way = 0; way < 2; ++way, std::reverse(corners.begin(), corners.end()))
    for (std::size_t i = 0; i < corners.size(); ++i) {
      std::rotate(corners.begin(), corners.begin() + 1, corners.end());
      EXPECT_TRUE(drawing::small_polygon(shapes, corners, 2, 0, true)) << way << " " << i;
    }
}

TEST_F(Small, AnEmptyClipTakesNothing) {
  shapes.clip = {0, 0, 0, 0};
  EXPECT_TRUE(drawing::small_circle(shapes, {0, 0}, 10, 2, 0, true));
  EXPECT_EQ(target.all_ink(), 0);
}

TEST_F(Small, AShapeOverEachCornerOfTheClipStaysInsideIt) {
  shapes.clip = {50, 60, 150, 140};
  for (const Point corner : {Point{50, 60}, {150, 60}, {150, 140}, {50, 140}}) {
    ASSERT_TRUE(drawing::small_circle(shapes, corner, 10, 2, 0, true));
    ASSERT_TRUE(drawing::small_line(shapes, {corner.x - 40, corner.y}, {corner.x + 40, corner.y + 1}, 3, 0));
  }
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 200; ++x) {
      const bool in_clip = x >= 50 && x < 150 && y >= 60 && y < 140;
      EXPECT_TRUE(in_clip || target.ink(x, y) == 0) << x << " " << y;
    }
  EXPECT_EQ(target.ink(50, 60), 255);
  EXPECT_EQ(target.ink(149, 139), 255);
}

TEST_F(Small, WhatLiesOutsideIsDoneWithoutATrace) {
  EXPECT_TRUE(drawing::small_circle(shapes, {-50, 100}, 10, 2, 0, true));
  EXPECT_TRUE(drawing::small_line(shapes, {100, 300}, {110, 300}, 2, 0));
  EXPECT_EQ(target.all_ink(), 0);
}
