#include "core/session/gps_follow.h"

#include <gmock/gmock.h>

#include "core/session/tools.h"
#include "instruments/receiver_place.h"
#include "session/session_fixture.h"

namespace {

using session::Gps_followed;
using session::Redraw;

// 35°42' north; 138°50' east lies on 533846, 138°55' on 533847 beside it, 139°01' on neither.
constexpr const char* west = "13850.0000";
constexpr const char* east = "13855.0000";
constexpr const char* outside = "13901.0000";

struct Gps_follow : support::Session_fixture {
  support::Fed_port port;

  void start_on(int row) {
    write_settings();
    files.make_folder(program() + "/map");
    for (const char* name : {"533846", "533847"})
      files.write_whole(program() + "/map/" + name + ".bmp", "PICTURE 400 300 200");
    write(program() + "/Language.set", {"Japanese"});
    write(program() + "/ZUMEI.CSV", {"533846,西沢,NISHIZAWA,,,,,354000.0,1385230.0,354011.6,1385218.3,,"
                                     "354500.0,1384500.0,354511.6,1384448.3",
                                     "533847,東沢,HIGASHIZAWA,,,,,354000.0,1390000.0,354011.6,1385948.3,,"
                                     "354500.0,1385230.0,354511.6,1385218.3"});
    ASSERT_EQ(start(), session::Activated::list_filled);
    session.canvas.width = 12000;
    session.canvas.height = 9000;
    session::chizu_out(session, ports, row);
    session::gps_start(session, ports, port);
  }
  Gps_followed tick_at(const std::string& longitude) {
    port.arrived = "$GPGGA,102031.00,3542.0000,N," + longitude + ",E,1,08,,,M,,M,,\r\n" + support::gsa + support::rmc;
    return session::gps_tick(session, ports, port);
  }
};

TEST_F(Gps_follow, StartsWithThePortAndTheSpeedOfTheSettingsAndStops) {
  session.boxes.Combo4 = "07";
  session.boxes.Combo5 = "4800";
  session::gps_start(session, ports, port);
  EXPECT_EQ(port.number, 7);
  EXPECT_EQ(port.line, "4800,n,8,1");
  EXPECT_EQ(session.flags.gps_running, 1);
  session::gps_stop(session, port);
  EXPECT_FALSE(port.is_open());
  EXPECT_EQ(session.flags.gps_running, 0);
  EXPECT_EQ(session.gps.Label7, "GPS停止中");
}

TEST_F(Gps_follow, TakesPositionsAsTheyComeInEitherDatum) {
  start_on(0);
  for (const int datum_mode : {0, 1}) {
    session.settings.datum_mode = datum_mode;
    EXPECT_TRUE(tick_at(west).moved);
    EXPECT_DOUBLE_EQ(session.gps.mark.longitude, (138 + 50.0 / 60) * 100'000);
    EXPECT_DOUBLE_EQ(session.gps.mark.latitude, 3'570'000);
  }
}

TEST_F(Gps_follow, StaysOnTheSheetOfThePositionAndNamesIt) {
  start_on(0);
  const Gps_followed followed = tick_at(west);
  EXPECT_EQ(followed.row, -1);
  EXPECT_FALSE(followed.outside);
  EXPECT_EQ(followed.Label16, "西沢");
  EXPECT_EQ(followed.data_path, session.settings.project_path);
  EXPECT_EQ(followed.redraw, Redraw::overlay);
}

TEST_F(Gps_follow, BringsTheNextSheetInItsFirstSizeWithoutAScroll) {
  start_on(0);
  const double scale = session.canvas.canvas_scale0;
  for (int i = 0; i < 6; ++i) session::zoom(session, true);
  session::bars_moved(session, 40, 30);
  ASSERT_NE(session.canvas.view_x, 0);
  session.view.Text1 = 12;
  const Gps_followed followed = tick_at(east);
  EXPECT_EQ(followed.row, 1);
  EXPECT_EQ(followed.Label16, "東沢");
  EXPECT_EQ(session::chizu_out(session, ports, followed.row), Redraw::all);
  EXPECT_EQ(session.current_sheet, "533847");
  EXPECT_NEAR(session.canvas.canvas_scale, scale, 1e-9);
  EXPECT_EQ(session.canvas.label_scale, 12);
  EXPECT_EQ(session.canvas.view_x, 0);
  EXPECT_EQ(session.canvas.view_y, 0);
  EXPECT_EQ(session.bars.horizontal.value, 0);
  EXPECT_EQ(session.bars.vertical.value, 0);
  EXPECT_EQ(tick_at(east).row, -1);
}

TEST_F(Gps_follow, LeavesTheMapOutsideEverySheet) {
  start_on(1);
  const Gps_followed followed = tick_at(outside);
  EXPECT_TRUE(followed.moved);
  EXPECT_TRUE(followed.outside);
  EXPECT_EQ(followed.row, -1);
  EXPECT_EQ(followed.data_path, "範囲外");
  EXPECT_EQ(followed.redraw, Redraw::overlay);
  EXPECT_EQ(session.current_sheet, "533847");
  EXPECT_TRUE(session.gps.mark.visible);
}

TEST_F(Gps_follow, MovesAnEnlargedMapUntilTheMarkIsInSight) {
  start_on(0);
  for (int i = 0; i < 12; ++i) session::zoom(session, true);
  EXPECT_EQ(tick_at(west).redraw, Redraw::view);
  const maps::Canvas_point at = instruments::gps_mark_at(session.canvas, session.gps.mark);
  EXPECT_NEAR(at.x * maps::twips_per_unit, session.canvas.width / 2, 15);
  EXPECT_NEAR(at.y * maps::twips_per_unit, session.canvas.height / 2, 15);
}

TEST_F(Gps_follow, FollowsNothingWithoutASheet) {
  session::gps_start(session, ports, port);
  const Gps_followed followed = tick_at(west);
  EXPECT_FALSE(followed.moved);
  EXPECT_EQ(followed.row, -1);
  EXPECT_EQ(session.gps.Label7, "GPS:補足");
}

TEST_F(Gps_follow, DoesNothingWhileTheFlagIsNotSet) {
  start_on(0);
  session::gps_stop(session, port);
  port.open();
  EXPECT_FALSE(tick_at(east).moved);
  EXPECT_NE(port.arrived, "");
  EXPECT_FALSE(session.gps.mark.visible);
}

}  // namespace
