#include "core/session/redraw.h"

#include "observations/reference_points_out.h"
#include "session/session_fixture.h"
#include "support/recorder.h"

namespace {

// One canvas unit to the metre: the map place (X, Y) lies at canvas (X + 100, 1100 - Y).
struct Redraw_layers : support::Session_fixture {
  support::Recorder surface;

  void SetUp() override {
    Session_fixture::SetUp();
    start_with_sheet();
    session.canvas.is_geographic = false;
    session.canvas.canvas_scale = 1;
    session.canvas.map_x0 = session.canvas.map_y0 = 0;
    session.canvas.map_x1 = session.canvas.map_y1 = 1000;
    session.routes.routes = {{{}, 0, {{300, 400, false}, {500, 400, true}}}};
    session.registry.N = 1;
    observations::Record& record = session.registry.rows[1];
    record = {};
    record.X = 300;
    record.Y = 400;
    record.mark = "○";
    session.reference_points.count = 1;
    session.reference_points.rows[1] = {.number = 1, .X = 300, .Y = 400, .values = {}, .name = "", .columns = {}};
  }
  // Where the first call lies that draws so; -1 without one.
  int first(const std::string& what, drawing::Colour colour) const {
    for (std::size_t i = 0; i < surface.calls.size(); ++i)
      if (surface.calls[i].what == what && surface.calls[i].pen.colour == colour) return static_cast<int>(i);
    return -1;
  }
};

}  // namespace

// The magenta lines of the routes lie below the marks of the observations and above the sheet and its base data.
TEST_F(Redraw_layers, RoutesComeBeforeTheObservations) {
  session::画面再表示(session, surface);
  const int route = first("polyline", 0xff00ff), mark = first("circle", 0x000000),
            base = first("line", observations::reference_colour);
  ASSERT_GE(route, 0);
  EXPECT_GT(mark, route);
  EXPECT_GE(base, 0);
  EXPECT_LT(base, route);
}

TEST_F(Redraw_layers, RoutesAndObservationsHaveTheirSwitches) {
  session.view.Check8 = false;
  session::画面再表示(session, surface);
  EXPECT_EQ(first("polyline", 0xff00ff), -1);
  EXPECT_GE(first("circle", 0x000000), 0);
  session.view.Check8 = true;
  session.view.Check5 = false;
  surface.calls.clear();
  session::画面再表示(session, surface);
  EXPECT_GE(first("polyline", 0xff00ff), 0);
  EXPECT_EQ(first("circle", 0x000000), -1);
}

// Check2 shows a number at all, Option9 which one.
TEST_F(Redraw_layers, TheNumberBesideAPointFollowsItsThreeSwitches) {
  observations::Record& record = session.registry.rows[1];
  record.touroku_no = "081115-001*3";
  record.keisoku_no = "3";
  const auto shown = [this](bool Check2, bool Option9) {
    session.view.Check2 = Check2;
    session.boxes.Option8 = !Option9;
    session.boxes.Option9 = Option9;
    surface.calls.clear();
    session::画面再表示(session, surface);
    const auto texts = surface.of("text");
    return texts.empty() ? std::string() : texts.front().text;
  };
  EXPECT_EQ(shown(false, false), "");
  EXPECT_EQ(shown(true, false), "001");
  EXPECT_EQ(shown(true, true), "3");
}
