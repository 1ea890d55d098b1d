#include "core/session/redraw.h"

#include "session/session_fixture.h"
#include "support/recorder.h"

using session::Redraw;

namespace {

// A filled circle without a number or a strike.
const std::string point_in_the_middle = " 0 ,13900500,3500500,,,,,,A,,●, 5 , 255 , 0 , 0 , 0 , 0 , 0 ,0,,,,, 0 ,";

// The free sheet of the fixture: 36 seconds each way from 35 degrees north and 139 east, 1000 units high.
struct Redraw_order : support::Session_fixture {
  support::Recorder surface;

  void SetUp() override {
    Session_fixture::SetUp();
    write_settings();
    write_free_sheet("free");
  }
  void start_on_sheet() {
    ASSERT_EQ(start(), session::Activated::list_filled);
    session.canvas.width = session.canvas.height = 12000;
    session::chizu_out(session, ports, 0);
  }
  // What was drawn, in order, runs of one kind told once.
  std::vector<std::string> kinds() const {
    std::vector<std::string> told;
    for (const support::Drawn& call : surface.calls)
      if (told.empty() || told.back() != call.what) told.push_back(call.what);
    return told;
  }
};

}  // namespace

TEST_F(Redraw_order, PicturesAndGridLieUnderBoundariesUnderObservations) {
  files.make_folder(program() + "/mps");
  write(program() + "/mps/a.mps", {"pos=\"139.001/35.001;139.009/35.009\""});
  write(project() + "/chisou_men/genchi.csv", {point_in_the_middle});
  start_on_sheet();
  ASSERT_EQ(session.registry.N, 1);
  session::画面再表示(session, surface);
  EXPECT_EQ(kinds(), (std::vector<std::string>{"clear", "picture", "line", "polyline", "circle"}));
  EXPECT_EQ(surface.of("clear").size(), 1U);
  EXPECT_EQ(surface.of("picture").size(), 1U);
  EXPECT_EQ(surface.of("polyline").size(), 1U);
}

TEST_F(Redraw_order, WithoutASheetTheCanvasIsOnlyCleared) {
  ASSERT_EQ(start(), session::Activated::list_filled);
  session.section = {0, 0, 100, 100};
  session.section_known = true;
  session::画面再表示(session, surface);
  EXPECT_EQ(kinds(), std::vector<std::string>{"clear"});
  EXPECT_FALSE(session.section_controls.visible);
}

TEST_F(Redraw_order, BringsTheSectionLineToWhereItsEndsStand) {
  start_on_sheet();
  session.section = {0, session.canvas.map_y1, session.canvas.map_x1, 0};  // from the sheet's first corner to its last
  session.section_known = true;
  session::画面再表示(session, surface);
  ASSERT_TRUE(session.section_controls.visible);
  EXPECT_NEAR(session.section_controls.x0, 100 * 7.5, 0.01);  // the margin
  EXPECT_NEAR(session.section_controls.y0, 100 * 7.5, 0.01);
  EXPECT_NEAR(session.section_controls.y1, 1100 * 7.5, 0.01);
  session.canvas.view_x = -300;
  session::画面再表示(session, surface);
  EXPECT_NEAR(session.section_controls.x0, 100 * 7.5 - 300, 0.01);
}

TEST_F(Redraw_order, TheGridComesWithItsTick) {
  start_on_sheet();
  session.view.Check3 = false;
  session::画面再表示(session, surface);
  EXPECT_TRUE(surface.of("line").empty());
  session.view.Check3 = true;
  session::画面再表示(session, surface);
  EXPECT_EQ(surface.of("line").size(), 22U);
}

// Another program has written the point registration file; the pictures stay as they are.
TEST_F(Redraw_order, ReGamenReadsThePointsOfTheRowInTheListWithoutThePictures) {
  start_on_sheet();
  EXPECT_EQ(session.registry.N, 0);
  write(project() + "/chisou_men/genchi.csv", {point_in_the_middle, point_in_the_middle});
  files.remove(program() + "/map/free.bmp");
  session.canvas.canvas_scale = 3;
  EXPECT_EQ(session::re_gamen(session, ports), Redraw::all);
  EXPECT_EQ(session.registry.N, 2);
  EXPECT_EQ(session.current_sheet, "free");
  EXPECT_EQ(session.canvas.canvas_scale, 3);
  EXPECT_FALSE(session.mosaic.picture[0].empty());
}

TEST_F(Redraw_order, ReGamenWithoutARowLeavesTheSheetThatIsDrawn) {
  start_on_sheet();
  session.sheets.selected = -1;
  session::re_gamen(session, ports);
  EXPECT_EQ(session.current_sheet, "free");
}
