#include "instruments/stereonet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numbers>

#include "support/recorder.h"

namespace {

using namespace instruments;
using drawing::Point;
using support::Drawn;

const Net net{{200, 200}, 100};
const Net_texts words{"mean", "pole", "line", "circle"};

void expect_at(Point point, double x, double y) {
  EXPECT_NEAR(point.x, x, 1e-6);
  EXPECT_NEAR(point.y, y, 1e-6);
}

Point at(double trend, double plunge) {
  return net_point(net, direction_of({trend, plunge}));
}

TEST(Stereonet, HasTheVerticalInItsCentreAndTheLevelOnItsRim) {
  expect_at(at(123, 90), 200, 200);
  expect_at(at(0, 0), 200, 100);
  expect_at(at(90, 0), 300, 200);
  expect_at(at(180, 0), 200, 300);
  expect_at(at(270, 0), 100, 200);
}

// sqrt(2) sin((90 - plunge) / 2): 0.5411961 at 45 degrees, 0.7071068 (half the area) at 30.
TEST(Stereonet, KeepsAreas) {
  expect_at(at(0, 45), 200, 200 - 54.1196100);
  expect_at(at(90, 30), 200 + 70.7106781, 200);
}

TEST(Stereonet, TakesADirectionThatPointsUpByItsOtherEnd) {
  expect_at(net_point(net, direction_of({90, -30})), 200 - 70.7106781, 200);
}

TEST(Stereonet, DrawsAGreatCircleOverTheFall) {
  const std::vector<Point> points = great_circle(net, {0, 60});
  ASSERT_EQ(points.size(), 91u);
  expect_at(points.front(), 200, 100);
  expect_at(points.back(), 200, 300);
  expect_at(points[45], 200 + 100 * std::sqrt(2.0) * std::sin(15 * std::numbers::pi / 180),
            200);  // 30 degrees off the vertical
}

TEST(Stereonet, DrawsTheCircleOfALevelPlaneOnTheRim) {
  for (const Point& point : great_circle(net, {30, 0}))
    EXPECT_NEAR(std::hypot(point.x - 200, point.y - 200), 100, 1e-6);
}

TEST(Stereonet, DrawsACircleAboutTheVerticalAsACircle) {
  const auto lines = small_circle(net, {0, 90}, 60);
  ASSERT_EQ(lines.size(), 1u);
  for (const Point& point : lines[0]) EXPECT_NEAR(std::hypot(point.x - 200, point.y - 200), 70.7106781, 1e-4);
}

TEST(Stereonet, PartsACircleThatLeavesTheNet) {
  const auto lines = small_circle(net, {90, 0}, 20);
  EXPECT_GE(lines.size(), 2u);
  for (const auto& line : lines) {
    for (std::size_t i = 1; i < line.size(); ++i)
      EXPECT_LT(std::hypot(line[i].x - line[i - 1].x, line[i].y - line[i - 1].y), 10);
    for (const Point& point : line) EXPECT_LE(std::hypot(point.x - 200, point.y - 200), 100 + 1e-6);
  }
}

TEST(Stereonet, DrawsPolesLineationsAndTheMean) {
  support::Recorder recorder;
  const std::vector<Measured> measured{{Plane{0, 30}, Axis{90, 30}, "＋"}, {Plane{10, 30}, {}, "●"}, {{}, {}, "●"}};
  const auto scatter = scatter_of(planes_of(measured));
  stereonet_out(recorder, net, measured, scatter, words);
  ASSERT_EQ(recorder.calls.front().what, "clear");
  EXPECT_EQ(recorder.calls.front().colour, drawing::white);
  // The rim, the mean's pole and the second pole; below the net the signs of pole and mean.
  const std::vector<Drawn> circles = recorder.of("circle");
  ASSERT_EQ(circles.size(), 5u);
  EXPECT_EQ(circles[0].radius, 100);
  EXPECT_EQ(circles[1].fill.colour, mean_colour);
  const Point mean = net_point(net, direction_of(pole_of(scatter->mean)));
  expect_at(circles[1].points[0], mean.x, mean.y);
  const Point second = at(280, 60);
  expect_at(circles[2].points[0], second.x, second.y);
  // 36 ticks, the centre's two strokes and the two of the first pole's cross.
  const std::vector<Drawn> lines = recorder.of("line");
  ASSERT_EQ(lines.size(), 40u);
  expect_at(lines[0].points[1], 200, 120);
  expect_at(lines[1].points[0], 200 + 100 * std::sin(std::numbers::pi / 18),
            200 - 100 * std::cos(std::numbers::pi / 18));
  const Point first = at(270, 60);
  expect_at({(lines[38].points[0].x + lines[38].points[1].x) / 2, lines[38].points[0].y}, first.x, first.y);
  ASSERT_EQ(recorder.of("polygon").size(), 2u);  // the lineation and its sign below
  EXPECT_EQ(recorder.of("polygon")[0].pen.colour, lineation_colour);
  EXPECT_EQ(recorder.of("polyline").front().points.size(), 91u);
}

TEST(Stereonet, NamesItsSidesAndSigns) {
  support::Recorder recorder;
  stereonet_out(recorder, net, {}, {}, words);
  std::vector<std::string> texts;
  for (const Drawn& call : recorder.of("text")) texts.push_back(call.text);
  EXPECT_EQ(texts, (std::vector<std::string>{"N", "E", "S", "W", "mean", "pole", "line", "circle"}));
  EXPECT_TRUE(recorder.of("polyline").empty());
}

// A letter of 26 units is half as wide; a sign needs 30 more.
TEST(Stereonet, LeavesRoomForTheNamesUnderASmallNet) {
  support::Recorder recorder;
  stereonet_out(recorder, net, {}, {}, net_texts({}, false));
  const std::vector<Drawn> texts = recorder.of("text");
  ASSERT_EQ(texts.back().text, "mean pole");
  const Drawn& lineation = texts[texts.size() - 2];
  ASSERT_EQ(lineation.text, "lineation");
  EXPECT_GE(texts.back().points[0].x - lineation.points[0].x, 9 * 13 + 30);
}

TEST(Stereonet, LeavesOutAnEmptyLineOfTheMean) {
  support::Recorder with, without;
  stereonet_out(with, net, {}, {}, words);
  stereonet_out(without, net, {}, {}, {"", "pole", "line", "circle"});
  EXPECT_EQ(without.of("text").size(), 7u);
  EXPECT_EQ(without.of("text")[4].points[0].y, with.of("text")[4].points[0].y);
  EXPECT_LT(without.of("text")[4].points[0].y, with.of("text")[5].points[0].y);
}

TEST(Stereonet, DrawsEachMarkInItsForm) {
  const auto polygon_corners = [](const char* mark) {
    support::Recorder recorder;
    stereonet_out(recorder, net, {{Plane{0, 30}, {}, mark}}, {}, words);
    const auto polygons = recorder.of("polygon");
    return polygons.size() < 2 ? 0u : polygons[0].points.size();
  };
  EXPECT_EQ(polygon_corners("■"), 4u);
  EXPECT_EQ(polygon_corners("◆"), 4u);
  EXPECT_EQ(polygon_corners("▲"), 3u);
  EXPECT_EQ(polygon_corners("▼"), 3u);
  EXPECT_EQ(polygon_corners("★"), 10u);
  EXPECT_EQ(polygon_corners("×"), 0u);
  EXPECT_EQ(polygon_corners(""), 0u);
}

// A canvas counts downwards: of ▲ two corners lie below the third, of ▼ above it.
TEST(Stereonet, PointsItsTrianglesUpAndDown) {
  const auto corners_below = [](const char* mark) {
    support::Recorder recorder;
    stereonet_out(recorder, net, {{Plane{0, 30}, {}, mark}}, {}, words);
    const std::vector<Point> corners = recorder.of("polygon").front().points;
    const double middle = (corners[0].y + corners[1].y + corners[2].y) / 3;
    return std::count_if(corners.begin(), corners.end(), [&](const Point& corner) { return corner.y > middle; });
  };
  EXPECT_EQ(corners_below("▲"), 2);
  EXPECT_EQ(corners_below("▼"), 1);
}

TEST(Stereonet, FitsIntoItsPicture) {
  const Net wide = net_in(1000, 700), narrow = net_in(300, 900), none = net_in(10, 10);
  EXPECT_GT(wide.radius, 200);
  EXPECT_GE(wide.centre.x - wide.radius, 0);
  EXPECT_LE(wide.centre.y + wide.radius, 700 - 100);
  EXPECT_EQ(narrow.centre.x, 150);
  EXPECT_LE(narrow.radius, 150);
  EXPECT_EQ(none.radius, 0);
}

TEST(Net_texts_of, AreInBothLanguages) {
  EXPECT_EQ(net_texts({}, true).pole, "面の極");
  EXPECT_EQ(net_texts({}, false).circle, "mean pole");
}

}  // namespace
