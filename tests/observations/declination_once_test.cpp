// The declination is never applied twice: the rows of one table are the lives of a record, from the hand that typed it
// over saves, changes and copies, and each record that comes out is looked at on every road to a user's eye.
#include <gtest/gtest.h>

#include <cmath>
#include <ostream>
#include <utility>

#include "observations/chiten_out.h"
#include "observations/clinometer_notation.h"
#include "observations/observation_place.h"
#include "observations/registry_save.h"
#include "observations/strike_dip.h"
#include "observations/strike_dip_text.h"
#include "observations/true_north.h"
#include "observations/understood.h"

namespace {

using namespace observations;

// A record's place, 139.1 degrees east and 36.05 north, and the same in metres on support::geographic_canvas: 360
// seconds of 25 m to the east and 180 seconds of 30 m to the north.
constexpr double longitude = 139.1, latitude = 36.05;
constexpr geodesy::Point geographic_place{13'910'000, 3'605'000};
constexpr geodesy::Point metric_place{9000, 5400};

// A field of the first degree whose declination at the record's place is `decl` degrees. With G = g11 cos l + h11 sin l
// and H = g11 sin l - h11 cos l its components at the geocentric colatitude t are, but for a factor in common,
//    north -g10 sin t + G cos t,  east H,  down -2 (g10 cos t + G sin t).
// g10 = -G tan t takes the component that points down away; north is then G / cos t, of which cos(delta) is left in the
// geodetic horizon, delta being the difference of the two latitudes. So H = G tan(decl) cos(delta) / cos t.
Geomagnetic_field field_with(double decl) {
  const double right_angle = std::acos(0.0), radian = right_angle / 90;
  const double flattening = 1 / 298.25722;
  const double geocentric = std::atan((1 - flattening) * (1 - flattening) * std::tan(latitude * radian));
  const double t = right_angle - geocentric, l = longitude * radian, delta = latitude * radian - geocentric;
  const double G = 20'000, H = G * std::tan(decl * radian) * std::cos(delta) / std::cos(t);
  Geomagnetic_field field;
  field.order = 1;
  field.g[1][0] = -G * std::tan(t);
  field.g[1][1] = G * std::cos(l) + H * std::sin(l);
  field.h[1][1] = G * std::sin(l) - H * std::cos(l);
  return field;
}

// The azimuth of a line, 0 up to 180.
double line_of(double azimuth) {
  const double rest = std::fmod(azimuth, 180);
  return rest < 0 ? rest + 180 : rest;
}

// A project on a geographic sheet.
struct World : support::Observation_place {
  geodesy::Point at = geographic_place;

