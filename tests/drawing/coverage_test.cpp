#include "drawing/coverage.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

#include "drawing/pixel_target.h"

using drawing::Coverage;
using drawing::Point;
using support::Pixel_target;
using Ring = std::vector<Point>;

namespace {

Ring rectangle(double left, double top, double right, double bottom) {
  return {{left, top}, {right, top}, {right, bottom}, {left, bottom}};
}

void fill(Pixel_target& target, const std::vector<Ring>& rings, const drawing::Pixel_range& clip) {
  Coverage coverage;
  drawing::cover_begin(coverage, {0, 0, static_cast<double>(target.width), static_cast<double>(target.height)});
  for (const Ring& ring : rings) drawing::cover_ring(coverage, ring);
  drawing::cover_blend(coverage, target.raster(), clip, drawing::black);
}

void fill(Pixel_target& target, const std::vector<Ring>& rings) {
  fill(target, rings, target.whole());
}

// The shoelace formula.
double area_of(const Ring& ring) {
  double sum = 0;
  for (std::size_t i = 0; i < ring.size(); ++i) {
    const Point a = ring[i], b = ring[(i + 1) % ring.size()];
    sum += a.x * b.y - b.x * a.y;
  }
  return std::abs(sum) / 2;
}

}  // namespace

TEST(Coverage, WholePixelsAreCoveredInWholeAndNoOthers) {
  Pixel_target target(8, 6);
  fill(target, {rectangle(2, 1, 5, 3)});
  for (int y = 0; y < 6; ++y)
    for (int x = 0; x < 8; ++x) EXPECT_EQ(target.ink(x, y), x >= 2 && x < 5 && y >= 1 && y < 3 ? 255 : 0) << x << y;
}

// A quarter of 255 is 63.75, a half 127.5.
TEST(Coverage, PartsOfPixelsAreCoveredByTheirArea) {
  Pixel_target target(4, 4);
  fill(target, {rectangle(0.5, 0.5, 2.5, 2)});
  EXPECT_EQ(target.ink(0, 0), 64);
  EXPECT_EQ(target.ink(1, 0), 128);
  EXPECT_EQ(target.ink(0, 1), 128);
  EXPECT_EQ(target.ink(1, 1), 255);
  EXPECT_EQ(target.ink(2, 0), 64);
  EXPECT_EQ(target.ink(3, 1), 0);
}

// The edge from (0, 0) to (4, 2): below it lie 3/4 and 1/4 of the first two pixels.
TEST(Coverage, ASlantedEdgeCutsEachPixelAsItRuns) {
  Pixel_target target(4, 2);
  fill(target, {{{0, 0}, {4, 2}, {0, 2}}});
  EXPECT_EQ(target.ink(0, 0), 191);
  EXPECT_EQ(target.ink(1, 0), 64);
  EXPECT_EQ(target.ink(2, 0), 0);
  EXPECT_EQ(target.ink(1, 1), 255);
  EXPECT_EQ(target.ink(2, 1), 191);
  EXPECT_EQ(target.ink(3, 1), 64);
}

TEST(Coverage, ARingTheOtherWayRoundIsAHole) {
  Pixel_target target(40, 6);
  Ring hole = rectangle(3, 2, 37, 4);
  std::reverse(hole.begin(), hole.end());
  fill(target, {rectangle(1, 1, 39, 5), hole});
  EXPECT_EQ(target.ink(2, 3), 255);
  EXPECT_EQ(target.ink(3, 3), 0);
  EXPECT_EQ(target.ink(20, 3), 0);
  EXPECT_EQ(target.ink(37, 3), 255);
  EXPECT_EQ(target.ink(39, 3), 0);
}

TEST(Coverage, LongRunsBetweenTwoEdgesTakeTheAreaOfTheirRow) {
  Pixel_target target(60, 3);
  fill(target, {rectangle(1.5, 0.5, 58.5, 2)});
  for (int x = 2; x < 58; ++x) {
    EXPECT_EQ(target.ink(x, 0), 128) << x;
    EXPECT_EQ(target.ink(x, 1), 255) << x;
    EXPECT_EQ(target.ink(x, 2), 0) << x;
  }
  EXPECT_EQ(target.ink(1, 1), 128);
  EXPECT_EQ(target.ink(58, 1), 128);
}

