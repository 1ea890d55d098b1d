#include "observations/chiten_out.h"

#include <gtest/gtest.h>

#include "platform/text_files.h"
#include "support/places.h"
#include "support/recorder.h"
#include "table_rows.h"

using observations::Chiten_choice;
using observations::Number_shown;
using observations::Record;

namespace {

// One unit to the metre, 1000 metres high: the map place (X, Y) lies at canvas (X + 100, 1100 - Y).
struct Chiten_out : ::testing::Test {
  maps::Canvas canvas;
  observations::Registry registry;

  Chiten_out() {
    canvas.canvas_scale = 1;
    canvas.map_y1 = 1000;
    canvas.label_scale = 8;
  }
  Record& add(double x, double y, const std::string& mark) {
    Record& record = registry.rows[++registry.N];
    record = {};
    record.X = x;
    record.Y = y;
    record.mark = mark;
    record.size = 2;
    return record;
  }
  support::Recorder drawn(const Chiten_choice& choice = {}) {
    support::Recorder surface;
    observations::chiten_out(surface, canvas, registry, observations::drawn_records(registry, {}, canvas), choice);
    return surface;
  }
};

}  // namespace

TEST_F(Chiten_out, PaintsEachMarkAtItsPlaceInItsColour) {
  Record& record = add(50, 900, "●");
  record.R = 255;
  record.G = 128;
  const auto circles = drawn().of("circle");
  ASSERT_EQ(circles.size(), 1u);
  EXPECT_EQ(circles[0].points[0], (drawing::Point{150, 200}));
  EXPECT_EQ(circles[0].pen.colour, 0xff8000u);
}

TEST_F(Chiten_out, AColourOutOfRangeIsHeldAtItsEnd) {
  Record& record = add(0, 0, "○");
  record.R = 300;
  record.G = -5;
  EXPECT_EQ(drawn().of("circle")[0].pen.colour, 0xff0000u);
}

TEST_F(Chiten_out, ALineIsDrawnFromVertexToVertexInTheLineColour) {
  Record& record = add(0, 0, "線");
  record.B2 = 255;
  record.vertices = {{0, 1000}, {10, 1000}, {10, 990}};
  const auto lines = drawn().of("line");
  ASSERT_EQ(lines.size(), 2u);
  EXPECT_EQ(lines[0].points, (std::vector<drawing::Point>{{100, 100}, {110, 100}}));
  EXPECT_EQ(lines[1].points, (std::vector<drawing::Point>{{110, 100}, {110, 110}}));
  EXPECT_EQ(lines[0].pen.colour, 0x0000ffu);
}

TEST_F(Chiten_out, AnEnclosureIsARingAndSeeThroughWhereThatIsTicked) {
  for (const char* mark : {"範囲", "Area"}) {
    registry.N = 0;
    add(0, 0, mark).vertices = {{0, 1000}, {10, 1000}, {10, 990}};
    EXPECT_EQ(drawn().of("polygon").at(0).fill.style, drawing::Fill_style::none);
    EXPECT_EQ(drawn({true, true, Number_shown::none}).of("polygon").at(0).fill.style, drawing::Fill_style::see_through);
  }
}

TEST_F(Chiten_out, AWordIsWritten) {
  Record& record = add(0, 1000, "文字");
  record.soukou = "断層破砕帯";
  record.keisha = "30E";
  record.G = 255;
  const auto texts = drawn().of("text");
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].text, "断層破砕帯");
  EXPECT_EQ(texts[0].points[0], (drawing::Point{100, 100}));
  EXPECT_EQ(texts[0].colour, 0x00ff00u);
  EXPECT_TRUE(drawn().of("line").empty()) << "its words are no strike";
}

TEST_F(Chiten_out, TheNumberStandsBesideThePoint) {
  Record& record = add(0, 1000, "○");
  record.touroku_no = "081115-001*3";
  record.keisoku_no = "3";
  const auto registration = drawn({true, false, Number_shown::registration}).of("text");
  ASSERT_EQ(registration.size(), 1u);
  EXPECT_EQ(registration[0].text, "001");
  EXPECT_EQ(registration[0].points[0], (drawing::Point{110, 113}));
  EXPECT_EQ(registration[0].colour, drawing::black);
  const auto measurement = drawn({true, false, Number_shown::measurement}).of("text");
  EXPECT_EQ(measurement[0].text, "3");
  EXPECT_EQ(measurement[0].colour, drawing::red);
  EXPECT_TRUE(drawn().of("text").empty());
}

