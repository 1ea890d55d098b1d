#include "maps/grid_out.h"

#include <gtest/gtest.h>

#include "maps/map_place.h"
#include "support/recorder.h"

namespace {

using drawing::Point;
using drawing::Rect;
using maps::Canvas;
using maps::Mosaic;
using support::Recorder;

drawing::Sheet_picture small_picture() {
  return drawing::make_sheet_picture(platform::make_picture(4, 3, 8));
}

// 1000 x 800 m at half a unit: the sheet takes 500 x 400 units from (110, 80).
Canvas canvas_of_size(double width_units, double height_units) {
  Canvas canvas = support::plain_canvas();
  canvas.map_x0 = canvas.map_y0 = 0;
  canvas.map_x1 = 1000;
  canvas.map_y1 = 800;
  canvas.width = width_units * 7.5;
  canvas.height = height_units * 7.5;
  return canvas;
}

TEST(Grid_out, ClearsAndPaintsTheMainPictureIntoTheSheet) {
  Canvas canvas = canvas_of_size(2000, 2000);
  canvas.zoom_factor = 3;
  Mosaic mosaic;
  mosaic.picture[0] = small_picture();
  Recorder surface;
  maps::Grid_out(surface, canvas, mosaic, {});
  ASSERT_EQ(surface.calls.size(), 2U);
  EXPECT_EQ(surface.calls[0].what, "clear");
  EXPECT_EQ(surface.calls[0].colour, 0xffffffU);
  EXPECT_EQ(surface.calls[1].target, (Rect{110, 80, 500, 400}));
  EXPECT_EQ(canvas.zoom_factor, 0.5);
}

TEST(Grid_out, DisplacesTheNeighboursByWholeRectangles) {
  Canvas canvas = canvas_of_size(4000, 4000);
  Mosaic mosaic;
  for (std::size_t slot = 0; slot < 9; ++slot) {
    mosaic.picture[slot] = small_picture();
    mosaic.tile_state[slot] = slot > 0 ? 1 : 0;
  }
  Recorder surface;
  maps::Grid_out(surface, canvas, mosaic, {});
  const std::vector<Rect> wanted{{110, 80, 500, 400},  {110, 480, 500, 400}, {610, 80, 500, 400},
                                 {610, 480, 500, 400}, {1110, 80, 500, 400}, {1110, 480, 500, 400},
                                 {110, 880, 500, 400}, {610, 880, 500, 400}, {1110, 880, 500, 400}};
  std::vector<Rect> painted;
  for (const support::Drawn& call : surface.of("picture")) painted.push_back(call.target);
  EXPECT_EQ(painted, wanted);
}

TEST(Grid_out, PaintsNoHolderWhoseStateIsOut) {
  Canvas canvas = canvas_of_size(4000, 4000);
  Mosaic mosaic;
  mosaic.picture[0] = mosaic.picture[1] = small_picture();
  Recorder surface;
  maps::Grid_out(surface, canvas, mosaic, {});
  EXPECT_EQ(surface.of("picture").size(), 1U);
}

TEST(Grid_out, LeavesOutWhatLiesOutsideTheWindow) {
  Canvas canvas = canvas_of_size(600, 400);
  canvas.view_x = -4650;  // the main picture now ends 10 units left of the window's edge
  Mosaic mosaic;
  for (std::size_t slot = 0; slot < 4; ++slot) {
    mosaic.picture[slot] = small_picture();
    mosaic.tile_state[slot] = 1;
  }
  Recorder surface;
  maps::Grid_out(surface, canvas, mosaic, {});
  const auto pictures = surface.of("picture");
  ASSERT_EQ(pictures.size(), 1U);
  EXPECT_EQ(pictures[0].target.x, -20);
  EXPECT_EQ(pictures[0].picture, &mosaic.picture[2]);
}

TEST(Grid_out, PaintsNothingIntoASheetOfNoSize) {
  Canvas canvas;
  Mosaic mosaic;
  mosaic.picture[0] = small_picture();
  Recorder surface;
  maps::Grid_out(surface, canvas, mosaic, {});
  EXPECT_TRUE(surface.of("picture").empty());
}

TEST(Grid_out, TurnsTheRectangleOfASheetThatGrowsDownwards) {
  Canvas canvas = canvas_of_size(2000, 2000);
  canvas.y_mode = 1;
  EXPECT_EQ(maps::sheet_rectangle(canvas), (Rect{110, 80, 500, 400}));
}

TEST(Grid_out, DrawsTenDivisionsWithHeavyOuterLines) {
  Canvas canvas = canvas_of_size(2000, 2000);
  Recorder surface;
  maps::Grid_out(surface, canvas, {}, {.Check3 = true, .stem = "543817"});
  const auto lines = surface.of("line");
  ASSERT_EQ(lines.size(), 22U);
  EXPECT_EQ(lines[0].points, (std::vector<Point>{{110, 480}, {110, 80}}));
  EXPECT_EQ(lines[1].points, (std::vector<Point>{{160, 480}, {160, 80}}));
  EXPECT_EQ(lines[10].points, (std::vector<Point>{{610, 480}, {610, 80}}));
  EXPECT_EQ(lines[11].points, (std::vector<Point>{{110, 480}, {610, 480}}));
  EXPECT_EQ(lines[12].points, (std::vector<Point>{{110, 440}, {610, 440}}));
  for (std::size_t i = 0; i < lines.size(); ++i) {
    EXPECT_EQ(lines[i].pen.width, i % 11 == 0 || i % 11 == 10 ? 2 : 1) << i;
    EXPECT_EQ(lines[i].pen.colour, drawing::black);
  }
}

TEST(Grid_out, DrawsNoGridWithoutTheTick) {
  Canvas canvas = canvas_of_size(2000, 2000);
  Recorder surface;
  maps::Grid_out(surface, canvas, {}, {.stem = "543817"});
  EXPECT_TRUE(surface.of("line").empty());
}

TEST(Grid_divisions, FollowTheEntryAndTheFolder) {
  EXPECT_EQ(maps::grid_divisions("543817", maps::folder_25000), 10);
  EXPECT_EQ(maps::grid_divisions("5438170", maps::folder_25000), 10);
  EXPECT_EQ(maps::grid_divisions("54381705", maps::folder_25000), 5);
  EXPECT_EQ(maps::grid_divisions("杉沢の自由な図面", maps::folder_25000), 5);  // eight characters
  EXPECT_EQ(maps::grid_divisions("杉沢の図", maps::folder_25000), 10);
  EXPECT_EQ(maps::grid_divisions("54381705", maps::folder_50000), 20);
  EXPECT_EQ(maps::grid_divisions("543817", maps::folder_50000), 20);
}

}  // namespace
