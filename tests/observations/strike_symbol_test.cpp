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

// Sines of 0, 15 ... 90 degrees, from a printed table.
constexpr double sines[] = {0, 0.2588190451025207, 0.5, 0.7071067811865476, 0.8660254037844386, 0.9659258262890683, 1};

double sine(int steps) {
  const int turn = ((steps % 24) + 24) % 24;
  if (turn > 12) return -sine(turn - 12);
  return sines[turn <= 6 ? turn : 12 - turn];
}

// The point at a length from (500, 500) towards so many steps of 15 degrees from north, clockwise.
drawing::Point towards(int steps, double length) {
  return {500 + length * sine(steps), 500 - length * sine(steps + 6)};
}

// A strike as it is written, and its azimuth in steps of 15 degrees.
struct Written {
  const char* strike;
  int steps;
};

// Read from the north, on either side of it.
// clang-format off
constexpr Written quadrants[] = {
    {"N90W", -6}, {"N75W", -5}, {"N60W", -4}, {"N45W", -3}, {"N30W", -2}, {"N15W", -1}, {"N0W", 0}, {"NS", 0},
    {"N0E",   0}, {"N15E",  1}, {"N30E",  2}, {"N45E",  3}, {"N60E",  4}, {"N75E",  5}, {"N90E", 6},
};
constexpr Written azimuths[] = {
    {"0",    0}, {"15",   1}, {"30",   2}, {"45",   3}, {"60",   4}, {"75",   5}, {"90",   6}, {"105",  7},
    {"120",  8}, {"135",  9}, {"150", 10}, {"165", 11}, {"180", 12}, {"195", 13}, {"210", 14}, {"225", 15},
    {"240", 16}, {"255", 17}, {"270", 18}, {"285", 19}, {"300", 20}, {"315", 21}, {"330", 22}, {"345", 23},
};
// clang-format on

// The side of the strike line on which the tick stands: 6 steps to the right or to the left.
constexpr int right = 6, left = -6;

void expect_plane(const char* strike, const std::string& dip, int steps, int side) {
  SCOPED_TRACE(std::string(strike) + " " + dip);
  const auto lines = drawn(plane(strike, dip)).of("line");
  ASSERT_EQ(lines.size(), 2u);
  const drawing::Point begin = towards(steps + 12, 25), end = towards(steps, 25), tick = towards(steps + side, 15);
  expect_line(lines[0], begin.x, begin.y, end.x, end.y);
  expect_line(lines[1], 500, 500, tick.x, tick.y);
}

// Where a plane of a strike towards the north-east or the north-west falls, by the compass.
int side_by_compass(int steps, char letter) {
  if (letter == 'E') return right;
  if (letter == 'W') return left;
  const bool north_east = steps > 0;
  return (letter == 'S') == north_east ? right : left;
}

}  // namespace

TEST(Strike_symbol, EveryStrikeOfTheQuadrantsFallsToTheSideThatItsLetterNames) {
  for (const Written& written : quadrants)
    for (const char letter : {'E', 'W', 'S', 'N'}) {
      const bool along_the_meridian = written.steps == 0 && (letter == 'S' || letter == 'N');
      if (along_the_meridian) continue;
      for (const char* angle : {"1", "15", "30", "45", "60", "89", "90"})
        expect_plane(written.strike, angle + std::string(1, letter), written.steps,
                     side_by_compass(written.steps, letter));
    }
}

// Beside a bare azimuth "E" is the right side and "W" the left one, wherever that lies; a bare dip is on the right.
TEST(Strike_symbol, EveryAzimuthHasItsTickOnTheSideOfEOrW) {
  for (const Written& written : azimuths) {
    expect_plane(written.strike, "30E", written.steps, right);
    expect_plane(written.strike, "30W", written.steps, left);
    expect_plane(written.strike, "30", written.steps, right);
  }
}

// The tick stands on the left unless the dip is positive.
TEST(Strike_symbol, AHorizontalPlaneHasItsTickOnTheLeftAndAVerticalOneOnItsSide) {
  for (const Written& written : azimuths) {
    for (const char* flat : {"0", "0E", "0W"}) expect_plane(written.strike, flat, written.steps, left);
    expect_plane(written.strike, "90", written.steps, right);
    expect_plane(written.strike, "90E", written.steps, right);
    expect_plane(written.strike, "90W", written.steps, left);
  }
  EXPECT_EQ(drawn(plane("30", "0")).of("text").at(0).text, "0");
  EXPECT_EQ(drawn(plane("30", "90W")).of("text").at(0).text, "90");
}

// A letter that names no side of its strike reads as no dip.
TEST(Strike_symbol, NAndSOfAStrikeWithoutALetterStandOnTheLeft) {
  for (const char* dip : {"30N", "30S"}) {
    expect_plane("NS", dip, 0, left);
    expect_plane("120", dip, 8, left);
  }
}