TEST_F(Chiten_out, ANumberWithoutADateStandsAsItIs) {
  Record record;
  record.touroku_no = "露頭7";
  EXPECT_EQ(observations::number_text_of(record, Number_shown::registration), "露頭7");
}

TEST_F(Chiten_out, WhatLiesOutsideTheCanvasIsLeftOut) {
  canvas.width = 3000;
  canvas.height = 3000;  // 400 units each way
  add(100, 900, "○");
  add(5000, 900, "○");
  add(0, 0, "線").vertices = {{5000, 0}, {6000, 0}};
  const support::Recorder surface = drawn();
  EXPECT_EQ(surface.calls.size(), 1u);
}

TEST_F(Chiten_out, ALineThatCrossesTheCanvasIsDrawnThoughNoVertexLiesInIt) {
  canvas.width = 3000;
  canvas.height = 3000;
  add(0, 0, "線").vertices = {{-5000, 900}, {5000, 900}};
  EXPECT_EQ(drawn().of("line").size(), 1u);
}

TEST_F(Chiten_out, WithoutAFieldTheStrikeIsShownUncorrected) {
  Record& record = add(0, 1000, "○");
  record.soukou = "NS";
  record.keisha = "30E";
  EXPECT_EQ(drawn().of("line")[0].pen.colour, drawing::red);
}

TEST_F(Chiten_out, NothingIsDrawnWhereThePointsAreSwitchedOff) {
  add(0, 1000, "○");
  EXPECT_TRUE(drawn({false, false, Number_shown::none}).calls.empty());
}

namespace {

struct Part_recorder : support::Recorder {
  drawing::Rect part;
  drawing::Rect touched_part() const override { return part; }
};

}  // namespace

// At label scale 8 a text is 22 units high: a number of three letters reaches 66 units from its place at (10, 13).
TEST_F(Chiten_out, APaintedPartGetsWhatReachesIntoItAndNoMore) {
  add(100, 900, "○").touroku_no = "081115-001";  // at (200, 200)
  add(130, 900, "○").touroku_no = "081115-002";
  const auto drawn_records = observations::drawn_records(registry, {}, canvas);
  const auto numbers = [&](drawing::Rect part) {
    Part_recorder surface;
    surface.part = part;
    observations::chiten_out(surface, canvas, registry, drawn_records, {true, false, Number_shown::registration});
    std::string found;
    for (const support::Drawn& call : surface.of("text")) found += call.text + " ";
    return found;
  };
  EXPECT_EQ(numbers({0, 0, 1000, 1000}), "001 002 ");
  EXPECT_EQ(numbers({270, 190, 10, 60}), "001 002 ");
  EXPECT_EQ(numbers({290, 190, 10, 60}), "002 ");
  EXPECT_EQ(numbers({150, 190, 45, 60}), "001 ");
  EXPECT_EQ(numbers({200, 120, 60, 60}), "");
  EXPECT_EQ(numbers({200, 260, 60, 60}), "");
}

// One reading is drawn on many views: what was kept for one of them must not stand for the next.
TEST_F(Chiten_out, APartIsRightAfterEachMoveEachScaleAndEachFrame) {
  add(100, 900, "●");  // at (200, 200), reaching 2 * 3 units and its pen to each side
  const auto drawn_records = observations::drawn_records(registry, {}, canvas);
  const auto is_in = [&](double left, double top) {
    Part_recorder surface;
    surface.part = {left, top, 20, 20};
    observations::chiten_out(surface, canvas, registry, drawn_records, {});
    return surface.of("circle").size() == 1;
  };
  EXPECT_TRUE(is_in(190, 190));
  EXPECT_FALSE(is_in(490, 190));
  canvas.view_x = 300 * maps::twips_per_unit;
  canvas.view_y = -90 * maps::twips_per_unit;
  EXPECT_TRUE(is_in(490, 100));
  EXPECT_FALSE(is_in(190, 190));
  canvas.view_x = canvas.view_y = 0;
  canvas.canvas_scale = 3;  // X to 100 + 300, Y to 100 + 3 * 100
  EXPECT_TRUE(is_in(390, 390));
  EXPECT_FALSE(is_in(190, 190));
  canvas.canvas_scale = 1;
  canvas.map_x0 = 40;  // X to 160
  EXPECT_TRUE(is_in(150, 190));
  EXPECT_FALSE(is_in(200, 190));
}

