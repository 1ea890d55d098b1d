#include "observations/area.h"

#include <gtest/gtest.h>

#include <limits>

#include "observations/observation_place.h"
#include "platform/numbers.h"
#include "support/recorder.h"

using observations::Area;

namespace {

// "1 2, 3 4" of the vertices.
std::string told(const Area& area) {
  std::string text;
  for (const geodesy::Point& vertex : area)
    text += (text.empty() ? "" : ", ") + platform::number_text(vertex.x) + " " + platform::number_text(vertex.y);
  return text;
}

struct Areas : testing::Test, support::Observation_place {
  const Area triangle{{13850000, 3550000}, {13850100.5, 3550000}, {13850100, 3550100}};
  std::vector<Area> read() { return observations::Area_read(files, project); }
  bool make(const Area& area) { return observations::Area_make(files, project, area); }
};

}  // namespace

TEST_F(Areas, AreKeptOneALine) {
  EXPECT_TRUE(make(triangle));
  EXPECT_TRUE(make({{-1.5, 2}, {3, 4}, {5, 6}, {7, 8}}));
  EXPECT_EQ(bytes("Area.dat"),
            " 3 , 13850000 , 3550000 , 13850100.5 , 3550000 , 13850100 , 3550100 ,\r\n"
            " 4 ,-1.5 , 2 , 3 , 4 , 5 , 6 , 7 , 8 ,\r\n");
  const std::vector<Area> areas = read();
  ASSERT_EQ(areas.size(), 2u);
  EXPECT_EQ(told(areas[0]), "13850000 3550000, 13850100.5 3550000, 13850100 3550100");
  EXPECT_EQ(areas[1].size(), 4u);
}

TEST_F(Areas, AMissingFileHasNone) {
  EXPECT_TRUE(read().empty());
}

TEST_F(Areas, ALineThatLiesAboutItsVerticesHasThoseThatAreWhole) {
  put_lines({"9,1,2,3,4,5,6,7", "2,1,2,3,4", "-3,1,2,3,4,5,6", "", "1e300,1,1,2,2,3,3,", "3,1,2,3,4,5,6,7,8"},
            "Area.dat");
  const std::vector<Area> areas = read();
  ASSERT_EQ(areas.size(), 3u);
  EXPECT_EQ(told(areas[0]), "1 2, 3 4, 5 6");
  EXPECT_EQ(told(areas[1]), "1 1, 2 2, 3 3");
  EXPECT_EQ(told(areas[2]), "1 2, 3 4, 5 6");
}

TEST_F(Areas, WhatIsNoAreaIsRefusedAndTheFileStays) {
  make(triangle);
  const std::string before = bytes("Area.dat");
  EXPECT_FALSE(make({}));
  EXPECT_FALSE(make({{1, 2}, {3, 4}}));
  EXPECT_FALSE(make(Area(149, {1, 2})));
  EXPECT_FALSE(make({{1, 2}, {3, 4}, {std::numeric_limits<double>::infinity(), 0}}));
  EXPECT_EQ(bytes("Area.dat"), before);
  EXPECT_TRUE(make(Area(148, {1, 2})));
  EXPECT_EQ(read().at(1).size(), 148u);
}

TEST_F(Areas, AFullFileTakesNoMore) {
  put_lines(std::vector<std::string>(1001, "3,1,2,3,4,5,6"), "Area.dat");
  EXPECT_EQ(read().size(), 1000u);
  EXPECT_FALSE(make(triangle));
}

// One unit to the metre: the map place (X, Y) lies at canvas (X + 100, 1100 - Y).
TEST(Area_out, DrawsRingsThatMayBeSeen) {
  maps::Canvas canvas;
  canvas.canvas_scale = 1;
  canvas.map_y1 = 1000;
  canvas.width = canvas.height = 3000;
  support::Recorder surface;
  const std::vector<Area> areas{{{0, 1000}, {10, 1000}, {10, 990}}, {{5000, 1000}, {5010, 1000}, {5010, 990}}};
  observations::Area_out(surface, canvas, areas, 0x123456, true);
  ASSERT_EQ(surface.calls.size(), 1u);
  EXPECT_EQ(surface.calls[0].points, (std::vector<drawing::Point>{{100, 100}, {110, 100}, {110, 110}}));
  EXPECT_EQ(surface.calls[0].pen, (drawing::Pen{0x123456, 2}));
  EXPECT_EQ(surface.calls[0].fill, (drawing::Fill{0x123456, drawing::Fill_style::see_through}));
  observations::Area_out(surface, canvas, areas, 0x123456, false);
  EXPECT_EQ(surface.calls[1].fill.style, drawing::Fill_style::none);
}
