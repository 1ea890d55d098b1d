#include "core/session/mouse.h"

#include "core/session/redraw.h"
#include "core/session/tools.h"
#include "session/session_fixture.h"
#include "support/fault_files.h"

using session::Button;
using session::Redraw;

namespace {

// A canvas whose numbers are easy: one unit to the metre, 1000 metres high, no offset. The map place (X, Y) lies at
// canvas (X + 100, 1100 - Y), that is at twips 7.5 times that.
struct Mouse : support::Session_fixture {
  void SetUp() override {
    Session_fixture::SetUp();
    start_with_sheet();
    session.canvas.canvas_scale = 1;
    session.canvas.map_x0 = session.canvas.map_y0 = 0;
    session.canvas.map_x1 = session.canvas.map_y1 = 1000;
    session.bars.horizontal = session.bars.vertical = {0, 0, -10000, 10000};
  }
  static double twips_x(double map_x) { return (map_x + 100) * 7.5; }
  static double twips_y(double map_y) { return (1100 - map_y) * 7.5; }

  // A tool of other work: takes the press and remembers its name.
  auto tool(const std::string& name) {
    return [this, name](session::Session&, const session::Press&, const maps::Map_position&) {
      took = name;
      return session::Mouse_result{true, Redraw::none, false};
    };
  }
  std::string took;
};

}  // namespace

TEST_F(Mouse, TwoPressesDrawASectionLineAndWriteIt) {
  session::Command25(session);
  EXPECT_EQ(session.flags.section_step, 1);
  EXPECT_TRUE(press(Button::left, twips_x(50), twips_y(900)).taken);
  EXPECT_EQ(session.flags.section_step, 2);
  EXPECT_EQ(press(Button::left, twips_x(250.5), twips_y(100)).redraw, Redraw::all);
  EXPECT_EQ(session.flags.section_step, 0);
  EXPECT_TRUE(
      support::same_bytes(files.read_bytes(program() + "/danmen.dat"), "A-A',2\r\n 50 , 900 \r\n 250.5 , 100 \r\n"));
}

TEST_F(Mouse, ARightClickAfterTheFirstEndLeavesDanmenDatUnchanged) {
  files.write_whole(program() + "/danmen.dat", "A-A',2\r\n 1 , 2 \r\n 3 , 4 \r\n");
  session.section = {1, 2, 3, 4};
  session.section_known = true;
  session::Command25(session);
  press(Button::left, twips_x(50), twips_y(900));
  EXPECT_TRUE(press(Button::right, twips_x(60), twips_y(800)).taken);
  EXPECT_EQ(session.flags.section_step, 0);
  EXPECT_EQ(files.read_bytes(program() + "/danmen.dat"), "A-A',2\r\n 1 , 2 \r\n 3 , 4 \r\n");
  EXPECT_EQ(session.section.x1, 1);
}

TEST_F(Mouse, ASectionLineThatCannotBeSavedIsToldAndShown) {
  support::Fault_files refusing(files);
  refusing.read_only = true;
  session::Ports read_only{refusing,    pictures,      prompts,      processes,
                           other.clock, other.journal, other.sheets, other.sounds};
  session::Command25(session);
  session::mouse_press(session, read_only, tools, {Button::left, twips_x(50), twips_y(900)});
  const session::Mouse_result result =
      session::mouse_press(session, read_only, tools, {Button::left, twips_x(250), twips_y(100)});
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"The section line can't be saved: " + program() + "\\danmen.dat"});
  EXPECT_EQ(result.redraw, Redraw::all);
  EXPECT_EQ(session.flags.section_step, 0);
  EXPECT_EQ(session.section.x2, 250);
}

TEST_F(Mouse, TheSectionLabelsFollowTheMap) {
  session.section = {0, 1000, 100, 900};
  session.section_known = true;
  session::place_section_controls(session);
  EXPECT_TRUE(session.section_controls.visible);
  EXPECT_DOUBLE_EQ(session.section_controls.x0, 750);
  EXPECT_DOUBLE_EQ(session.section_controls.y0, 750);
  EXPECT_DOUBLE_EQ(session.section_controls.x1, 1500);
  EXPECT_DOUBLE_EQ(session.section_controls.y1, 1500);
}

