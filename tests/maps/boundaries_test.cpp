#include "maps/boundaries.h"

#include <gtest/gtest.h>

#include "maps/map_place.h"
#include "support/recorder.h"

namespace {

using drawing::Point;
using maps::Boundary;
using maps::boundary_of_line;

TEST(Boundary_of_line, ReadsPairsBetweenTheQuotationMarksBehindPos) {
  EXPECT_EQ(boundary_of_line("name=\"x/y\" pos=\"138.9125/36.5;139/36.25\" rest=\"1/2\""),
            (Boundary{{138.9125, 36.5}, {139, 36.25}}));
}

TEST(Boundary_of_line, HasNoPointsWithoutPosOrQuotationMark) {
  EXPECT_TRUE(boundary_of_line("").empty());
  EXPECT_TRUE(boundary_of_line("\"1/2;3/4\"").empty());
  EXPECT_TRUE(boundary_of_line("POS=\"1/2;3/4\"").empty());
  EXPECT_TRUE(boundary_of_line("pos=1/2;3/4").empty());
  EXPECT_TRUE(boundary_of_line("pos=\"\"").empty());
}

TEST(Boundary_of_line, RunsToTheEndWithoutASecondQuotationMark) {
  EXPECT_EQ(boundary_of_line("pos \"1/2;3/4"), (Boundary{{1, 2}, {3, 4}}));
}

TEST(Boundary_of_line, LeavesOutPiecesThatAreNoPair) {
  EXPECT_EQ(boundary_of_line("pos=\"1/2;;7;3/4;\""), (Boundary{{1, 2}, {3, 4}}));
}

TEST(Boundary_of_line, TakesALongPieceTwoByTwo) {
  EXPECT_EQ(boundary_of_line("pos=\"1/2/3/4/5\""), (Boundary{{1, 2}, {3, 4}}));
}

TEST(Boundary_of_line, ReadsWhatIsNoNumberAsNothing) {
  EXPECT_EQ(boundary_of_line("pos=\"x/2; 3 / -4.5 \""), (Boundary{{0, 2}, {3, -4.5}}));
}

TEST(Gyousei_read, ReadsEveryFileOfTheFolderInOrder) {
  support::Map_place place;
  place.put_lines("mps\\b.mps", {"pos=\"5/6;7/8\""});
  place.put_lines("mps\\A.MPS", {"title", "神流町 pos=\"1/2;3/4\"", "pos=\"9/9\""});
  place.put_lines("mps\\c.txt", {"pos=\"0/0;1/1\""});
  maps::Boundaries boundaries{{{{9, 9}, {9, 9}}}};
  maps::gyousei_read(place.files, place.program, boundaries);
  EXPECT_EQ(boundaries.lines, (std::vector<Boundary>{{{1, 2}, {3, 4}}, {{5, 6}, {7, 8}}}));
}

TEST(Gyousei_read, HasNoLinesWithoutPosOrFolder) {
  support::Map_place place;
  place.put_lines("mps\\a.mps", {"nothing here"});
  maps::Boundaries boundaries;
  maps::gyousei_read(place.files, place.program, boundaries);
  EXPECT_TRUE(boundaries.lines.empty());
  maps::gyousei_read(place.files, place.in("no folder"), boundaries);
  EXPECT_TRUE(boundaries.lines.empty());
}

TEST(Gyousei_read, SurvivesCutAndBinaryFiles) {
  support::Map_place place;
  std::string bytes;
  for (int i = 0; i < 100'000; ++i) bytes += static_cast<char>(i * 7919 % 251 + (i % 43 == 0));
  place.put("mps\\a.mps", bytes);
  place.put("mps\\b.mps", "pos=\"1/2;3/");
  place.put("mps\\c.mps", "");
  place.put("mps\\d.mps", "pos=\"5/6;7/8");
  maps::Boundaries boundaries;
  EXPECT_NO_THROW(maps::gyousei_read(place.files, place.program, boundaries));
  ASSERT_FALSE(boundaries.lines.empty());
  EXPECT_EQ(boundaries.lines.back(), (Boundary{{5, 6}, {7, 8}}));
}

// 139.02 degrees east and 36.01 north lie 1800 m and 1080 m from the corner: (280, 892); the corner is (100, 1000).
const Boundary two_points{{139, 36}, {139.02, 36.01}};

TEST(Gyousei_out, DrawsDegreesInTheFrameOfTheSheet) {
  maps::Canvas canvas = support::geographic_canvas();
  support::Recorder surface;
  maps::gyousei_out(surface, canvas, {{two_points}});
  ASSERT_EQ(surface.calls.size(), 1U);
  EXPECT_EQ(surface.calls[0].what, "polyline");
  ASSERT_EQ(surface.calls[0].points.size(), 2U);
  EXPECT_NEAR(surface.calls[0].points[0].x, 100, 1e-3);
  EXPECT_NEAR(surface.calls[0].points[0].y, 1000, 1e-3);
  EXPECT_NEAR(surface.calls[0].points[1].x, 280, 1e-3);
  EXPECT_NEAR(surface.calls[0].points[1].y, 892, 1e-3);
}

TEST(Gyousei_out, TakesOtherPairsAsTheCanvasTakesThem) {
  maps::Canvas canvas = support::geographic_canvas();
  support::Recorder surface;
  maps::gyousei_out(surface, canvas, {{{{13'902'000, 3'601'000}, {1800, 1080}}}});
  ASSERT_EQ(surface.calls.size(), 1U);
  EXPECT_EQ(surface.calls[0].points, (std::vector<Point>{{280, 892}, {280, 892}}));
}

TEST(Gyousei_out, LeavesOutWhatLiesOutsideTheWindow) {
  maps::Canvas canvas = support::geographic_canvas();
  canvas.width = 90 * 7.5;
  canvas.height = 2000 * 7.5;
  support::Recorder surface;
  maps::gyousei_out(surface, canvas, {{two_points}});
  EXPECT_TRUE(surface.calls.empty());
  canvas.width = 110 * 7.5;
  maps::gyousei_out(surface, canvas, {{two_points}});
  EXPECT_EQ(surface.calls.size(), 1U);
}

}  // namespace
