#include "observations/reference_points_out.h"

#include <gtest/gtest.h>

#include <set>

#include "support/recorder.h"

using observations::Number_shown;

namespace {

struct Part_recorder : support::Recorder {
  drawing::Rect part = drawing::everywhere;
  drawing::Rect touched_part() const override { return part; }
};

// The map place (X, Y) lies at canvas (X + 100, 1100 - Y); a name is 2.25 x 8 = 18 units high.
struct Reference_points_out : ::testing::Test {
  maps::Canvas canvas;
  observations::Reference_points points;

  Reference_points_out() {
    canvas.canvas_scale = 1;
    canvas.map_y1 = 1000;
    canvas.label_scale = 8;
  }
  void add(double x, double y, const std::string& name) {
    observations::Reference_point& point = points.rows[++points.count];
    point.X = x;
    point.Y = y;
    point.name = name;
  }
  Part_recorder drawn(Number_shown shown, drawing::Rect part = drawing::everywhere) {
    Part_recorder surface;
    surface.part = part;
    observations::reference_points_out(surface, canvas, points, {true, false, shown});
    return surface;
  }
  std::string names(drawing::Rect part = drawing::everywhere) {
    std::string found;
    for (const support::Drawn& call : drawn(Number_shown::registration, part).of("text")) found += call.text + " ";
    return found;
  }
};

}  // namespace

TEST_F(Reference_points_out, APointIsASmallGreyCrossWithoutItsName) {
  add(50, 900, "鳴沢鉱山");
  const support::Recorder surface = drawn(Number_shown::none);
  ASSERT_EQ(surface.calls.size(), 2u);
  EXPECT_EQ(surface.calls[0].points, (std::vector<drawing::Point>{{145, 200}, {155, 200}}));
  EXPECT_EQ(surface.calls[1].points, (std::vector<drawing::Point>{{150, 195}, {150, 205}}));
  EXPECT_EQ(surface.calls[0].pen, (drawing::Pen{observations::reference_colour, 1}));
}

TEST_F(Reference_points_out, TheNameStandsBesideItWhereNumbersAreShown) {
  add(50, 900, "鳴沢鉱山");
  for (const Number_shown shown : {Number_shown::registration, Number_shown::measurement}) {
    const auto texts = drawn(shown).of("text");
    ASSERT_EQ(texts.size(), 1u);
    EXPECT_EQ(texts[0].text, "鳴沢鉱山");
    EXPECT_EQ(texts[0].points[0], (drawing::Point{158, 190}));
    EXPECT_EQ(texts[0].font.height, 18);
    EXPECT_EQ(texts[0].colour, observations::reference_colour);
  }
}

TEST_F(Reference_points_out, NamesDoNotStandOverOneAnother) {
  add(50, 900, "first");
  add(52, 898, "second");
  add(50, 600, "third");
  EXPECT_EQ(names(), "first third ");
  EXPECT_EQ(drawn(Number_shown::registration).of("line").size(), 6u);
}

TEST_F(Reference_points_out, AllNamesComeWhereTheZoomPartsThem) {
  add(50, 900, "first");
  add(52, 898, "second");
  canvas.canvas_scale = 40;
  EXPECT_EQ(names(), "first second ");
}

TEST_F(Reference_points_out, APartAndAPanShowTheNamesThatTheWholeShows) {
  for (int i = 0; i < 400; ++i) add((i * 37) % 900, (i * 91) % 900, "名前" + std::to_string(i));
  const auto shown = [&](drawing::Rect part) {
    std::set<std::string> found;
    for (const support::Drawn& call : drawn(Number_shown::registration, part).of("text"))
      // Those that the part shows a piece of.
      if (call.points[0].x < part.x + part.width && call.points[0].x + 90 > part.x &&
          call.points[0].y < part.y + part.height && call.points[0].y + 18 > part.y)
        found.insert(call.text);
    return found;
  };
  for (int left = 100; left < 900; left += 37) {
    const drawing::Rect strip{static_cast<double>(left), 100, 37, 1000};
    std::set<std::string> of_whole;
    for (const support::Drawn& call : drawn(Number_shown::registration).of("text"))
      if (call.points[0].x < strip.x + strip.width && call.points[0].x + 90 > strip.x && call.points[0].y < 1100 &&
          call.points[0].y + 18 > 100)
        of_whole.insert(call.text);
    EXPECT_EQ(shown(strip), of_whole) << left;
  }
  const std::string before = names();
  canvas.view_x = -1234.5;
  canvas.view_y = 77.25;
  EXPECT_EQ(names(), before);
}

TEST_F(Reference_points_out, WhatLiesOutsideIsPassedOver) {
  canvas.width = canvas.height = 3000;  // 400 units each way
  add(100, 900, "");
  add(5000, 900, "");
  EXPECT_EQ(drawn(Number_shown::none).of("line").size(), 2u);
  EXPECT_TRUE(drawn(Number_shown::none, {300, 0, 50, 400}).calls.empty());
}

TEST_F(Reference_points_out, ALongNameIsCut) {
  add(50, 900, "一二三四五六七八九十一二三四五六七八九十末尾");
  EXPECT_EQ(names(), "一二三四五六七八九十一二三四五六七八九十 ");
}

TEST_F(Reference_points_out, NothingIsDrawnWhereThePointsAreSwitchedOffOrThereAreNone) {
  EXPECT_TRUE(drawn(Number_shown::registration).calls.empty());
  add(50, 900, "鳴沢鉱山");
  support::Recorder surface;
  observations::reference_points_out(surface, canvas, points, {false, false, Number_shown::registration});
  EXPECT_TRUE(surface.calls.empty());
}
