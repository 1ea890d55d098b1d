#include "core/session/tools.h"

namespace session {

namespace {

constexpr Tool_hint section_first{true, "断面線: 始点をクリックしてください（右クリック・Escで中止）",
                                  "Section line: click its first end (right click or Esc ends)"};
constexpr Tool_hint section_second{true, "断面線: 終点をクリックしてください（右クリック・Escで中止）",
                                   "Section line: click its second end (right click or Esc ends)"};
constexpr Tool_hint zoom_first{true, "範囲拡大: 左上の角をクリックしてください（右クリック・Escで中止）",
                               "Zoom to a rectangle: click its upper left corner (right click or Esc ends)"};
constexpr Tool_hint zoom_second{true, "範囲拡大: 右下の角をクリックしてください（右クリック・Escで中止）",
                                "Zoom to a rectangle: click its lower right corner (right click or Esc ends)"};
constexpr Tool_hint line_first{true, "線(囲み): 最初の点をクリックしてください（Escで中止）",
                               "Line: click its first vertex (Esc ends)"};
constexpr Tool_hint line_more{true, "線(囲み): 次の点をクリック、右クリックで終点を固定、Enterで線終了（Escで中止）",
                              "Line: click the next vertex, right click fixes its end, Enter stores it (Esc ends)"};
constexpr Tool_hint position{true, "地点の位置をクリックしてください（右クリックでも移動できます）",
                             "Click the place of the observation (a right click moves it too)"};
constexpr Tool_hint pan{false, "ドラッグで移動、ホイールで拡大・縮小", "Drag to move, turn the wheel to zoom"};
constexpr Tool_hint no_sheet{false, "地図を選択してください", "Choose a map"};

}  // namespace

Redraw zoom(Session& session, bool in) {
  if (!session.sheet_shown()) return Redraw::none;
  if (in)
    maps::Command16(session.canvas, session.bars);
  else
    maps::Command17(session.canvas, session.bars);
  measure_bars(session);
  return Redraw::all;
}

Redraw zoom_wheel(Session& session, int steps, double x, double y) {
  if (!session.sheet_shown()) return Redraw::none;
  for (; steps > 0; --steps) maps::zoom_in_at(session.canvas, session.bars, x, y);
  for (; steps < 0; ++steps) maps::zoom_out_at(session.canvas, session.bars, x, y);
  measure_bars(session);
  return Redraw::all;
}

Redraw Command18(Session& session) {
  if (!session.sheet_shown()) return Redraw::none;
  maps::Command18(session.canvas, session.bars, session.view.Text1);
  measure_bars(session);
  return Redraw::all;
}

Redraw Command19(Session& session) {
  session.flags.zoom_box_step = 1;
  session.zoom_rubber.visible = false;
  return Redraw::overlay;
}

Redraw Command25(Session& session) {
  session.flags.section_step = 1;
  session.section_rubber.visible = false;
  return Redraw::overlay;
}

Redraw bars_moved(Session& session, int horizontal, int vertical) {
  // A person moves the bars: the view follows.
  session.flags.pan_flag = session.flags.pan_flag_v = 1;
  const bool shown = session.sheet_shown();
  const bool across = maps::scroll_changed(session.bars.horizontal, session.canvas.view_x, horizontal, true, shown);
  const bool down = maps::scroll_changed(session.bars.vertical, session.canvas.view_y, vertical, true, shown);
  return across || down ? Redraw::view : Redraw::none;
}

Redraw pan_one_to_one(Session& session, double dx, double dy) {
  if (!session.sheet_shown()) return Redraw::none;
  return maps::pan_by(session.canvas, session.bars, dx, dy) ? Redraw::view : Redraw::none;
}

void measure_bars(Session& session) {
  maps::scroll_range(session.canvas, session.bars, session.mosaic.columns, session.mosaic.rows);
}

Tool_hint tool_hint(const Session& session) {
  const core::Interaction& flags = session.flags;
  if (!session.sheet_shown()) return no_sheet;
  if (flags.section_step > 0) return flags.section_step == 1 ? section_first : section_second;
  if (flags.zoom_box_step > 0) return flags.zoom_box_step == 1 ? zoom_first : zoom_second;
  if (flags.line_mode > 0) return flags.line_count == 0 ? line_first : line_more;
  if (flags.point_mode == 1 && session.entry.open) return position;
  return pan;
}

}  // namespace session