// The rectangle from (1500, 2250), 3000 twips wide on a canvas 12000 wide: four times the scale, and the corner, map
// (100, 900), comes to the top-left: canvas (0, 0).
TEST_F(Mouse, ZoomByRectangleBringsItsCornerToTheTopLeft) {
  session.canvas.label_scale = 8;
  session::Command19(session);
  press(Button::left, 1500, 1500);
  EXPECT_EQ(session.flags.zoom_box_step, 2);
  session::mouse_move(session, 4500, 3000);
  EXPECT_EQ(press(Button::left, 4500, 3000).redraw, Redraw::all);
  EXPECT_EQ(session.flags.zoom_box_step, 0);
  EXPECT_FALSE(session.zoom_rubber.visible);
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, 4);
  EXPECT_DOUBLE_EQ(session.canvas.label_scale, 32);
  const maps::Canvas_point corner = maps::henkan_px(session.canvas, 100, 900);
  EXPECT_NEAR(corner.x, 0, 1e-3);
  EXPECT_NEAR(corner.y, 0, 1e-3);
}

TEST_F(Mouse, AZoomCornerInTheMarginIsRaisedTo751Twips) {
  session::Command19(session);
  press(Button::left, 10, 20);
  session::mouse_move(session, 6010, 3000);
  press(Button::left, 6010, 3000);
  // 751 twips are 100.1333 units: map (0.1333, 999.8667).
  EXPECT_DOUBLE_EQ(session.canvas.canvas_scale, 2);
  const maps::Canvas_point corner = maps::henkan_px(session.canvas, 751 / 7.5 - 100, 1100 - 751 / 7.5);
  EXPECT_NEAR(corner.x, 0, 1e-3);
  EXPECT_NEAR(corner.y, 0, 1e-3);
}

TEST_F(Mouse, AZoomRectangleOfNoWidthDoesNothing) {
  session::Command19(session);
  press(Button::left, 1500, 1500);
  press(Button::left, 1500, 1500);
  EXPECT_EQ(session.canvas.canvas_scale, 1);
  EXPECT_EQ(session.flags.zoom_box_step, 0);
}

TEST_F(Mouse, TheZoomRectangleFollowsOnlyToTheRightAndDown) {
  session::Command19(session);
  press(Button::left, 3000, 3000);
  session::mouse_move(session, 4000, 3500);
  session::mouse_move(session, 2000, 5000);
  session::mouse_move(session, 5000, 2000);
  EXPECT_EQ(session.zoom_rubber.x1, 4000);
  EXPECT_EQ(session.zoom_rubber.y1, 3500);
}

TEST_F(Mouse, ARightClickEndsTheZoomRectangle) {
  session::Command19(session);
  press(Button::left, 1500, 1500);
  EXPECT_TRUE(press(Button::right, 0, 0).taken);
  EXPECT_EQ(session.flags.zoom_box_step, 0);
  EXPECT_FALSE(session.zoom_rubber.visible);
}

TEST_F(Mouse, EscEndsTheArmedToolAsARightClickDoes) {
  session::Command25(session);
  session::end_tool(session, ports, tools);
  EXPECT_EQ(session.flags.section_step, 0);
  session::Command19(session);
  session::end_tool(session, ports, tools);
  EXPECT_EQ(session.flags.zoom_box_step, 0);
}

TEST_F(Mouse, ADragOfExactly100TwipsIsNoPan) {
  press(Button::left, 3000, 3000);
  EXPECT_FALSE(session::mouse_release(session, {Button::left, 3100, 2900}).taken);
  EXPECT_EQ(session.canvas.view_x, 0);
}

TEST_F(Mouse, ADragOf101TwipsInOneDirectionIsAPan) {
  press(Button::left, 3000, 3000);
  EXPECT_TRUE(session::mouse_release(session, {Button::left, 3000, 2899}).taken);
  EXPECT_EQ(session.bars.vertical.value, 20);
  EXPECT_EQ(session.bars.horizontal.value, 0);
}

TEST_F(Mouse, AReleaseWhileALineIsOpenIsNoPan) {
  press(Button::left, 3000, 3000);
  session.flags.line_mode = 1;
  EXPECT_FALSE(session::mouse_release(session, {Button::left, 4000, 3000}).taken);
  EXPECT_EQ(session.canvas.view_x, 0);
}

