#include "core/session/mouse.h"

#include <algorithm>
#include <array>

#include "core/save_messages.h"
#include "core/session/entry.h"
#include "core/session/tools.h"
#include "core/settings_files.h"
#include "observations/vertices.h"
#include "platform/failures.h"

namespace session {

namespace {

using Position = maps::Map_position;

struct Context {
  Session& session;
  Ports& ports;
  const Map_tools& tools;
  const Press& press;
  const Position& position;
};

Mouse_result taken(Redraw redraw) {
  return {true, redraw, false};
}

// The line that stands stays as it is until the second end is there.
Mouse_result section_first(Context c) {
  c.session.section_first = {c.position.x, c.position.y};
  c.session.section_rubber = {true, c.press.x, c.press.y, c.press.x, c.press.y};
  c.session.flags.section_step = 2;
  return taken(Redraw::overlay);
}

// A line that can't be saved is still shown, until the program ends.
void section_save(Context c) {
  const std::string& folder = c.session.settings.program_path;
  const platform::Journal_operation operation(c.ports.journal, "断面線", "Section line");
  try {
    core::danmen_line_w(c.ports.files, folder, c.session.section);
  } catch (const platform::File_failure& failure) {
    core::file_failed(c.ports.prompts, {"断面線を保存できません: ", "The section line can't be saved: "},
                      platform::join_path(folder, "danmen.dat"), failure);
  }
}

Mouse_result section_second(Context c) {
  const drawing::Point first = c.session.section_first;
  c.session.section = {first.x, first.y, c.position.x, c.position.y};
  c.session.section_known = true;
  c.session.flags.section_step = 0;
  c.session.section_rubber.visible = false;
  section_save(c);
  return taken(Redraw::all);
}

Mouse_result section_stop(Context c) {
  c.session.flags.section_step = 0;
  c.session.section_rubber.visible = false;
  return taken(Redraw::overlay);
}

Mouse_result zoom_box_first(Context c) {
  c.session.zoom_rubber = {true, c.press.x, c.press.y, c.press.x, c.press.y};
  c.session.flags.zoom_box_step = 2;
  return taken(Redraw::overlay);
}

Mouse_result zoom_box_second(Context c) {
  const Rubber box = c.session.zoom_rubber;
  c.session.zoom_rubber.visible = false;
  c.session.flags.zoom_box_step = 0;
  const drawing::Rect twips{box.x0, box.y0, box.x1 - box.x0, box.y1 - box.y0};
  if (!maps::zoom_to_rectangle(c.session.canvas, c.session.bars, twips)) return taken(Redraw::overlay);
  measure_bars(c.session);
  return taken(Redraw::all);
}

Mouse_result zoom_box_stop(Context c) {
  c.session.zoom_rubber.visible = false;
  c.session.flags.zoom_box_step = 0;
  return taken(Redraw::overlay);
}

Mouse_result line_full(Context c) {
  c.ports.prompts.message(observations::line_is_full);
  return taken(Redraw::none);
}

Mouse_result line_vertex(Context c) {
  return c.tools.line_vertex(c.session, c.press, c.position);
}
Mouse_result line_free_end(Context c) {
  return c.tools.line_free_end(c.session, c.press, c.position);
}
Mouse_result model_corner(Context c) {
  return c.tools.model_corner(c.session, c.press, c.position);
}
Mouse_result fix_point(Context c) {
  return c.tools.fix_point(c.session, c.press, c.position);
}
Mouse_result point_menu(Context c) {
  return c.tools.point_menu(c.session, c.press, c.position);
}
Mouse_result open_link(Context c) {
  return c.tools.open_link(c.session, c.press, c.position);
}

struct Armed {
  const core::Interaction& flags;
  const Map_tools& tools;
  bool left;
};

struct Press_row {
  const char* name;
  bool (*applies)(const Armed&);
  Mouse_result (*act)(Context);
};

// clang-format off
constexpr std::array<Press_row, 13> press_table{{
    {"section first end",  [](const Armed& a) { return a.left && a.flags.section_step == 1; },                section_first},
    {"section second end", [](const Armed& a) { return a.left && a.flags.section_step == 2; },                section_second},
    {"section stop",       [](const Armed& a) { return !a.left && a.flags.section_step >= 1; },               section_stop},
    {"zoom first corner",  [](const Armed& a) { return a.left && a.flags.zoom_box_step == 1; },               zoom_box_first},
    {"zoom second corner", [](const Armed& a) { return a.left && a.flags.zoom_box_step == 2; },               zoom_box_second},
    {"zoom stop",          [](const Armed& a) { return !a.left && a.flags.zoom_box_step > 0; },               zoom_box_stop},
    {"line full",          [](const Armed& a) { return a.left && a.flags.line_mode > 0
                                                    && a.flags.line_count >= core::line_limit; },             line_full},
    {"line vertex",        [](const Armed& a) { return a.left && a.flags.line_mode > 0 && a.tools.line_vertex; }, line_vertex},
    {"line free end",      [](const Armed& a) { return !a.left && a.flags.line_mode > 0
                                                    && a.flags.line_count > 0 && a.tools.line_free_end; },    line_free_end},
    {"model corner",       [](const Armed& a) { return a.flags.model_box_step > 0 && a.tools.model_corner; }, model_corner},
    {"position",           [](const Armed& a) { return a.left && a.flags.point_mode == 1 && a.tools.fix_point; }, fix_point},
    {"point menu",         [](const Armed& a) { return !a.left && a.tools.point_menu; },                      point_menu},
    {"link",               [](const Armed& a) { return a.left && a.tools.open_link; },                        open_link},
}};
// clang-format on

const Press_row* row_for(const Armed& armed, const Press_row* from) {
  const Press_row* const end = press_table.data() + press_table.size();
  return std::find_if(from, end, [&](const Press_row& row) { return row.applies(armed); });
}

}  // namespace

Mouse_result mouse_press(Session& session, Ports& ports, const Map_tools& tools, const Press& press) {
  const Position position = maps::henkan_M(session.canvas, press.x, press.y);
  const Context context{session, ports, tools, press, position};
  const Press_row* const end = press_table.data() + press_table.size();
  session.drag = {};
  const Armed armed{session.flags, tools, press.button == Button::left};
  // The last rows look for a point under the mouse and may find none: then the press goes on to the next row.
  for (const Press_row* row = row_for(armed, press_table.data()); row != end; row = row_for(armed, row + 1)) {
    const Mouse_result result = row->act(context);
    if (result.taken) return result;
  }
  if (press.button == Button::left) session.drag = {true, press.x, press.y};
  return {};
}

std::string press_taker(const Session& session, const Map_tools& tools, Button button) {
  const Armed armed{session.flags, tools, button == Button::left};
  const Press_row* const row = row_for(armed, press_table.data());
  return row == press_table.data() + press_table.size() ? "" : row->name;
}

// More than one band may be open, since a tool that is armed later waits behind the first: each follows.
Mouse_result mouse_move(Session& session, double x, double y) {
  const core::Interaction& flags = session.flags;
  bool moved = false;
  const auto follow = [&](Rubber& band) {
    band.x1 = x;
    band.y1 = y;
    moved = true;
  };
  if (flags.section_step == 2) follow(session.section_rubber);
  if (flags.zoom_box_step == 2 && x > session.zoom_rubber.x0 && y > session.zoom_rubber.y0) follow(session.zoom_rubber);
  if (flags.line_mode > 0 && !session.line_end_fixed) {
    session.line_end = observations::stored_position(session.canvas, maps::henkan_M(session.canvas, x, y));
    moved = true;
  }
  if (flags.model_box_step > 0 && session.model_rubber.visible) follow(session.model_rubber);
  return moved ? taken(Redraw::overlay) : Mouse_result{};
}

Mouse_result mouse_release(Session& session, const Press& release) {
  const Drag drag = session.drag;
  session.drag = {};
  if (release.button != Button::left || !drag.prepared || session.flags.line_mode > 0) return {};
  if (!session.sheet_shown()) return {};
  session.flags.pan_flag = session.flags.pan_flag_v = 1;
  if (!maps::drag_pan(session.canvas, session.bars, release.x - drag.x, release.y - drag.y)) return {};
  return {true, Redraw::view, false};
}

Mouse_result end_tool(Session& session, Ports& ports, const Map_tools& tools) {
  if (session.flags.section_step == 0 && session.flags.zoom_box_step == 0)
    return {entry_tool_left(session), Redraw::overlay, false};
  return mouse_press(session, ports, tools, {Button::right, 0, 0});
}

}  // namespace session