TEST_F(Chiten_out, ALineFarFromItsPointIsDrawnWhereItsVerticesLie) {
  add(0, 0, "線").vertices = {{800, 900}, {800, 800}};  // from (900, 200) to (900, 300); the point at (100, 1100)
  const auto drawn_records = observations::drawn_records(registry, {}, canvas);
  Part_recorder surface;
  surface.part = {904, 250, 20, 20};  // its pen and margin reach 6 units
  observations::chiten_out(surface, canvas, registry, drawn_records, {});
  EXPECT_EQ(surface.of("line").size(), 1u);
}

TEST_F(Chiten_out, OfALineOnlyTheSegmentsInThePaintedPartAreDrawn) {
  add(0, 0, "線").vertices = {{0, 1000}, {500, 1000}, {500, 600}, {0, 600}};
  Part_recorder surface;
  surface.part = {590, 200, 20, 20};
  observations::chiten_out(surface, canvas, registry, observations::drawn_records(registry, {}, canvas), {});
  const auto lines = surface.of("line");
  ASSERT_EQ(lines.size(), 1u);
  EXPECT_EQ(lines[0].points, (std::vector<drawing::Point>{{600, 100}, {600, 500}}));
}

TEST_F(Chiten_out, ARecordThatCameAfterTheReadingIsDrawnWithoutASymbol) {
  const auto drawn_records = observations::drawn_records(registry, {}, canvas);
  Record& record = add(0, 1000, "■");
  record.soukou = "N30E";
  record.keisha = "30E";
  support::Recorder surface;
  observations::chiten_out(surface, canvas, registry, drawn_records, {});
  ASSERT_EQ(surface.calls.size(), 1u);
  EXPECT_EQ(surface.calls[0].what, "polygon");
}

TEST_F(Chiten_out, DrawingLeavesTheTableAsItIs) {
  Record& record = add(0, 1000, "○");
  record.soukou = "n30e";
  record.keisha = "30s";
  const Record before = record;
  drawn({true, false, Number_shown::registration});
  EXPECT_EQ(registry.rows[1], before);
}

// The published field at places all over the east of the northern half, by the independent synthesis.
TEST_F(Chiten_out, EachGeographicRecordTakesTheDeclinationOfItsOwnPlace) {
  platform::Disk_files files;
  const observations::Geomagnetic_field field =
      observations::field_of_lines(platform::read_lines(files, support::golden_file("observations/igrf10.coef")));
  std::vector<double> declinations;
  for (const auto& row : observations_test::golden_rows("declination.csv")) {
    const double x = observations_test::number(row, "longitude"), y = observations_test::number(row, "latitude");
    if (x <= 10 || y <= 10 || y >= 90) continue;  // told apart from metres by their size
    for (const char* done : {"0", "1"}) {
      Record& record = add(x * 100'000, y * 100'000, "○");
      record.soukou = "NS";
      record.keisha = "30E";
      record.henkaku_done = done;
    }
    declinations.push_back(observations_test::number(row, "declination"));
  }
  ASSERT_GT(declinations.size(), 10u);
  const auto symbols = observations::drawn_records(registry, field, canvas).symbols;
  ASSERT_EQ(symbols.size(), 2 * declinations.size());
  for (std::size_t i = 0; i < declinations.size(); ++i) {
    EXPECT_NEAR(symbols[2 * i].azimuth, declinations[i], 1e-6);
    EXPECT_EQ(symbols[2 * i + 1].azimuth, 0) << "it is corrected";
    EXPECT_TRUE(symbols[2 * i].true_north && symbols[2 * i + 1].true_north);
  }
}
