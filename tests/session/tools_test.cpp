#include "core/session/tools.h"

#include "core/session/redraw.h"
#include "session/session_fixture.h"

using session::Redraw;

namespace {

struct Tools : support::Session_fixture {
  // One unit to the metre; the view has been moved.
  void open_sheet() {
    start_with_sheet();
    session.canvas.canvas_scale = 1;
    session.canvas.label_scale = 10;
    session.canvas.view_x = -600;
    session.canvas.view_y = -1200;
  }
  std::string hint() const { return session::tool_hint(session).english; }
};

}  // namespace

TEST_F(Tools, NothingMovesWithoutASheet) {
  session.canvas.canvas_scale = 1;
  EXPECT_EQ(session::zoom(session, true), Redraw::none);
  EXPECT_EQ(session::zoom_wheel(session, 3, 100, 100), Redraw::none);
  EXPECT_EQ(session::Command18(session), Redraw::none);
  EXPECT_EQ(session::pan_one_to_one(session, 50, 50), Redraw::none);
  EXPECT_EQ(session::bars_moved(session, 40, 40), Redraw::none);
  EXPECT_EQ(session.canvas.canvas_scale, 1);
  EXPECT_EQ(session.canvas.view_x, 0);
}

TEST_F(Tools, TheButtonsScaleTheOffsetsAboutTheTopLeft) {
  open_sheet();
  EXPECT_EQ(session::zoom(session, true), Redraw::all);
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, 1.2);
  EXPECT_DOUBLE_EQ(session.canvas.label_scale, 12);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, -720);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -1440);
  EXPECT_EQ(session.bars.horizontal.value, 144);
  EXPECT_EQ(session.bars.vertical.value, 288);
  session::zoom(session, false);
  EXPECT_NEAR(session.canvas.canvas_scale, 1, 1e-12);
  EXPECT_EQ(session.bars.horizontal.value, 120);
}

TEST_F(Tools, ManyNotchesOfTheWheelAreAsManySteps) {
  open_sheet();
  const maps::Map_position before = maps::henkan_M(session.canvas, 3000, 2400);
  EXPECT_EQ(session::zoom_wheel(session, 3, 3000, 2400), Redraw::all);
  EXPECT_NEAR(session.canvas.canvas_scale, 1.728, 1e-12);
  const maps::Map_position after = maps::henkan_M(session.canvas, 3000, 2400);
  EXPECT_NEAR(after.x, before.x, 1e-9);
  EXPECT_NEAR(after.y, before.y, 1e-9);
  session::zoom_wheel(session, -3, 3000, 2400);
  EXPECT_NEAR(session.canvas.canvas_scale, 1, 1e-12);
}

TEST_F(Tools, TheResetTakesTheTextSizeOfItsBox) {
  open_sheet();
  session.view.Text1 = 13;
  session.canvas.zoom_count = 5;
  EXPECT_EQ(session::Command18(session), Redraw::all);
  EXPECT_EQ(session.canvas.canvas_scale, session.canvas.canvas_scale0);
  EXPECT_EQ(session.canvas.label_scale, 13);
  EXPECT_EQ(session.canvas.zoom_count, 1);
  EXPECT_EQ(session.canvas.view_x, 0);
  EXPECT_EQ(session.canvas.view_y, 0);
}

TEST_F(Tools, ABarMovesThePictureAgainstItselfTwipForTwip) {
  open_sheet();
  EXPECT_EQ(session::bars_moved(session, 35, 0), Redraw::view);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, -635);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -1200);
  EXPECT_EQ(session::bars_moved(session, 20, 7), Redraw::view);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, -620);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -1207);
  EXPECT_EQ(session::bars_moved(session, 20, 7), Redraw::none);
  EXPECT_EQ(session.flags.pan_flag, 1);
}

TEST_F(Tools, EachStepOfAToolSaysWhatThePressWillDo) {
  EXPECT_EQ(hint(), "Choose a map");
  EXPECT_STREQ(session::tool_hint(session).japanese, "地図を選択してください");
  open_sheet();
  EXPECT_EQ(hint(), "Drag to move, turn the wheel to zoom");
  EXPECT_FALSE(session::tool_hint(session).armed);
  session::Command19(session);
  EXPECT_TRUE(hint().starts_with("Zoom to a rectangle: click its upper left corner"));
  session.flags.zoom_box_step = 2;
  EXPECT_TRUE(hint().starts_with("Zoom to a rectangle: click its lower right corner"));
  session::Command25(session);  // stands above the zoom in the table of presses
  EXPECT_TRUE(hint().starts_with("Section line: click its first end"));
  session.flags.section_step = 2;
  EXPECT_TRUE(hint().starts_with("Section line: click its second end"));
  EXPECT_TRUE(session::tool_hint(session).armed);
  EXPECT_STREQ(session::tool_hint(session).japanese, "断面線: 終点をクリックしてください（右クリック・Escで中止）");
}