TEST(Coverage, TheInkOfAnyTriangleIsItsArea) {
  std::mt19937 random(7);
  const auto coordinate = [&] { return static_cast<double>(random() % 3900) / 100; };
  for (int i = 0; i < 500; ++i) {
    const Ring ring{{coordinate(), coordinate()}, {coordinate(), coordinate()}, {coordinate(), coordinate()}};
    Pixel_target target(40, 40);
    fill(target, {ring});
    // Each of some hundred edge pixels is rounded by half a level at most.
    EXPECT_NEAR(target.all_ink(), area_of(ring), 0.25) << i;
  }
}

TEST(Coverage, OnlyTheClipIsTouchedAndThereAllIsAsWithoutIt) {
  const Ring ring{{1.3, 2.2}, {38.1, 7.9}, {20.4, 36.6}};
  Pixel_target whole(40, 40), part(40, 40);
  fill(whole, {ring});
  fill(part, {ring}, {9, 5, 31, 22});
  for (int y = 0; y < 40; ++y)
    for (int x = 0; x < 40; ++x)
      EXPECT_EQ(part.ink(x, y), x >= 9 && x < 31 && y >= 5 && y < 22 ? whole.ink(x, y) : 0) << x << " " << y;
}

// The second ring is next to flat: its slope alone would be infinite. The third has no number in it.
TEST(Coverage, RingsOutsideOfTheBoundsOrWithoutHeightAreCutToThem) {
  const double nan = std::nan("");
  Pixel_target target(4, 4);
  fill(target, {rectangle(2, 2, 90, 90), {{0, 0}, {3, 1e-320}, {3, 0}}, {{nan, nan}, {0, 0}, {nan, 0}}});
  for (int y = 0; y < 4; ++y)
    for (int x = 0; x < 4; ++x) EXPECT_EQ(target.ink(x, y), x >= 2 && y >= 2 ? 255 : 0) << x << y;
}

TEST(Coverage, IsEmptyAfterItWasBlended) {
  Coverage coverage;
  for (const drawing::Pixel_range clip : {drawing::Pixel_range{0, 0, 0, 0}, drawing::Pixel_range{0, 0, 9, 9}}) {
    Pixel_target target(9, 9);
    drawing::cover_begin(coverage, {0, 0, 9, 9});
    drawing::cover_ring(coverage, rectangle(1, 1, 3, 3));
    drawing::cover_blend(coverage, target.raster(), clip, drawing::black);
    drawing::cover_begin(coverage, {0, 0, 9, 9});
    drawing::cover_blend(coverage, target.raster(), target.whole(), drawing::black);
    EXPECT_EQ(target.all_ink(), clip.x1 == 0 ? 0 : 4);
  }
}

// (200 x 51 + 100 x 204) / 255 = 120
TEST(Coverage, ColoursAreMixedByTheMask) {
  Pixel_target target(3, 1);
  target.pixels = {0xff646464, 0xff646464, 0xff646464};
  drawing::mask_blend({1, 0, 2, 1, {51, 255}}, 0, 0, target.raster(), target.whole(), 0xc8c8c8);
  EXPECT_EQ(target.pixels[0], 0xff646464);
  EXPECT_EQ(target.pixels[1], 0xff787878);
  EXPECT_EQ(target.pixels[2], 0xffc8c8c8);
}

TEST(Coverage, AMaskBeyondTheClipLeavesNoTrace) {
  Pixel_target target(4, 4);
  const drawing::Mask mask{0, 0, 2, 2, {255, 255, 255, 255}};
  for (const auto& [x, y] : {std::pair{-5, 0}, {9, 0}, {0, -9}, {0, 9}})
    drawing::mask_blend(mask, x, y, target.raster(), target.whole(), drawing::black);
  EXPECT_EQ(target.all_ink(), 0);
  drawing::mask_blend(mask, 3, 3, target.raster(), target.whole(), drawing::black);
  EXPECT_EQ(target.all_ink(), 1);
}