TEST_F(Mouse, TheSectionBandFollowsFromTheFirstEndOn) {
  session::Command25(session);
  EXPECT_FALSE(session::mouse_move(session, 2000, 2000).taken);
  EXPECT_FALSE(session.section_rubber.visible);
  press(Button::left, 3000, 3000);
  EXPECT_EQ(session::mouse_move(session, 2000, 4000).redraw, Redraw::overlay);
  const session::Rubber& band = session.section_rubber;
  EXPECT_TRUE(band.visible);
  EXPECT_EQ(band.x0, 3000);
  EXPECT_EQ(band.y0, 3000);
  EXPECT_EQ(band.x1, 2000);
  EXPECT_EQ(band.y1, 4000);
}

TEST_F(Mouse, TheModelRectangleFollowsInAnyDirection) {
  session.flags.model_box_step = 2;
  session.model_rubber = {true, 3000, 3000, 3000, 3000};
  EXPECT_TRUE(session::mouse_move(session, 1000, 2000).taken);
  EXPECT_EQ(session.model_rubber.x1, 1000);
  EXPECT_EQ(session.model_rubber.y1, 2000);
}

// The section line is begun while the rectangle of the zoom still waits for its second corner.
TEST_F(Mouse, TheBandsOfTwoToolsBothFollow) {
  session::Command19(session);
  press(Button::left, 1500, 1500);
  session::Command25(session);
  press(Button::left, 3000, 3000);
  session::mouse_move(session, 4500, 3300);
  EXPECT_EQ(session.section_rubber.x1, 4500);
  EXPECT_EQ(session.section_rubber.y1, 3300);
  EXPECT_EQ(session.zoom_rubber.x1, 4500);
  EXPECT_EQ(session.zoom_rubber.y1, 3300);
}

TEST_F(Mouse, AMoveWithoutAToolMovesNothing) {
  EXPECT_FALSE(session::mouse_move(session, 4500, 3300).taken);
}

// 505 twips to the right: the bar moves by a fifth against the drag, the picture by as much with the hand.
TEST_F(Mouse, ALongerDragMovesThePictureByAFifthWithTheHand) {
  press(Button::left, 3000, 3000);
  const session::Mouse_result result = session::mouse_release(session, {Button::left, 3505, 2000});
  EXPECT_EQ(result.redraw, Redraw::view);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, 101);
  EXPECT_DOUBLE_EQ(session.canvas.view_y, -200);
  EXPECT_EQ(session.bars.horizontal.value, -101);
  EXPECT_EQ(session.bars.vertical.value, 200);
  EXPECT_EQ(session.flags.pan_flag, 1);
}

TEST_F(Mouse, ThePanIsBoundedByTheBars) {
  session.bars.horizontal.minimum = -50;
  press(Button::left, 3000, 3000);
  session::mouse_release(session, {Button::left, 8000, 3000});
  EXPECT_EQ(session.bars.horizontal.value, -50);
  EXPECT_DOUBLE_EQ(session.canvas.view_x, 50);
}

TEST_F(Mouse, APressThatAToolTookPreparesNoDrag) {
  session::Command25(session);
  press(Button::left, 3000, 3000);
  EXPECT_FALSE(session::mouse_release(session, {Button::left, 9000, 9000}).taken);
  EXPECT_EQ(session.canvas.view_x, 0);
}

TEST_F(Mouse, AReleaseOfTheRightButtonIsNoPan) {
  press(Button::left, 3000, 3000);
  EXPECT_FALSE(session::mouse_release(session, {Button::right, 9000, 9000}).taken);
}

TEST_F(Mouse, The149thVertexShowsTheMessageAndTheLineStaysOpenWith148) {
  tools.line_vertex = [](session::Session& s, const session::Press&, const maps::Map_position&) {
    ++s.flags.line_count;
    return session::Mouse_result{true, Redraw::overlay, false};
  };
  session.flags.line_mode = 1;
  for (int i = 0; i < 149; ++i) EXPECT_TRUE(press(Button::left, 3000 + i, 3000).taken);
  EXPECT_EQ(session.flags.line_count, 148);
  EXPECT_EQ(session.flags.line_mode, 1);
  EXPECT_EQ(prompts.shown, std::vector<std::string>{"Number of Point over!"});
  prompts.use_language("Japanese");
  press(Button::left, 3000, 3000);
  EXPECT_EQ(prompts.shown.back(), "これ以上囲み線を入力できません。");
}

