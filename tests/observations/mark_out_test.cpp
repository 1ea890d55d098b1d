#include "observations/mark_out.h"

#include <gtest/gtest.h>

#include "support/recorder.h"

using drawing::Point;
using Points = std::vector<Point>;

namespace {

support::Recorder painted(const char* mark, double size = 2) {
  support::Recorder surface;
  observations::mark_out(surface, {100, 200}, 0x123456, size, mark);
  return surface;
}

}  // namespace

// A size of 2 is half a size of 10 units; a pen of 2 is Int(2 x 1.2) wide.
TEST(Mark_out, ACircleHasTheRadiusOfHalfItsSize) {
  const support::Recorder surface = painted("○");
  ASSERT_EQ(surface.calls.size(), 1u);
  EXPECT_EQ(surface.calls[0].what, "circle");
  EXPECT_EQ(surface.calls[0].points, Points({{100, 200}}));
  EXPECT_EQ(surface.calls[0].radius, 10);
  EXPECT_EQ(surface.calls[0].pen, (drawing::Pen{0x123456, 2}));
  EXPECT_EQ(surface.calls[0].fill.style, drawing::Fill_style::none);
}

TEST(Mark_out, ACircleIsNeverSmallerThanTwo) {
  EXPECT_EQ(painted("○", 0.2).calls[0].radius, 2);
  EXPECT_EQ(painted("●", 0.2).calls[0].radius, 2);
  EXPECT_EQ(painted("○", 0.5).calls[0].radius, 2.5);
  EXPECT_EQ(painted("○", 1).calls[0].radius, 5);
}

TEST(Mark_out, CornersLieAtHalfTheSizeInXAndY) {
  EXPECT_EQ(painted("□").calls[0].points, Points({{90, 190}, {110, 190}, {110, 210}, {90, 210}}));
  EXPECT_EQ(painted("△").calls[0].points, Points({{100, 190}, {110, 210}, {90, 210}}));
  EXPECT_EQ(painted("▽").calls[0].points, Points({{90, 190}, {110, 190}, {100, 210}}));
  EXPECT_EQ(painted("◇").calls[0].points, Points({{100, 190}, {110, 200}, {100, 210}, {90, 200}}));
}

TEST(Mark_out, BothLanguagesNamesPaintTheSame) {
  const char* const pairs[][2] = {{"○", "circle"},
                                  {"●", "filled circle"},
                                  {"□", "square"},
                                  {"■", "filled square"},
                                  {"△", "triangle"},
                                  {"▲", "filled triangle"},
                                  {"▽", "inverted triangle"},
                                  {"▼", "triangle inverted triangle"},
                                  {"◇", "rhombic"},
                                  {"◆", "filled rhombic"}};
  for (const auto& [japanese, english] : pairs) {
    const support::Recorder a = painted(japanese), b = painted(english);
    ASSERT_EQ(a.calls.size(), 1u) << japanese;
    ASSERT_EQ(b.calls.size(), 1u) << english;
    EXPECT_EQ(a.calls[0].points, b.calls[0].points) << japanese;
    EXPECT_EQ(a.calls[0].fill, b.calls[0].fill) << japanese;
  }
}

TEST(Mark_out, FilledMarksAreFilledInTheirColour) {
  for (const char* mark : {"●", "■", "▲", "▼", "◆"})
    EXPECT_EQ(painted(mark).calls[0].fill, (drawing::Fill{0x123456, drawing::Fill_style::solid})) << mark;
}

TEST(Mark_out, MarksOutsideTheListPaintAllTheSame) {
  const auto circles = painted("◎").of("circle");
  ASSERT_EQ(circles.size(), 2u);
  EXPECT_EQ(circles[0].radius, 10);
  EXPECT_EQ(circles[1].radius, 5);
  for (const support::Drawn& circle : circles) EXPECT_EQ(circle.fill.style, drawing::Fill_style::none);
  const auto cross = painted("×").of("line");
  ASSERT_EQ(cross.size(), 2u);
  EXPECT_EQ(cross[0].points, Points({{90, 190}, {110, 210}}));
  EXPECT_EQ(cross[1].points, Points({{110, 190}, {90, 210}}));
  const auto plus = painted("＋").of("line");
  EXPECT_EQ(plus[0].points, Points({{100, 190}, {100, 210}}));
  EXPECT_EQ(plus[1].points, Points({{90, 200}, {110, 200}}));
  const auto y = painted("Y").of("line");
  ASSERT_EQ(y.size(), 3u);
  EXPECT_EQ(y[0].points, Points({{100, 200}, {90, 190}}));
  EXPECT_EQ(y[1].points, Points({{100, 200}, {110, 190}}));
  EXPECT_EQ(y[2].points, Points({{100, 200}, {100, 210}}));
}

TEST(Mark_out, ASizeOf0CountsAs2AndOtherTextsPaintNothing) {
  EXPECT_EQ(painted("○", 0).calls[0].radius, 10);
  EXPECT_EQ(painted("○", 10).calls[0].radius, 50);
  for (const char* text : {"範囲", "Area", "線", "Line", "文字", "Word", "囲み", "◯", "y", "CIRCLE"})
    EXPECT_TRUE(painted(text).calls.empty()) << text;
  EXPECT_TRUE(painted("").calls.empty());
}

TEST(Mark_out, APenIsAFifthWiderThanItIsToldAndNeverBelowOne) {
  const std::pair<double, double> widths[] = {{-3, 1}, {0, 1}, {0.5, 1}, {1, 1}, {1.7, 2}, {2, 2}, {4, 4}, {5, 6}};
  for (const auto& [told, drawn] : widths) {
    support::Recorder surface;
    observations::ld(surface, {1, 2}, {3, 4}, 0x123456, told);
    observations::lc(surface, {5, 6}, 7, 0x123456, told);
    ASSERT_EQ(surface.calls.size(), 2u);
    EXPECT_EQ(surface.calls[0].points, Points({{1, 2}, {3, 4}}));
    EXPECT_EQ(surface.calls[0].pen, (drawing::Pen{0x123456, drawn})) << told;
    EXPECT_EQ(surface.calls[1].points, Points({{5, 6}}));
    EXPECT_EQ(surface.calls[1].radius, 7);
    EXPECT_EQ(surface.calls[1].pen, (drawing::Pen{0x123456, drawn})) << told;
  }
}