TEST(Strike_symbol, TheNumberOfEveryStrikeStandsInItsPlace) {
  const auto offset_of = [](int steps, char letter) {
    const int azimuth = (steps * 15 + 360) % 360;
    if (azimuth <= 45 || azimuth >= 315) return drawing::Point{10, -30};
    if (azimuth >= 135 && azimuth <= 225) return drawing::Point{-30, -25};
    if (letter == 'S') return drawing::Point{0, 10};
    if (letter == 'N') return drawing::Point{0, -20};
    return letter == 'W' ? drawing::Point{-50, 0} : drawing::Point{10, -30};
  };
  const auto check = [&](const Written& written) {
    for (const char letter : {'E', 'W', 'S', 'N'}) {
      const auto texts = drawn(plane(written.strike, "42" + std::string(1, letter))).of("text");
      ASSERT_EQ(texts.size(), 1u);
      const drawing::Point offset = offset_of(written.steps, letter);
      EXPECT_EQ(texts[0].points[0], (drawing::Point{500 + offset.x, 500 + offset.y})) << written.strike << letter;
      EXPECT_EQ(texts[0].text, "42");
    }
  };
  for (const Written& written : quadrants) check(written);
  for (const Written& written : azimuths) check(written);
}

// Cosine and sine of 10 degrees, from a printed table.
TEST(Strike_symbol, EveryLineationIsAnArrowThatPointsThere) {
  constexpr double cos10 = 0.984807753012208, sin10 = 0.17364817766693;
  for (const Written& written : azimuths) {
    SCOPED_TRACE(written.strike);
    Record record = plane(written.strike, "20");
    record.taishou = "線構造";
    const auto lines = drawn(record).of("line");
    ASSERT_EQ(lines.size(), 3u);
    const drawing::Point tip = towards(written.steps, 50);
    const drawing::Point ahead = towards(written.steps, 40 * cos10);
    const drawing::Point aside = towards(written.steps + 6, 40 * sin10);
    const double x = aside.x - 500, y = aside.y - 500;
    expect_line(lines[0], 500, 500, tip.x, tip.y);
    expect_line(lines[1], tip.x, tip.y, ahead.x - x, ahead.y - y);
    expect_line(lines[2], tip.x, tip.y, ahead.x + x, ahead.y + y);
  }
}

TEST(Strike_symbol, EveryLineationBesideAPlaneKeepsItsOwnDirection) {
  for (const Written& strike : quadrants)
    for (const Written& trend : azimuths) {
      Record record = plane(strike.strike, "30E");
      record.sen_houkou = trend.strike;
      record.sen_keisha = "15";
      const auto lines = drawn(record).of("line");
      ASSERT_EQ(lines.size(), 5u);
      const drawing::Point end = towards(strike.steps, 25), tip = towards(trend.steps, 50);
      EXPECT_NEAR(lines[0].points[1].x, end.x, 1e-9);
      EXPECT_NEAR(lines[2].points[1].x, tip.x, 1e-9);
      EXPECT_NEAR(lines[2].points[1].y, tip.y, 1e-9);
    }
}

TEST(Strike_symbol, DrawingLeavesTheTextsOfTheRecordAsTheyWereTyped) {
  Record record = plane("n30e", "45s");
  record.sen_houkou = "n10w";
  record.sen_keisha = "5e";
  const Record typed = record;
  const auto lines = drawn(record).of("line");
  EXPECT_EQ(lines.size(), 5u);
  EXPECT_EQ(record, typed);
  expect_plane("n30e", "45s", 2, right);
}

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

// Either of the two texts is enough for an arrow; the other reads as nothing.
TEST(Strike_symbol, ALineationWithoutStrikeAndDipDrawsNothing) {
  Record record = plane("", "");
  record.taishou = "線構造";
  EXPECT_TRUE(drawn(record).calls.empty());
  record.soukou = "90";
  expect_line(drawn(record).of("line").at(0), 500, 500, 550, 500);
  record.soukou = "";
  record.keisha = "20";
  expect_line(drawn(record).of("line").at(0), 500, 500, 500, 450);
}

TEST(Strike_symbol, AllLengthsAndOffsetsGrowWithTheScale) {
  support::Recorder surface;
  Record record = plane("N90E", "30S");
  record.sen_houkou = "180";
  record.sen_keisha = "20";
  observations::symbol_out(surface, {500, 500}, observations::symbol_of(record, 0, true), 2, 16);
  const auto lines = surface.of("line");
  ASSERT_EQ(lines.size(), 5u);
  expect_line(lines[0], 450, 500, 550, 500);  // 100 long in all
  expect_line(lines[1], 500, 500, 500, 530);
  expect_line(lines[2], 500, 500, 500, 600);
  EXPECT_EQ(surface.of("text").at(0).points.at(0), (drawing::Point{500, 520}));  // "S": 10 below
}