  World() { canvas = support::geographic_canvas(); }
  void save() {
    EXPECT_TRUE(Command9(context(), entry, registry).saved);
    read();  // as the redraw does that follows
  }
  // A new record by hand, with a lineation N40E of 20 degrees.
  void type(const char* strike, const char* dip, bool corrected = false) {
    read();
    mnu_sinki(context(), entry, registry, by_date, click(at.x, at.y), {});
    position_to_boxes(entry.boxes, at);
    set(strike, dip, corrected);
    entry.boxes.Text14[box_sen_houkou] = "N40E";
    entry.boxes.Text14[box_sen_keisha] = "20";
    save();
  }
  void set(const char* strike, const char* dip, bool corrected) {
    entry.boxes.Text14[box_soukou] = strike;
    entry.boxes.Text14[box_keisha] = dip;
    entry.boxes.Check9 = corrected;
  }
  void open() {
    entry.touroku = 1;
    ASSERT_TRUE(mnu_henkou(context(), entry, registry, {}));
  }
  void tick(bool corrected) {
    open();
    entry.boxes.Check9 = corrected;
    save();
  }
  void change(const char* strike, const char* dip) {
    open();
    set(strike, dip, entry.boxes.Check9);
    save();
  }
  // A record of the file as other programs and the clinometer's import write it.
  void line(const char* strike, const char* dip, const char* columns_19_and_20) {
    const auto text = [](double value) { return std::to_string(static_cast<long>(value)); };
    put_lines({"0," + text(at.x) + "," + text(at.y) + ",,断層,," + strike + "," + dip +
               ",081115-12*12,,○,2,0,0,0,0,0,0," + columns_19_and_20 + ",2008/11/15 09:30:00,20,N40E,0,"});
    read();
  }
  // The record is copied to another surface, which is then the one in use.
  void copy() {
    open();
    entry.boxes.Combo2 = "sawa";
    EXPECT_TRUE(surface_add(context(), entry));
    entry_close(entry, registry);
    settings.registry_name = "sawa.csv";
    chisoumen_read(registry, files, 1, {path("sawa.csv")});
  }
};

struct Lines {
  double strike, trend;
};

// What a record went through, and the lines that a user must see after it: magnetic where `unknown`, and for two
// declinations. -7: 345 - 7 is 338, the line 158.
struct Life {
  const char* name;
  void (*live)(World&);
  Lines at_minus_7, at_5_5;
};

// clang-format off
const Life lives[] = {
  {"typed",
   [](World& w) { w.type("N15W", "30E"); },                                                    {158, 33}, {170.5, 45.5}},
  {"typed in small letters",
   [](World& w) { w.type("n15w", "30e"); },                                                    {158, 33}, {170.5, 45.5}},
  {"typed with a plane that falls to the left",
   [](World& w) { w.type("N15W", "30W"); },                                                    {158, 33}, {170.5, 45.5}},
  {"typed as an azimuth",
   [](World& w) { w.type("127", "30"); },                                                      {120, 33}, {132.5, 45.5}},
  {"typed as a line to the north",
   [](World& w) { w.type("NS", "30E"); },                                                      {173, 33}, {  5.5, 45.5}},
  {"typed so that it is turned over north",
   [](World& w) { w.type("N5E", "30E"); },                                                     {178, 33}, { 10.5, 45.5}},
  {"typed with the tick of corrected data",
   [](World& w) { w.type("N15W", "30E", true); },                                              {165, 40}, {165,   40  }},
  {"opened and saved again three times",
   [](World& w) { w.type("N15W", "30E"); for (int i = 0; i < 3; ++i) { w.open(); w.save(); } }, {158, 33}, {170.5, 45.5}},
  {"corrected, opened and saved again three times",
   [](World& w) { w.type("N15W", "30E", true); for (int i = 0; i < 3; ++i) { w.open(); w.save(); } },
                                                                                               {165, 40}, {165,   40  }},
  {"ticked later",
   [](World& w) { w.type("N15W", "30E"); w.tick(true); },                                      {165, 40}, {165,   40  }},
  {"ticked twice",
   [](World& w) { w.type("N15W", "30E"); w.tick(true); w.tick(true); },                        {165, 40}, {165,   40  }},
  {"ticked and unticked",
   [](World& w) { w.type("N15W", "30E"); w.tick(true); w.tick(false); },                       {158, 33}, {170.5, 45.5}},
  {"unticked later",
   [](World& w) { w.type("N15W", "30E", true); w.tick(false); },                               {158, 33}, {170.5, 45.5}},
  {"given another strike",
   [](World& w) { w.type("N15W", "30E"); w.change("N20E", "40E"); },                           { 13, 33}, { 25.5, 45.5}},
  {"given another strike and the old one again",
   [](World& w) { w.type("N15W", "30E"); w.change("N20E", "40E"); w.change("N15W", "30E"); },  {158, 33}, {170.5, 45.5}},
  {"corrected and given another strike",
   [](World& w) { w.type("N15W", "30E", true); w.change("N20E", "40E"); },                     { 20, 40}, { 20,   40  }},
  {"copied to another surface",
   [](World& w) { w.type("N15W", "30E"); w.copy(); },                                          {158, -1}, {170.5, -1  }},
  {"copied to another surface, opened and saved there",
   [](World& w) { w.type("N15W", "30E"); w.copy(); w.open(); w.save(); },                      {158, -1}, {170.5, -1  }},
  // Lines of the clinometer's import and of other programs: columns 19 and 20 as they stand.
  {"imported as magnetic",
   [](World& w) { w.line("N15W", "30E", ","); },                                               {158, 33}, {170.5, 45.5}},
  {"imported as corrected by the instrument",
   [](World& w) { w.line("N15W", "30E", "1,"); },                                              {165, 40}, {165,   40  }},
  {"imported as corrected by an instrument with a declination",
   [](World& w) { w.line("N15W", "30E", "1,1"); },                                             {165, 40}, {165,   40  }},
  {"imported as magnetic from an instrument with a declination",
   [](World& w) { w.line("N15W", "30E", ",1"); },                                              {158, 33}, {170.5, 45.5}},
  {"imported as corrected, opened and saved",
   [](World& w) { w.line("N15W", "30E", "1,1"); w.open(); w.save(); },                         {165, 40}, {165,   40  }},
  {"imported as magnetic, opened and saved",
   [](World& w) { w.line("N15W", "30E", ",1"); w.open(); w.save(); },                          {158, 33}, {170.5, 45.5}},
  {"imported with a tick that was printed as a number",
   [](World& w) { w.line("N15W", "30E", " 1 ,"); w.open(); w.save(); },                        {165, 40}, {165,   40  }},
  {"imported with another number in column 19",
   [](World& w) { w.line("N15W", "30E", "2,"); },                                              {158, 33}, {170.5, 45.5}},
  {"imported with another number in column 19, opened and saved",
   [](World& w) { w.line("N15W", "30E", "2,"); w.open(); w.save(); },                          {158, 33}, {170.5, 45.5}},
};
// clang-format on

using Text_display = void (*)(std::string_view, std::string_view, double, std::string&, std::string&);

double read_back(Text_display display, const std::string& strike, const std::string& dip, const Record& record,
                 double decl) {
  std::string shown_strike, shown_dip;
  display(strike, dip, declination_for(record.henkaku_done, decl), shown_strike, shown_dip);
  double a = 0, d = 0;
  clinometer::角度変換(shown_strike, {}, a, d);
  return line_of(a);
}

Symbol symbol_on_map(World& world, double decl) {
  return drawn_records(world.registry, field_with(decl), world.canvas).symbols.at(0);
}

// The roads from record 1 to a user's eye.
struct Road {
  const char* name;
  double (*strike)(World&, double decl);
};

const Road roads[] = {
    {"symbol of the plane on the map",
     [](World& w, double decl) {
       const Symbol symbol = symbol_on_map(w, decl);
       EXPECT_EQ(symbol.kind, Symbol_kind::plane);
       EXPECT_TRUE(symbol.true_north);
       return line_of(symbol.azimuth);
     }},
    {"arrow of a lineation on the map",
     [](World& w, double decl) {
       const std::string taishou = std::exchange(w.registry.rows[1].taishou, "線構造");
       const Symbol symbol = symbol_on_map(w, decl);
       w.registry.rows[1].taishou = taishou;
       EXPECT_EQ(symbol.kind, Symbol_kind::lineation);
       return line_of(symbol.azimuth);
     }},
    {"label and strike of one record",
     [](World& w, double decl) {
       const Record& record = w.registry.rows[1];
       double a = 0, d = 0;
       const Declination_label label = Dip_Strike_Trance_S(field_with(decl), geographic_place.x, geographic_place.y,
                                                           record.soukou, record.keisha, record.henkaku_done, a, d);
       EXPECT_EQ(label.english, decl < 0 ? "declination -7.0 Deg" : "declination 5.5 Deg");
       return line_of(a);
     }},
    {"echo of the entry panel",
     [](World& w, double decl) {
       w.open();
       const Entry_boxes& boxes = w.entry.boxes;
       const Understood echo =
           understood(boxes.Text14[box_soukou], boxes.Text14[box_keisha], decl, boxes.Check9 ? "1" : "0");
       entry_close(w.entry, w.registry);
       return line_of(echo.corrected.azimuth);
     }},
    {"texts of the 3D export",
     [](World& w, double decl) {
       const Record& record = w.registry.rows[1];
       return read_back(偏角表示変換Rockview, record.soukou, record.keisha, record, decl);
     }},
    {"texts of the clinometer",
     [](World& w, double decl) {
       const Record& record = w.registry.rows[1];
       return read_back(clinometer::偏角表示変換, record.soukou, record.keisha, record, decl);
     }},
};

const Road trend_roads[] = {
    {"arrow beside the plane on the map",
     [](World& w, double decl) {
       const Symbol symbol = symbol_on_map(w, decl);
       EXPECT_TRUE(symbol.has_line);
       return line_of(symbol.line_azimuth);
     }},
    {"texts of the clinometer's lineation",
     [](World& w, double decl) {
       const Record& record = w.registry.rows[1];
       return read_back(clinometer::線偏角表示変換, record.sen_houkou, record.sen_keisha, record, decl);
     }},
};

void PrintTo(const Life& life, std::ostream* out) {
  *out << life.name;
}

struct Declination_once : testing::TestWithParam<Life> {
  World world;

