#include "core/session/redraw.h"

#include <algorithm>

#include "session/session_fixture.h"
#include "support/recorder.h"

namespace {

constexpr drawing::Colour red = 0xff0000, magenta = 0xff00ff, purple = 0x800080, grey = 0x606060;

// A free sheet of 36 seconds each way with one of everything on it.
struct Redraw_fixture : support::Session_fixture {
  void SetUp() override {
    Session_fixture::SetUp();
    const std::string data = project() + "/chisou_men";
    for (const std::string& made : {program() + "/mps", data, data + "/gps"}) files.make_folder(made);
    write(program() + "/mps/village.mps", {"pos=\"139.002/35.002;139.008/35.008\""});
    write(data + "/全国鉱山情報.csv", {"1,13900300,3500300,0,0,0,mine"});
    write(data + "/keiro_out.dat", {"walk.csv"});
    // Seconds of longitude and latitude, 18 of them to the middle of the sheet.
    write(data + "/gps/walk.csv", {"500414,126014,,,0", "500418,126018,,,1"});
    start_with_sheet();
    write(data + "/genchi.csv", {" 1 ,13900500,3500500,,,,,,081115-001*,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,"});
    session::registry_r(session, ports);
    ASSERT_EQ(session.registry.N, 1);
  }
  std::vector<support::Drawn> drawn() {
    support::Recorder surface;
    session::画面再表示(session, surface);
    return surface.calls;
  }
  // The place of the first call of that kind and pen; -1 when nothing of it is drawn.
  static int place_of(const std::vector<support::Drawn>& calls, const std::string& what, drawing::Colour colour) {
    for (std::size_t i = 0; i < calls.size(); ++i)
      if (calls[i].what == what && calls[i].pen.colour == colour) return static_cast<int>(i);
    return -1;
  }
  static int picture_in(const std::vector<support::Drawn>& calls) {
    for (std::size_t i = 0; i < calls.size(); ++i)
      if (calls[i].what == "picture") return static_cast<int>(i);
    return -1;
  }
};

using Redraw = Redraw_fixture;

TEST_F(Redraw, DrawsFromTheSheetUpToTheObservations) {
  const auto calls = drawn();
  ASSERT_FALSE(calls.empty());
  EXPECT_EQ(calls[0].what, "clear");
  const int picture = picture_in(calls), boundary = place_of(calls, "polyline", purple);
  const int base_data = place_of(calls, "line", grey), route = place_of(calls, "polyline", magenta);
  const int observation = place_of(calls, "circle", red);
  EXPECT_GT(picture, 0);
  EXPECT_GT(boundary, picture);
  EXPECT_GT(base_data, boundary);
  EXPECT_GT(route, base_data);
  EXPECT_GT(observation, route);
}

TEST_F(Redraw, LeavesOutWhatTheViewSwitchesOff) {
  session.view.Check5 = session.view.Check8 = false;
  const auto calls = drawn();
  EXPECT_GT(picture_in(calls), 0);
  EXPECT_EQ(place_of(calls, "line", grey), -1);
  EXPECT_EQ(place_of(calls, "polyline", magenta), -1);
  EXPECT_EQ(place_of(calls, "circle", red), -1);
}

TEST_F(Redraw, ShowsTheNumberThatTheSettingsChoose) {
  write(project() + "/chisou_men/genchi.csv",
        {" 1 ,13900500,3500500,,,,,,081115-007*12,,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,"});
  session::registry_r(session, ports);
  const auto texts = [&] {
    std::vector<std::string> found;
    for (const support::Drawn& call : drawn())
      if (call.what == "text") found.push_back(call.text);
    return found;
  };
  session.view.Check2 = true;
  const std::vector<std::string> registered = texts();
  EXPECT_EQ(std::count(registered.begin(), registered.end(), "007"), 1);
  session.boxes.Option8 = false;
  session.boxes.Option9 = true;
  const std::vector<std::string> measured = texts();
  EXPECT_EQ(std::count(measured.begin(), measured.end(), "12"), 1);
  EXPECT_EQ(std::count(measured.begin(), measured.end(), "007"), 0);
}

TEST_F(Redraw, WithoutASheetTheCanvasIsOnlyCleared) {
  session.current_sheet.clear();
  session.section = {0, 0, 100, 100};
  session.section_known = true;
  const auto calls = drawn();
  ASSERT_EQ(calls.size(), 1U);
  EXPECT_EQ(calls[0].what, "clear");
  EXPECT_FALSE(session.section_controls.visible);
}

// The sheet is 1000 units high from the margin of 100; its first corner is the upper left one.
TEST_F(Redraw, BringsTheSectionLineToWhereItsEndsStand) {
  session.section = {0, session.canvas.map_y1, session.canvas.map_x1, 0};
  session.section_known = true;
  drawn();
  ASSERT_TRUE(session.section_controls.visible);
  EXPECT_NEAR(session.section_controls.x0, 100 * 7.5, 0.01);
  EXPECT_NEAR(session.section_controls.y0, 100 * 7.5, 0.01);
  EXPECT_NEAR(session.section_controls.y1, 1100 * 7.5, 0.01);
  session.canvas.view_x = -300;
  drawn();
  EXPECT_NEAR(session.section_controls.x0, 100 * 7.5 - 300, 0.01);
}

// Another program has written the point registration file; the pictures stay as they are.
TEST_F(Redraw, ReGamenReadsThePointsOfTheRowInTheListWithoutThePictures) {
  const std::string point = " 1 ,13900500,3500500,,,,,,A,,●, 5 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,";
  write(project() + "/chisou_men/genchi.csv", {point, point});
  files.remove(program() + "/map/free.bmp");
  session.canvas.canvas_scale = 3;
  EXPECT_EQ(session::re_gamen(session, ports), session::Redraw::all);
  EXPECT_EQ(session.registry.N, 2);
  EXPECT_EQ(session.current_sheet, "free");
  EXPECT_EQ(session.canvas.canvas_scale, 3);
  EXPECT_FALSE(session.mosaic.picture[0].empty());
}

TEST_F(Redraw, ReGamenWithoutARowLeavesTheSheetThatIsDrawn) {
  session.sheets.selected = -1;
  session::re_gamen(session, ports);
  EXPECT_EQ(session.current_sheet, "free");
}

}  // namespace
