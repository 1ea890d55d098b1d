// The conversions that take a declination, each with marked and unmarked strikes. declination_once_test.cpp follows a
// record over them from the hand that typed it.
#include "observations/true_north.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>

#include "observations/clinometer_notation.h"
#include "observations/strike_dip.h"
#include "observations/strike_dip_text.h"
#include "observations/understood.h"

namespace {

using namespace observations;

// What a record holds of a strike.
struct Record {
  std::string strike, dip, henkaku_done;
};

// The azimuth of a line, 0 up to 180.
double line_of(double azimuth) {
  const double rest = std::fmod(azimuth, 180);
  return rest < 0 ? rest + 180 : rest;
}

using Text_road = void (*)(std::string_view, std::string_view, double, std::string&, std::string&);

// The line of a text that the display of the clinometer or of the export gives.
double read_back(Text_road road, const Record& record, double decl) {
  std::string strike, dip;
  road(record.strike, record.dip, declination_for(record.henkaku_done, decl), strike, dip);
  double a = 0, d = 0;
  clinometer::角度変換(strike, "", a, d);
  return line_of(a);
}

// A field whose declination is `decl` degrees at latitude and longitude 0.
Geomagnetic_field field_with(double decl) {
  Geomagnetic_field field;
  field.order = 1;
  field.g[1][0] = -30'000;
  field.h[1][1] = -30'000 * std::tan(decl / degrees_per_radian);
  return field;
}

// A road takes a record and the declination of its place and gives the line that a user sees on it.
struct Road {
  const char* name;
  std::function<double(const Record&, double)> line;
};

const std::vector<Road>& roads() {
  static const std::vector<Road> all{
      {"drawing on the map",
       [](Record record, double decl) {
         double a = 0, d = 0;
         Dip_Strike_Trance(record.strike, record.dip, record.henkaku_done, a, d, decl);
         return line_of(a);
       }},
      {"one record with its label",
       [](const Record& record, double decl) {
         double a = 0, d = 0;
         Dip_Strike_Trance_S(field_with(decl), 0, 0, record.strike, record.dip, record.henkaku_done, a, d);
         return line_of(a);
       }},
      {"echo of the entry panel",
       [](const Record& record, double decl) {
         return line_of(understood(record.strike, record.dip, decl, record.henkaku_done).corrected.azimuth);
       }},
      {"texts of the 3D export",
       [](const Record& record, double decl) { return read_back(偏角表示変換Rockview, record, decl); }},
      {"texts of the clinometer",
       [](const Record& record, double decl) { return read_back(clinometer::偏角表示変換, record, decl); }},
      {"texts of a lineation of the clinometer",
       [](const Record& record, double decl) { return read_back(clinometer::線偏角表示変換, record, decl); }},
      {"a strike that bears its flag",
       [](const Record& record, double decl) {
         Strike_value strike;
         角度変換(record.strike, record.dip, strike.azimuth, strike.dip);
         strike.declination_applied = reads_as_corrected(record.henkaku_done);
         apply_declination(strike, decl);
         apply_declination(strike, decl);
         return line_of(strike.azimuth);
       }},
  };
  return all;
}

struct Turn {
  const char* strike;
  double line;  // as read
};

const Turn turns[] = {{"N15W", 165}, {"N15E", 15}, {"N74.5E", 74.5}, {"NS", 0}, {"N1W", 179}};
const double declinations[] = {-9.4, 0, 7.5, 15.2};

TEST(True_north, ARecordInMagneticNorthTakesTheDeclinationOnceOnEveryRoad) {
  for (const Road& road : roads())
    for (const Turn& turn : turns)
      for (const double decl : declinations)
        for (const char* open : {"", "0", " 0 "})
          EXPECT_NEAR(road.line({turn.strike, "30E", open}, decl), line_of(turn.line + decl), 1e-9)
              << road.name << " " << turn.strike << " " << decl;
}

TEST(True_north, ACorrectedRecordTakesNoDeclinationOnAnyRoad) {
  for (const Road& road : roads())
    for (const Turn& turn : turns)
      for (const double decl : declinations)
        for (const char* done : {"1", " 1 ", "1.0"})
          EXPECT_NEAR(road.line({turn.strike, "30E", done}, decl), turn.line, 1e-9)
              << road.name << " " << turn.strike << " " << decl;
}

TEST(True_north, ACorrectedTextThatIsStoredTravelsUnchangedOnEveryRoad) {
  for (const Turn& turn : turns)
    for (const double decl : declinations) {
      Record stored;
      偏角表示変換Rockview(turn.strike, "30E", decl, stored.strike, stored.dip);
      stored.henkaku_done = "1";
      for (const Road& road : roads())
        EXPECT_NEAR(road.line(stored, decl), line_of(turn.line + decl), 1e-9)
            << road.name << " " << stored.strike << " " << decl;
    }
}

TEST(True_north, TheFlagIsSetByTheFirstDeclination) {
  Strike_value strike{350, 30, false};
  apply_declination(strike, 20);
  EXPECT_TRUE(strike.declination_applied);
  EXPECT_EQ(strike.azimuth, 370);
  apply_declination(strike, 20);
  EXPECT_EQ(strike.azimuth, 370);
}

TEST(True_north, OnlyTheValueOneReadsAsCorrected) {
  for (const char* text : {"1", " 1 ", "1,", "1x", "01"}) EXPECT_TRUE(reads_as_corrected(text)) << text;
  for (const char* text : {"", "0", "2", "-1", "11", "x1", "True"}) EXPECT_FALSE(reads_as_corrected(text)) << text;
}

}  // namespace