  template <std::size_t count>
  void expect_on(const Road (&all)[count], double decl, double expected) {
    for (const Road& road : all)
      EXPECT_NEAR(road.strike(world, decl), expected, 1e-6)
          << GetParam().name << ", " << road.name << ", declination " << decl;
  }
  void live_at(geodesy::Point place) {
    world.at = place;
    GetParam().live(world);
    ASSERT_EQ(world.registry.N, 1);
    for (const auto& [decl, expected] : {std::pair{-7.0, GetParam().at_minus_7}, std::pair{5.5, GetParam().at_5_5}}) {
      expect_on(roads, decl, expected.strike);
      if (expected.trend >= 0) expect_on(trend_roads, decl, expected.trend);  // a copy takes no lineation along
    }
  }
};
INSTANTIATE_TEST_SUITE_P(Lives, Declination_once, testing::ValuesIn(lives),
                         [](const testing::TestParamInfo<Life>& life) {
                           std::string name = life.param.name;
                           for (char& c : name)
                             if (!std::isalnum(static_cast<unsigned char>(c))) c = '_';
                           return name;
                         });

TEST_P(Declination_once, ForARecordInDegrees) {
  live_at(geographic_place);
}

TEST_P(Declination_once, ForARecordInMetres) {
  live_at(metric_place);
}

TEST(Declination_of_the_test, IsTheOneThatTheFieldIsMadeFor) {
  for (const double decl : {-7.0, 5.5})
    EXPECT_NEAR(declination_at(field_with(decl), latitude, longitude), decl, 1e-9) << decl;
}

}  // namespace
