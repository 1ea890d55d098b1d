#include "maps/zoom.h"

#include <gtest/gtest.h>

#include <cmath>

#include "maps/map_place.h"

namespace {

using maps::Canvas;
using maps::Scroll_bars;

Canvas sheet() {
  Canvas canvas = support::plain_canvas();
  canvas.map_x0 = canvas.map_y0 = 0;
  canvas.map_x1 = 1000;
  canvas.map_y1 = 800;
  canvas.view_x = canvas.view_y = 0;
  canvas.label_scale = 2;
  canvas.width = 6000;
  canvas.height = 4500;
  return canvas;
}

TEST(Command16, MultipliesScaleLabelsAndOffsets) {
  Canvas canvas = sheet();
  canvas.view_x = -500;
  canvas.view_y = 300;
  Scroll_bars bars;
  bars.vertical.value = bars.vertical.last = 9;
  maps::Command16(canvas, bars);
  EXPECT_EQ(canvas.canvas_scale, 0.5 * 1.2);
  EXPECT_EQ(canvas.label_scale, 2.4);
  EXPECT_EQ(canvas.view_x, -600);
  EXPECT_EQ(canvas.view_y, 0);  // not below 0
  EXPECT_EQ(bars.horizontal.value, 120);
  EXPECT_EQ(bars.vertical.value, 9);  // only an offset below 0 sets its bar
}

TEST(Command17, DividesThem) {
  Canvas canvas = sheet();
  canvas.view_x = -600;
  canvas.view_y = -12;
  Scroll_bars bars;
  maps::Command17(canvas, bars);
  EXPECT_EQ(canvas.canvas_scale, 0.5 / 1.2);
  EXPECT_EQ(canvas.label_scale, 2 / 1.2);
  EXPECT_EQ(canvas.view_x, -500);
  EXPECT_EQ(canvas.view_y, -10);
  EXPECT_EQ(bars.horizontal.value, 100);
  EXPECT_EQ(bars.vertical.value, 2);
}

TEST(Command17, DoesNotMoveTheViewByTheBarThatItSets) {
  Canvas canvas = sheet();
  canvas.view_x = -600;
  Scroll_bars bars;
  maps::Command17(canvas, bars);
  EXPECT_FALSE(maps::scroll_changed(bars.horizontal, canvas.view_x, bars.horizontal.value, true, true));
  EXPECT_EQ(canvas.view_x, -500);
}

TEST(Command18, ReturnsToTheSheetAsItWasSelected) {
  Canvas canvas = sheet();
  Scroll_bars bars;
  maps::zoom_in_at(canvas, bars, 4000, 3000);
  canvas.zoom_count = 3;
  maps::Command18(canvas, bars, 2);
  EXPECT_EQ(canvas.canvas_scale, 0.5);
  EXPECT_EQ(canvas.label_scale, 2);
  EXPECT_EQ(canvas.zoom_count, 1);
  EXPECT_EQ(canvas.view_x, 0);
  EXPECT_EQ(canvas.view_y, 0);
  EXPECT_EQ(bars.horizontal.value, 0);
}

TEST(Zoom, EndsBeforeTheScaleLosesItsMeaning) {
  Canvas canvas = sheet();
  Scroll_bars bars;
  for (int i = 0; i < 10'000; ++i) maps::Command16(canvas, bars);
  EXPECT_TRUE(std::isfinite(canvas.canvas_scale));
  EXPECT_GT(canvas.canvas_scale, 0.5 * 80'000);
  for (int i = 0; i < 10'000; ++i) maps::Command17(canvas, bars);
  EXPECT_GT(canvas.canvas_scale, 0);
}

TEST(Zoom_at, KeepsThePlaceUnderTheMouse) {
  Canvas canvas = sheet();
  canvas.view_x = -900;
  canvas.view_y = -700;
  Scroll_bars bars;
  const maps::Map_position before = maps::henkan_M(canvas, 3100, 2050);
  for (const auto zoom : {maps::zoom_in_at, maps::zoom_in_at, maps::zoom_out_at}) {
    zoom(canvas, bars, 3100, 2050);
    const maps::Map_position after = maps::henkan_M(canvas, 3100, 2050);
    EXPECT_NEAR(after.x, before.x, 1e-9);
    EXPECT_NEAR(after.y, before.y, 1e-9);
  }
  EXPECT_EQ(bars.horizontal.value, std::lround(-canvas.view_x / 5));
}

TEST(Zoom_at, BringsNoOffsetAboveNothing) {
  Canvas canvas = sheet();
  Scroll_bars bars;
  maps::zoom_out_at(canvas, bars, 3000, 3000);
  EXPECT_EQ(canvas.view_x, 0);
  EXPECT_EQ(canvas.view_y, 0);
}

TEST(Zoom_to_rectangle, BringsTheCornerToTheTopLeft) {
  Canvas canvas = sheet();
  Scroll_bars bars;
  // 3000 x 1000 twips at (1500, 2250): twice as large. The corner is 100 units right of the margin: 200 m; 200 down:
  // 400 m below the north edge.
  EXPECT_TRUE(maps::zoom_to_rectangle(canvas, bars, {1500, 2250, 3000, 1000}));
  EXPECT_EQ(canvas.canvas_scale, 1);
  EXPECT_EQ(canvas.label_scale, 4);
  EXPECT_DOUBLE_EQ(canvas.view_x, -(200 + 100) * 7.5);
  EXPECT_DOUBLE_EQ(canvas.view_y, -(400 + 100) * 7.5);
  EXPECT_EQ(bars.horizontal.value, 2250);
  EXPECT_EQ(bars.vertical.value, 3750);
  const maps::Map_position corner = maps::henkan_M(canvas, 0, 0);
  EXPECT_DOUBLE_EQ(corner.x, 200);
  EXPECT_DOUBLE_EQ(corner.y, 400);
}

TEST(Zoom_to_rectangle, RaisesTheCornerOutOfTheMargin) {
  Canvas canvas = sheet();
  Scroll_bars bars;
  EXPECT_TRUE(maps::zoom_to_rectangle(canvas, bars, {10, 750, 3000, 1000}));
  const maps::Map_position corner = maps::henkan_M(canvas, 0, 0);
  EXPECT_NEAR(corner.x, 1 / 7.5 / 0.5, 1e-3);  // 751 twips are one twip beyond the margin
  EXPECT_NEAR(corner.y, 800 - 1 / 7.5 / 0.5, 1e-3);
}

TEST(Zoom_to_rectangle, DoesNothingWithoutAWidth) {
  Canvas canvas = sheet();
  Scroll_bars bars;
  EXPECT_FALSE(maps::zoom_to_rectangle(canvas, bars, {1500, 2250, 0, 1000}));
  EXPECT_FALSE(maps::zoom_to_rectangle(canvas, bars, {1500, 2250, -5, 1000}));
  EXPECT_EQ(canvas.canvas_scale, 0.5);
  EXPECT_EQ(canvas.view_x, 0);
}

TEST(Scroll_changed, MovesTheViewByTheDifference) {
  maps::Scroll_bar bar{100, 100};
  double view = -50;
  EXPECT_TRUE(maps::scroll_changed(bar, view, 130, true, true));
  EXPECT_EQ(view, -80);
  EXPECT_TRUE(maps::scroll_changed(bar, view, 90, true, true));
  EXPECT_EQ(view, -40);
}

TEST(Scroll_changed, KeepsTheLastValueWithoutThePanFlag) {
  maps::Scroll_bar bar{100, 100};
  double view = -50;
  EXPECT_FALSE(maps::scroll_changed(bar, view, 130, false, true));
  EXPECT_EQ(view, -50);
  EXPECT_TRUE(maps::scroll_changed(bar, view, 131, true, true));
  EXPECT_EQ(view, -51);
}

TEST(Scroll_changed, DoesNothingWithoutASheet) {
  maps::Scroll_bar bar{100, 100};
  double view = -50;
  EXPECT_FALSE(maps::scroll_changed(bar, view, 130, true, false));
  EXPECT_EQ(view, -50);
  EXPECT_EQ(bar.last, 100);
}

TEST(Drag_pan, MovesBarsAgainstTheDragByAFifth) {
  Canvas canvas = sheet();
  canvas.view_x = canvas.view_y = -1000;
  Scroll_bars bars{{50, 50, -1000, 1000}, {60, 60, -1000, 1000}};
  EXPECT_TRUE(maps::drag_pan(canvas, bars, 250, -55));
  EXPECT_EQ(bars.horizontal.value, 0);
  EXPECT_EQ(canvas.view_x, -950);
  EXPECT_EQ(bars.vertical.value, 71);
  EXPECT_EQ(canvas.view_y, -1011);
}

TEST(Drag_pan, TakesNoDragOfExactlyAHundredTwips) {
  Canvas canvas = sheet();
  Scroll_bars bars{{0, 0, -1000, 1000}, {0, 0, -1000, 1000}};
  EXPECT_FALSE(maps::drag_pan(canvas, bars, 100, -100));
  EXPECT_EQ(bars.horizontal.value, 0);
  EXPECT_TRUE(maps::drag_pan(canvas, bars, 0, -101));
  EXPECT_EQ(bars.vertical.value, 20);
}

TEST(Drag_pan, StopsAtTheEnds) {
  Canvas canvas = sheet();
  Scroll_bars bars{{0, 0, -3, 10}, {0, 0, 0, 0}};
  maps::drag_pan(canvas, bars, 5000, 5000);
  EXPECT_EQ(bars.horizontal.value, -3);
  EXPECT_EQ(canvas.view_x, 3);
  EXPECT_EQ(canvas.view_y, 0);
  maps::drag_pan(canvas, bars, -5000, -5000);
  EXPECT_EQ(bars.horizontal.value, 10);
}

TEST(Pan_by, FollowsTheHandOneToOne) {
  Canvas canvas = sheet();
  Scroll_bars bars{{0, 0, -1000, 1000}, {0, 0, -1000, 1000}};
  EXPECT_TRUE(maps::pan_by(canvas, bars, -33, 12));
  EXPECT_EQ(canvas.view_x, -33);
  EXPECT_EQ(canvas.view_y, 12);
  EXPECT_FALSE(maps::pan_by(canvas, bars, 0, 0));
}

TEST(Scroll_range, ReachesBothEndsOfTheMosaicFromAnyValue) {
  Canvas canvas = sheet();
  canvas.canvas_scale = 2;  // 2 x 2000 + 200 units are 31,500 twips wide; 3 x 1600 + 200 are 37,500 high
  canvas.view_x = -2000;
  Scroll_bars bars;
  bars.horizontal.value = bars.horizontal.last = 400;  // a fifth, as a zoom leaves it
  maps::scroll_range(canvas, bars, 2, 3);
  maps::Scroll_bars to_left = bars, to_right = bars;
  double view = canvas.view_x;
  maps::scroll_changed(to_left.horizontal, view, bars.horizontal.minimum, true, true);
  EXPECT_EQ(view, 0);
  view = canvas.view_x;
  maps::scroll_changed(to_right.horizontal, view, bars.horizontal.maximum, true, true);
  EXPECT_EQ(view, 6000 - 31'500);
  view = canvas.view_y;
  maps::scroll_changed(bars.vertical, view, bars.vertical.maximum, true, true);
  EXPECT_EQ(view, 4500 - 37'500);
}

TEST(Scroll_range, LeavesNothingToScrollWhereEverythingShows) {
  Canvas canvas = sheet();
  Scroll_bars bars;
  maps::scroll_range(canvas, bars, 1, 1);  // 700 x 600 units are 5250 x 4500 twips
  EXPECT_EQ(bars.horizontal.minimum, 0);
  EXPECT_EQ(bars.horizontal.maximum, 0);
  EXPECT_EQ(bars.vertical.maximum, 0);
}

}  // namespace