TEST_F(Mouse, TheFirstArmedToolOfTheTableTakesThePress) {
  tools.line_vertex = tool("line");
  tools.model_corner = tool("model");
  tools.fix_point = tool("point");
  tools.open_link = tool("link");
  core::Interaction& flags = session.flags;
  flags.section_step = flags.zoom_box_step = 1;
  flags.line_mode = flags.model_box_step = flags.point_mode = 1;
  EXPECT_EQ(session::press_taker(session, tools, Button::left), "section first end");
  flags.section_step = 0;
  EXPECT_EQ(session::press_taker(session, tools, Button::left), "zoom first corner");
  flags.zoom_box_step = 0;
  press(Button::left, 3000, 3000);
  EXPECT_EQ(took, "line");
  flags.line_mode = 0;
  press(Button::left, 3000, 3000);
  EXPECT_EQ(took, "model");
  flags.model_box_step = 0;
  press(Button::left, 3000, 3000);
  EXPECT_EQ(took, "point");
  flags.point_mode = 0;
  press(Button::left, 3000, 3000);
  EXPECT_EQ(took, "link");
}

TEST_F(Mouse, TheRightButtonHasItsOwnOrder) {
  tools.line_free_end = tool("free end");
  tools.model_corner = tool("model");
  tools.point_menu = tool("menu");
  core::Interaction& flags = session.flags;
  flags.section_step = 2;
  flags.zoom_box_step = 2;
  flags.line_mode = flags.model_box_step = 1;
  EXPECT_EQ(session::press_taker(session, tools, Button::right), "section stop");
  flags.section_step = 0;
  EXPECT_EQ(session::press_taker(session, tools, Button::right), "zoom stop");
  flags.zoom_box_step = 0;
  press(Button::right, 3000, 3000);
  EXPECT_EQ(took, "model") << "a line without vertices leaves the right button";
  flags.line_count = 1;
  press(Button::right, 3000, 3000);
  EXPECT_EQ(took, "free end");
  flags.line_mode = flags.model_box_step = 0;
  press(Button::right, 3000, 3000);
  EXPECT_EQ(took, "menu");
}

TEST_F(Mouse, EachRowOfTheTableTakesItsButtonOnly) {
  struct Row {
    int core::Interaction::*flag;
    int value;
    const char *left, *right;
  };
  using Flags = core::Interaction;
  constexpr Row rows[] = {
      {&Flags::section_step, 1, "section first end", "section stop"},
      {&Flags::section_step, 2, "section second end", "section stop"},
      {&Flags::zoom_box_step, 1, "zoom first corner", "zoom stop"},
      {&Flags::zoom_box_step, 2, "zoom second corner", "zoom stop"},
      {&Flags::line_mode, 1, "line vertex", "point menu"},
      {&Flags::model_box_step, 1, "model corner", "model corner"},
      {&Flags::model_box_step, 2, "model corner", "model corner"},
      {&Flags::point_mode, 1, "position", "point menu"},
      {&Flags::data_dirty, 1, "link", "point menu"},
      {&Flags::gps_running, 1, "link", "point menu"},
  };
  for (auto* const member : {&tools.line_vertex, &tools.line_free_end, &tools.model_corner, &tools.fix_point,
                             &tools.point_menu, &tools.open_link})
    *member = tool("any");
  for (const Row& row : rows) {
    session.flags = {};
    session.flags.*row.flag = row.value;
    EXPECT_EQ(session::press_taker(session, tools, Button::left), row.left);
    EXPECT_EQ(session::press_taker(session, tools, Button::right), row.right) << row.left;
  }
  session.flags = {.line_mode = 1, .line_count = 147};
  EXPECT_EQ(session::press_taker(session, tools, Button::left), "line vertex");
  EXPECT_EQ(session::press_taker(session, tools, Button::right), "line free end");
  session.flags.line_count = 148;
  EXPECT_EQ(session::press_taker(session, tools, Button::left), "line full");
}

TEST_F(Mouse, AToolThatIsNotThereLeavesThePressToTheNextRow) {
  session.flags = {.line_mode = 1, .line_count = 1, .model_box_step = 1, .point_mode = 1};
  EXPECT_EQ(session::press_taker(session, {}, Button::left), "");
  EXPECT_EQ(session::press_taker(session, {}, Button::right), "");
}

TEST_F(Mouse, APressThatFindsNoLinkPreparesADrag) {
  tools.open_link = [](session::Session&, const session::Press&, const maps::Map_position&) {
    return session::Mouse_result{};
  };
  EXPECT_FALSE(press(Button::left, 3000, 3000).taken);
  EXPECT_TRUE(session::mouse_release(session, {Button::left, 3500, 3000}).taken);
}
