#include "core/session/entry.h"

#include <algorithm>
#include <utility>

#include "core/session/sheet.h"
#include "core/session/start_up.h"
#include "core/session/tools.h"
#include "observations/input_sheet.h"
#include "observations/link.h"
#include "observations/marks.h"
#include "observations/registry_save.h"
#include "platform/failures.h"
#include "platform/text_case.h"

namespace session {

namespace {

using observations::Edit_context;
using platform::Journal_operation;

constexpr platform::Message end_line_first{"線(囲み)を入力中です。「線終了」で終えてから保存して下さい。",
                                           "A line is being drawn. Please end it before you save."};
constexpr platform::Message draw_first{"線がまだ描かれていません。「線(囲み)開始」で描くか、Markを選び直して下さい。",
                                       "No line is drawn yet. Please draw it, or choose another mark."};
constexpr platform::Message table_full{"地点登録ファイルは15000点までです。これ以上登録できません。",
                                       "A registration file holds 15000 points, and this one is full."};
constexpr platform::Message file_too_long{"1000行を超える地点登録ファイルからは削除できません。",
                                          "Nothing can be deleted from a registration file of more than 1000 lines."};
constexpr double edge_share =
    0.05;  // a record nearer to the window's edge than this share of it counts as out of sight

Edit_context context_of(Session& session, Ports& ports) {
  return {session.settings, session.canvas, ports.files, ports.clock, ports.prompts};
}

observations::Numbering scheme_of(const Session& session) {
  if (session.boxes.Option4[1]) return observations::by_mesh;
  return session.boxes.Option4[2] ? observations::by_hand : observations::by_date;
}

// The surfaces that a record can be copied to: the registration files of the project, then the strata.
std::vector<std::string> surfaces(const Session& session) {
  std::vector<std::string> names;
  const auto add = [&](const std::string& name) {
    const auto same = [&](const std::string& known) { return platform::same_name(known, name); };
    if (!name.empty() && std::none_of(names.begin(), names.end(), same)) names.push_back(name);
  };
  for (const core::File_choice& file : session.boxes.File11) add(file.name.substr(0, file.name.rfind('.')));
  for (const std::string& name : session.stratum_names) add(name);
  return names;
}

void panel_opened(Session& session) {
  entry_tool_left(session);
  session.flags.point_mode = 1;
  session.flags.data_dirty = 0;
  session.highlighted = session.entry.touroku;
}

Mouse_result taken(Redraw redraw, bool menu = false) {
  return {true, redraw, menu};
}

bool is_drawn_mark(const std::string& mark) {
  return observations::is_area(mark) || observations::is_line(mark);
}

bool has_vertices(const Session& session) {
  const int touroku = session.entry.touroku;
  return touroku >= 1 && touroku <= session.registry.N && !session.registry.rows[touroku].vertices.empty();
}

// The line goes to the record; what did not fit in is told in the status bar.
void keep_line(Session& session) {
  const observations::Line_stored stored =
      observations::line_store(session.flags, session.line, session.registry, session.entry.touroku);
  session.line_end_fixed = false;
  if (!stored.stored) return;
  session.flags.data_dirty = 1;
  if (stored.shortened) session.notice = {observations::first_100_kept.japanese, observations::first_100_kept.english};
}

Mouse_result line_vertex(Session& session, Ports& ports, const maps::Map_position& position) {
  const geodesy::Point at = observations::stored_position(session.canvas, position);
  const bool area = observations::is_area(session.entry.boxes.Combo1);
  session.line_end_fixed = false;
  session.line_end = at;
  const observations::Vertex_taken vertex =
      observations::line_vertex(session.flags, session.line, at, area, ports.prompts);
  entry_edited(session);
  if (vertex != observations::Vertex_taken::closed) return taken(Redraw::overlay);
  keep_line(session);
  return taken(Redraw::all);
}

Mouse_result line_free_end(Session& session, const maps::Map_position& position) {
  session.line_end = observations::stored_position(session.canvas, position);
  session.line_end_fixed = true;
  return taken(Redraw::overlay);
}

Mouse_result fix_point(Session& session, Ports& ports, const Press& press, const maps::Map_position& position) {
  if (!session.entry.open) return {};
  observations::move_entry(context_of(session, ports), session.entry, {position, press.x});
  session.flags.point_mode = 0;
  session.flags.data_dirty = 1;
  return taken(Redraw::overlay);
}

Mouse_result point_menu(Session& session, Ports& ports, const Press& press, const maps::Map_position& position) {
  session.entry_click = {position, press.x};
  switch (observations::right_press(context_of(session, ports), session.entry, session.registry, session.entry_click)) {
    case observations::Right_press::moved:
      session.flags.data_dirty = 1;
      return taken(Redraw::overlay);
    case observations::Right_press::menu:
      session.highlighted = session.entry.touroku;
      return taken(Redraw::overlay, true);
    default:
      return taken(Redraw::none);
  }
}

Mouse_result open_link(Session& session, Ports& ports, const Press& press, const maps::Map_position& position) {
  if (!session.view.Check5 || session.entry.open) return {};
  const observations::Link_context context{
      session.settings, session.boring_out_folder, session.registry, session.canvas, ports.files, ports.processes};
  const observations::Link_opened link = observations::open_link(context, position, press.x, press.y);
  if (link == observations::Link_opened::none) return {};
  session.highlighted = observations::linked_record_at(session.registry, session.canvas, position, press.x, press.y);
  const std::string& name = session.registry.rows[session.highlighted].gazou;
  if (link == observations::Link_opened::failed)
    session.notice = {"開けません: " + name, "It can't be opened: " + name};
  return taken(Redraw::overlay);
}

drawing::Point twips_of(Session& session, geodesy::Point position) {
  const maps::Canvas_point at = maps::henkan_px(session.canvas, position.x, position.y);
  return {at.x * maps::twips_per_unit, at.y * maps::twips_per_unit};
}

bool is_in_sight(const maps::Canvas& canvas, drawing::Point at) {
  const double across = canvas.width * edge_share, down = canvas.height * edge_share;
  return at.x >= across && at.y >= down && at.x <= canvas.width - across && at.y <= canvas.height - down;
}

}  // namespace

void add_entry_tools(Map_tools& tools, Ports& ports) {
  using Position = maps::Map_position;
  tools.line_vertex = [&ports](Session& session, const Press&, const Position& position) {
    return line_vertex(session, ports, position);
  };
  tools.line_free_end = [](Session& session, const Press&, const Position& position) {
    return line_free_end(session, position);
  };
  tools.fix_point = [&ports](Session& session, const Press& press, const Position& position) {
    return fix_point(session, ports, press, position);
  };
  tools.open_link = [&ports](Session& session, const Press& press, const Position& position) {
    return open_link(session, ports, press, position);
  };
  tools.point_menu = [&ports](Session& session, const Press& press, const Position& position) {
    return point_menu(session, ports, press, position);
  };
}

std::string menu_label(const Session& session) {
  const int touroku = session.entry.touroku;
  if (touroku < 1 || touroku > session.registry.N) return {};
  return observations::record_label(session.registry.rows[touroku]);
}

bool mnu_sinki(Session& session, Ports& ports) {
  try {
    if (!observations::mnu_sinki(context_of(session, ports), session.entry, session.registry, scheme_of(session),
                                 session.entry_click, surfaces(session)))
      return false;
  } catch (const platform::Subscript_failure&) {
    ports.prompts.message(table_full);
    return false;
  }
  panel_opened(session);
  return true;
}

bool mnu_henkou(Session& session, Ports& ports) {
  if (!observations::mnu_henkou(context_of(session, ports), session.entry, session.registry, session.entry_click))
    return false;
  session.entry.boxes.Combo2_list = surfaces(session);
  panel_opened(session);
  return true;
}

bool mnu_henkou(Session& session, Ports& ports, int touroku) {
  if (touroku < 1 || touroku > session.registry.N) return false;
  session.entry.touroku = touroku;
  return mnu_henkou(session, ports);
}

bool mnu_del(Session& session, Ports& ports) {
  const Journal_operation operation(ports.journal, "地点の削除", "Delete observation");
  bool gone = false;
  try {
    gone = observations::mnu_del(context_of(session, ports), session.entry, session.registry, session.entry_click);
  } catch (const platform::Subscript_failure&) {
    ports.prompts.message(file_too_long);
  }
  if (!session.entry.open) entry_close(session);
  if (!gone) return false;
  session.highlighted = 0;  // its number is another record's now
  if (ports.journal.state() == platform::Journal_state::kept)
    session.notice = {"地点を削除しました。Ctrl+Zで元に戻せます。",
                      "The observation was deleted. Ctrl+Z brings it back."};
  registry_r(session, ports);
  return true;
}

bool leave_entry(Session& session, Ports& ports) {
  if (!session.entry.open) return true;
  bool stays = false;
  Command22(session, ports, [&] { stays = !Command9(session, ports).saved; });
  if (stays) return false;
  entry_close(session);
  return true;
}

Entry_saved Command9(Session& session, Ports& ports) {
  // The panel closes with the save, and the line that isn't ended would go with it.
  if (session.flags.line_mode > 0 && session.flags.line_count > 0) {
    ports.prompts.message(end_line_first);
    return {};
  }
  // Read again, a line stands at its first vertex: one without any would lose its place.
  if (observations::stands_at_first_vertex(session.entry.boxes.Combo1) && !has_vertices(session)) {
    ports.prompts.message(draw_first);
    return {};
  }
  registry_follow(session, ports);  // the table goes to the file as a whole
  const Journal_operation operation(ports.journal, "地点の保存", "Save observation");
  observations::Save_result result =
      observations::Command9(context_of(session, ports), session.entry, session.registry);
  if (!result.saved) return {};
  const int touroku = session.entry.touroku;
  entry_tool_left(session);
  session.flags.data_dirty = 0;
  registry_r(session, ports);
  session.highlighted = touroku <= session.registry.N ? touroku : 0;
  return {true, std::move(result.captions)};
}

observations::Photo_result photo_read(Session& session, Ports& ports, const std::string& folder,
                                      geodesy::Point position) {
  const Journal_operation operation(ports.journal, "写真から地点を登録", "Make points from photos");
  observations::Entry& entry = session.entry;
  const observations::Record before = entry.open ? session.registry.rows[entry.touroku] : observations::Record{};
  const observations::Photo_result result =
      observations::photo_read(context_of(session, ports), session.registry, folder, position);
  // The photos took the row of a record that is in no file yet.
  if (session.registry.reads != entry.reads) observations::entry_follow_read(entry, session.registry, before);
  // And its number too, which stood in no file.
  if (result.added > 0 && entry.open && entry.unsaved && scheme_of(session) == observations::by_date) {
    std::string& number = entry.boxes.Text14[observations::box_touroku_no];
    if (number == entry.stored_number) {
      number = observations::touroku_no_get(ports.files, session.settings.project_path, ports.clock.now());
      session.registry.rows[entry.touroku].touroku_no = entry.stored_number = number;
    }
  }
  return result;
}

bool surface_add(Session& session, Ports& ports) {
  const Journal_operation operation(ports.journal, "他の地層面に追加", "Add to another surface");
  return observations::surface_add(context_of(session, ports), session.entry);
}

void entry_close(Session& session) {
  observations::entry_close(session.entry, session.registry);
  entry_tool_left(session);
  session.flags.data_dirty = 0;
}

void entry_edited(Session& session) {
  if (session.entry.open) session.flags.data_dirty = 1;
}

Redraw Command6(Session& session, Ports& ports) {
  if (!session.entry.open || !session.sheet_shown()) return Redraw::none;
  if (!is_drawn_mark(session.entry.boxes.Combo1)) {
    ports.prompts.message("Markで「線」または「範囲」を選択して下さい。", "Please choose the mark Line or Area first.");
    return Redraw::none;
  }
  observations::Command6(session.flags, session.line);
  session.line_end_fixed = false;
  session.flags.point_mode = 0;
  return Redraw::overlay;
}

Redraw Command31(Session& session) {
  if (!observations::Command31(session.flags, session.line, session.line_end)) return Redraw::overlay;
  keep_line(session);
  return Redraw::all;
}

bool entry_tool_left(Session& session) {
  const bool left = session.flags.line_mode > 0 || session.flags.point_mode == 1;
  session.flags.line_mode = session.flags.line_count = session.flags.point_mode = 0;
  session.line.vertices.clear();
  session.line_end_fixed = false;
  return left;
}

bool Command1(Session& session, Ports& ports) {
  const Journal_operation operation(ports.journal, "入力シート登録", "Input sheet");
  const observations::Sheet_context context{session.settings, session.boxes, session.canvas, ports.files,
                                            ports.processes,  ports.sheets,  ports.prompts};
  observations::Entry_boxes& boxes = session.entry.boxes;
  const std::string before = boxes.Label3;
  const bool opened = observations::Command1(context, boxes);
  if (boxes.Label3 != before) entry_edited(session);
  return opened;
}

observations::Memo_shown Command23(Session& session, Ports& ports) {
  return observations::Command23(ports.files, ports.processes, ports.prompts, session.settings.project_path,
                                 session.entry.boxes.Text14[observations::box_touroku_no]);
}

Redraw highlight_at(Session& session, double x, double y) {
  const int touroku = observations::nearest_record(session.registry, maps::henkan_M(session.canvas, x, y));
  if (touroku == session.highlighted) return Redraw::none;
  session.highlighted = touroku;
  return Redraw::overlay;
}

Redraw highlight(Session& session, int touroku) {
  session.highlighted = touroku >= 1 && touroku <= session.registry.N ? touroku : 0;
  if (session.highlighted == 0 || !session.sheet_shown()) return Redraw::overlay;
  const geodesy::Point position{session.registry.rows[touroku].X, session.registry.rows[touroku].Y};
  const Redraw moved = bring_into_sight(session, position);
  const drawing::Point now = twips_of(session, position);
  const maps::Canvas& canvas = session.canvas;
  if (now.x < 0 || now.y < 0 || now.x > canvas.width || now.y > canvas.height)
    session.notice = {"この地点は表示中の図葉の外にあります。", "This observation lies outside the maps shown."};
  return moved;
}

Redraw bring_into_sight(Session& session, geodesy::Point position) {
  const drawing::Point at = twips_of(session, position);
  const maps::Canvas& canvas = session.canvas;
  if (is_in_sight(canvas, at)) return Redraw::overlay;
  const Redraw moved = pan_one_to_one(session, canvas.width / 2 - at.x, canvas.height / 2 - at.y);
  return moved == Redraw::none ? Redraw::overlay : moved;
}

}  // namespace session
