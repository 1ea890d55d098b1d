#include "observations/draw_helpers.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/recorder.h"

using drawing::Point;

namespace {

constexpr drawing::Colour green = 0x008000;

void expect_line(const support::Drawn& line, Point from, Point to) {
  EXPECT_EQ(line.what, "line");
  ASSERT_EQ(line.points.size(), 2u);
  EXPECT_NEAR(line.points[0].x, from.x, 1e-9);
  EXPECT_NEAR(line.points[0].y, from.y, 1e-9);
  EXPECT_NEAR(line.points[1].x, to.x, 1e-9);
  EXPECT_NEAR(line.points[1].y, to.y, 1e-9);
  EXPECT_EQ(line.pen, (drawing::Pen{green, 1}));
}

}  // namespace

// One unit to the metre: the map place (X, Y) lies at canvas (X + 100, 1100 - Y).
TEST(Draw_helpers, ALineBetweenMapPointsHasACircleAtItsStart) {
  maps::Canvas canvas;
  canvas.canvas_scale = 1;
  canvas.map_y1 = 1000;
  support::Recorder surface;
  observations::LINE_out(surface, canvas, {0, 1000}, {30, 960}, green);
  ASSERT_EQ(surface.calls.size(), 2u);
  EXPECT_EQ(surface.calls[0].what, "circle");
  EXPECT_EQ(surface.calls[0].points[0], (Point{100, 100}));
  EXPECT_EQ(surface.calls[0].radius, 5);
  EXPECT_EQ(surface.calls[0].pen.colour, green);
  expect_line(surface.calls[1], {100, 100}, {130, 140});
}

// The barbs of a vector to the right point back and up or down: 15 cos 30 and 15 sin 30.
TEST(Draw_helpers, AVectorHasAHeadOf15At30Degrees) {
  support::Recorder surface;
  observations::Vec_out(surface, {10, 20}, {60, 20}, green);
  ASSERT_EQ(surface.calls.size(), 3u);
  const double back = 15 * std::sqrt(3.0) / 2;
  expect_line(surface.calls[0], {10, 20}, {60, 20});
  expect_line(surface.calls[1], {60, 20}, {60 - back, 27.5});
  expect_line(surface.calls[2], {60, 20}, {60 - back, 12.5});
}

TEST(Draw_helpers, AVectorWithoutLengthHasNoHead) {
  support::Recorder surface;
  observations::Vec_out(surface, {10, 20}, {10, 20}, green);
  EXPECT_EQ(surface.calls.size(), 1u);
}

TEST(Draw_helpers, ATurnedBoxIs120By100AndTurnsClockwise) {
  support::Recorder upright, turned;
  observations::kaIten_out(upright, {500, 500}, 0, green);
  ASSERT_EQ(upright.calls.size(), 4u);
  expect_line(upright.calls[0], {440, 450}, {560, 450});
  expect_line(upright.calls[1], {560, 450}, {560, 550});
  expect_line(upright.calls[2], {560, 550}, {440, 550});
  expect_line(upright.calls[3], {440, 550}, {440, 450});
  observations::kaIten_out(turned, {500, 500}, 90, green);
  expect_line(turned.calls[0], {550, 440}, {550, 560});  // its upper side is now the right one
  support::Recorder half;
  observations::kaIten_out(half, {500, 500}, 0, green, 0.5);
  expect_line(half.calls[0], {470, 475}, {530, 475});
}

TEST(Draw_helpers, ABoxIsDrawnByTwoCornersInAnyOrder) {
  support::Recorder surface;
  observations::LBOX(surface, {60, 50}, {10, 20}, green);
  ASSERT_EQ(surface.calls.size(), 4u);
  expect_line(surface.calls[0], {60, 50}, {10, 50});
  expect_line(surface.calls[1], {10, 50}, {10, 20});
  expect_line(surface.calls[2], {10, 20}, {60, 20});
  expect_line(surface.calls[3], {60, 20}, {60, 50});
}

// A sheet of whole degrees: with 10 metres a second and a scale of 0.01 a degree is 360 units. 139 degrees 30 minutes
// lies half a degree east of the west edge, 35 degrees 15 minutes three quarters below the north edge.
TEST(Draw_helpers, TheMarkerOfAPositionStandsItsHalfSizeLeftAndAbove) {
  maps::Canvas canvas;
  canvas.canvas_scale = 0.01;
  canvas.is_geographic = true;
  canvas.geo_x0 = 13'900'000;
  canvas.geo_y1 = 3'500'000;
  canvas.sec_m_x = canvas.sec_m_y = 10;
  canvas.map_y1 = 36'000;
  const observations::Marker_place place = observations::point_out(canvas, {139, 30, 0}, {35, 14, 60});
  EXPECT_NEAR(place.left, (100 + 180) * 7.5 - 75, 1e-3);
  EXPECT_NEAR(place.top, (100 + 270) * 7.5 - 75, 1e-3);
  EXPECT_TRUE(place.visible);
}
