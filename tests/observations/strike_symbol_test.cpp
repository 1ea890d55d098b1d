#include "observations/strike_symbol.h"

#include <gtest/gtest.h>

#include <cmath>

#include "support/recorder.h"

using observations::Record;
using observations::Symbol_kind;

namespace {

Record plane(const std::string& strike, const std::string& dip, const std::string& done = "1") {
  Record record;
  record.soukou = strike;
  record.keisha = dip;
  record.henkaku_done = done;
  return record;
}

support::Recorder drawn(const Record& record, double decl = 0, bool known = true) {
  support::Recorder surface;
  observations::symbol_out(surface, {500, 500}, observations::symbol_of(record, decl, known), 1, 16);
  return surface;
}

void expect_line(const support::Drawn& line, double x1, double y1, double x2, double y2) {
  ASSERT_EQ(line.points.size(), 2u);
  EXPECT_NEAR(line.points[0].x, x1, 1e-9);
  EXPECT_NEAR(line.points[0].y, y1, 1e-9);
  EXPECT_NEAR(line.points[1].x, x2, 1e-9);
  EXPECT_NEAR(line.points[1].y, y2, 1e-9);
}

}  // namespace

TEST(Strike_symbol, ANorthStrikeThatFallsEastHasItsTickOnTheRight) {
  const auto lines = drawn(plane("NS", "30E")).of("line");
  ASSERT_EQ(lines.size(), 2u);
  expect_line(lines[0], 500, 525, 500, 475);  // 50 long in all
  expect_line(lines[1], 500, 500, 515, 500);
}

TEST(Strike_symbol, ANorthStrikeThatFallsWestHasItsTickOnTheLeft) {
  expect_line(drawn(plane("NS", "30W")).of("line")[1], 500, 500, 485, 500);
}

// N30E: sin 30 = 0.5, cos 30 = 0.8660254. The tick of a fall to the right points to 120 degrees.
TEST(Strike_symbol, TheStrikeLineTurnsClockwiseWithTheAzimuth) {
  const double c = std::sqrt(3.0) / 2;
  const auto lines = drawn(plane("N30E", "45E")).of("line");
  expect_line(lines[0], 500 - 12.5, 500 + 25 * c, 500 + 12.5, 500 - 25 * c);
  expect_line(lines[1], 500, 500, 500 + 15 * c, 500 + 7.5);
}

TEST(Strike_symbol, TheDipsNumberStandsByItsLetterAndThenByTheStrike) {
  const auto at = [](const char* strike, const char* dip) {
    const drawing::Point point = drawn(plane(strike, dip)).of("text").at(0).points.at(0);
    return drawing::Point{point.x - 500, point.y - 500};
  };
  EXPECT_EQ(at("N60E", "30S"), (drawing::Point{0, 10}));
  EXPECT_EQ(at("N60E", "30N"), (drawing::Point{0, -20}));
  EXPECT_EQ(at("N60E", "30W"), (drawing::Point{-50, 0}));
  EXPECT_EQ(at("N60E", "30E"), (drawing::Point{10, -30}));
  EXPECT_EQ(at("N30E", "30W"), (drawing::Point{10, -30}));  // 0 to 45
  EXPECT_EQ(at("N30W", "30W"), (drawing::Point{10, -30}));  // -30 is 330
  EXPECT_EQ(at("180", "30W"), (drawing::Point{-30, -25}));  // 135 to 225
  EXPECT_EQ(drawn(plane("N60E", "30S")).of("text")[0].text, "30");
}

TEST(Strike_symbol, IsBlueAtTrueNorthAndRedWhereItCouldNotBeCorrected) {
  EXPECT_EQ(drawn(plane("NS", "30E", "0"), -7, true).of("line")[0].pen.colour, drawing::blue);
  EXPECT_EQ(drawn(plane("NS", "30E", "1"), 0, false).of("line")[0].pen.colour, drawing::blue);
  EXPECT_EQ(drawn(plane("NS", "30E", "0"), 0, false).of("line")[0].pen.colour, drawing::red);
}

TEST(Strike_symbol, TheDeclinationIsAddedOnceAndNotToACorrectedRecord) {
  EXPECT_DOUBLE_EQ(observations::symbol_of(plane("N20E", "30E", "0"), -7, true).azimuth, 13);
  EXPECT_DOUBLE_EQ(observations::symbol_of(plane("N20E", "30E", "1"), -7, true).azimuth, 20);
}

TEST(Strike_symbol, AStrikeWithoutADipDrawsNothing) {
  EXPECT_TRUE(drawn(plane("N20E", "")).calls.empty());
  EXPECT_TRUE(drawn(plane("", "30E")).calls.empty());
}

TEST(Strike_symbol, ALineationIsAnArrow) {
  Record record = plane("90", "20");
  record.taishou = "線構造";
  const auto lines = drawn(record).of("line");
  ASSERT_EQ(lines.size(), 3u);
  for (const support::Drawn& line : lines) EXPECT_EQ(line.pen.colour, drawing::blue);
  expect_line(lines[0], 500, 500, 550, 500);
  const double along = 40 * std::cos(10 * std::acos(-1.0) / 180), aside = 40 * std::sin(10 * std::acos(-1.0) / 180);
  expect_line(lines[1], 550, 500, 500 + along, 500 - aside);
  expect_line(lines[2], 550, 500, 500 + along, 500 + aside);
  record.taishou = "Lineation";
  EXPECT_EQ(drawn(record).of("line").size(), 3u);
}

TEST(Strike_symbol, ALineationBesideAPlaneIsDrawnToo) {
  Record record = plane("NS", "30E");
  record.sen_houkou = "180";
  record.sen_keisha = "20";
  const auto lines = drawn(record).of("line");
  ASSERT_EQ(lines.size(), 5u);
  expect_line(lines[2], 500, 500, 500, 550);
}
