#include "observations/registry_edit.h"

#include <cmath>

#include "core/language.h"
#include "core/save_messages.h"
#include "observations/memo.h"
#include "observations/record_line.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations {
namespace {

using platform::Text_line;

constexpr double far_away = 9'999'999'827'968;  // the search begins with this distance
constexpr double panel_offset = 2000;           // twips from a click to the panel that it opens
constexpr std::size_t delete_limit = 1000;      // lines that a deletion can hold

void take_back_unsaved(Entry& entry, Registry& registry) {
  if (!entry.unsaved) return;
  // A table that was read again has lost the row by itself.
  if (registry.N == entry.touroku && registry.reads == entry.reads) --registry.N;
  entry.unsaved = false;
  entry.touroku = 0;
}

void clear_selection(Entry& entry) {
  entry.touroku = 0;
  entry.open = false;
  entry.unsaved = false;
  entry.marker_visible = false;
}

void show_marker(Edit_context context, Entry& entry, geodesy::Point at) {
  entry.marker = maps::henkan_px(context.canvas, at.x, at.y);
  entry.marker_visible = true;
}

// The steps that new and change share before anything is chosen.
void prepare_panel(Edit_context context, Entry& entry) {
  const std::string& name = context.settings.registry_name;
  fill_mark_lists(entry.boxes, context.settings.language);
  entry.boxes.frame_title =
      (core::is_japanese(context.settings.language) ? "地点登録ファイル<" : "PointRegistrationFile<") + name + ">";
}

void open_panel(Edit_context context, Entry& entry, const Registry& registry) {
  entry.file = registry_file(context.settings);
  entry.stored_number = registry.rows[entry.touroku].touroku_no;
  entry.reads = registry.reads;
  entry.open = true;
}

std::string next_number(Edit_context context, Numbering scheme, geodesy::Point position) {
  if (scheme == by_date) return touroku_no_get(context.files, context.settings.project_path, context.clock.now());
  if (scheme == by_mesh) return mesh_number(context.files, context.settings.project_path, position);
  return {};
}

void clear_boxes(Entry_boxes& boxes) {
  for (const Text14_box box : {box_soukou, box_keisha, box_sen_keisha, box_sen_houkou}) boxes.Text14[box].clear();
  boxes.memo.clear();
  boxes.Combo6.clear();
  boxes.Combo7.clear();
  boxes.Text13.clear();
  boxes.Label3.clear();
}

void load_memo(Edit_context context, Entry& entry) {
  const std::string& number = entry.boxes.Text14[box_touroku_no];
  entry.stored_memo = memo_read(context.files, memo_path(context.settings.project_path, number));
  entry.boxes.memo = entry.stored_memo;
}

// Index of the line of a record, counted among the lines that aren't deleted; the number of lines when it has none.
std::size_t line_of_record(const std::vector<Text_line>& lines, int record) {
  std::size_t at = 0;
  for (; at < lines.size(); ++at)
    if (!is_deleted(lines[at].text) && --record == 0) break;
  return at;
}

enum class Deletion { done, changed_elsewhere };

// Writes the file without the record's line. A record that is in no file yet has none.
Deletion delete_line(platform::Files& files, const std::string& path, const Record& record, int number, bool unsaved) {
  if (unsaved) return Deletion::done;
  const std::vector<Text_line> lines = lines_to_keep(files, path);
  if (lines.size() > delete_limit)
    throw platform::Subscript_failure("a record can't be deleted from a file of more than 1000 lines");
  const std::size_t doomed = line_of_record(lines, number);
  if (doomed == lines.size() || record_of(lines[doomed]).touroku_no != record.touroku_no)
    return Deletion::changed_elsewhere;
  platform::Line_writer writer;
  for (std::size_t i = 0; i < lines.size(); ++i)
    if (i != doomed) writer.line(lines[i]);
  files.write_whole(path, writer.bytes());
  return Deletion::done;
}

bool confirmed(platform::Prompts& prompts, const std::string& label) {
  const std::string japanese = "[" + label + "]を削除してよろしいですか。";
  const std::string english = "[May I delete the specified point?" + label + "]";
  return prompts.ok_cancel({japanese.c_str(), english.c_str()});
}

}  // namespace

geodesy::Point stored_position(const maps::Canvas& canvas, const maps::Map_position& position) {
  if (canvas.is_geographic) return {position.geo_x, position.geo_y};
  return {position.x, position.y};
}

int nearest_record(const Registry& registry, const maps::Map_position& position) {
  double best = far_away;
  int nearest = 0;
  for (int i = 1; i <= registry.N; ++i) {
    const Record& record = registry.rows[i];
    const bool geographic = is_geographic(record);
    const double dx = record.X - (geographic ? position.geo_x : position.x);
    const double dy = record.Y - (geographic ? position.geo_y : position.y);
    const double distance = std::sqrt(dx * dx + dy * dy);
    if (!(distance < best && distance < pick_radius)) continue;
    best = distance;
    nearest = i;
  }
  return nearest;
}

Right_press right_press(Edit_context context, Entry& entry, Registry& registry, const Click& click) {
  if (entry.open) {
    move_entry(context, entry, click);
    return Right_press::moved;
  }
  if (context.settings.registry_count > 1) {
    context.prompts.message(several_files);
    return Right_press::refused;
  }
  take_back_unsaved(entry, registry);
  entry.touroku = nearest_record(registry, click.position);
  return Right_press::menu;
}

bool mnu_sinki(Edit_context context, Entry& entry, Registry& registry, Numbering scheme, const Click& click,
               const std::vector<std::string>& List1) {
  if (context.settings.registry_count > 1) {
    context.prompts.message(several_files);
    return false;
  }
  take_back_unsaved(entry, registry);
  const geodesy::Point position = stored_position(context.canvas, click.position);
  const std::string number = next_number(context, scheme, position);
  registry.rows[registry.N + 1] = Record{};
  registry.rows[registry.N + 1].touroku_no = number;
  ++registry.N;

  prepare_panel(context, entry);
  Entry_boxes& boxes = entry.boxes;
  if (scheme != by_hand) clear_boxes(boxes);
  if (!boxes.Check1) boxes.Text14[box_Z].clear();
  boxes.Text14[box_touroku_no] = number;
  boxes.Text13 = platform::number_text(highest_measurement(registry) + 1);
  boxes.Combo2_list = List1;
  position_to_boxes(boxes, position);
  entry.stored_memo.clear();
  entry.touroku = registry.N;
  entry.unsaved = true;
  open_panel(context, entry, registry);
  show_marker(context, entry, position);
  return true;
}

bool mnu_henkou(Edit_context context, Entry& entry, Registry& registry, const Click& click) {
  if (context.settings.registry_count > 1) {
    context.prompts.message(several_files);
    return false;
  }
  prepare_panel(context, entry);
  if (entry.touroku == 0) entry.touroku = nearest_record(registry, click.position);
  if (entry.touroku == 0) return false;
  const Record& record = registry.rows[entry.touroku];
  boxes_from_record(entry.boxes, record);
  load_memo(context, entry);
  show_marker(context, entry, {record.X, record.Y});
  if (!entry.open) entry.left = click.x + panel_offset;
  open_panel(context, entry, registry);
  return true;
}

bool mnu_del(Edit_context context, Entry& entry, Registry& registry, const Click& click) {
  if (context.settings.registry_count > 1) {
    context.prompts.message(several_files);
    return false;
  }
  if (is_of_another_file(context.settings, entry)) {
    context.prompts.message("入力中に地点登録ファイルの設定が変わったため、削除しません: " + entry.file,
                            "Another registration file was chosen meanwhile, so nothing is deleted: " + entry.file);
    return false;
  }
  const int number = entry.touroku != 0 ? entry.touroku : nearest_record(registry, click.position);
  if (number == 0) {
    context.prompts.message(no_point_found);
    return false;
  }
  entry.touroku = number;
  const Record& record = registry.rows[number];
  show_marker(context, entry, {record.X, record.Y});
  if (!confirmed(context.prompts, record_label(record))) {
    take_back_unsaved(entry, registry);
    clear_selection(entry);
    return false;
  }
  const std::string path = registry_file(context.settings);
  try {
    if (delete_line(context.files, path, record, number, entry.unsaved) == Deletion::changed_elsewhere)
      context.prompts.message("地点登録ファイルが変更されていたため、削除しませんでした: " + path,
                              "The file was changed meanwhile, so nothing was deleted: " + path);
  } catch (const platform::File_failure& failure) {
    core::file_failed(context.prompts, {"地点登録ファイルを書き換えられません: ", "The file can't be rewritten: "},
                      path, failure);
    return false;
  }
  take_back_unsaved(entry, registry);
  clear_selection(entry);
  return true;
}

void move_entry(Edit_context context, Entry& entry, const Click& click) {
  const geodesy::Point position = stored_position(context.canvas, click.position);
  position_to_boxes(entry.boxes, position);
  show_marker(context, entry, position);
}

bool is_of_another_file(const core::Settings& settings, const Entry& entry) {
  return entry.open && !entry.file.empty() && !platform::same_name(entry.file, registry_file(settings));
}

std::string record_label(const Record& record) {
  const Number_parts number = number_parts(record.touroku_no);
  return number.measurement.empty() ? number.registration : number.measurement;
}

void entry_close(Entry& entry, Registry& registry) {
  take_back_unsaved(entry, registry);
  clear_selection(entry);
}

void entry_follow_read(Entry& entry, Registry& registry, const Record& before) {
  if (!entry.open) return;
  if (!entry.unsaved) {
    if (entry.touroku > registry.N) return;
    Record& record = registry.rows[entry.touroku];
    if (record.touroku_no == entry.stored_number) record.vertices = before.vertices;
    return;
  }
  if (registry.N >= record_limit) return;  // the save tells that there is no room
  entry.touroku = ++registry.N;
  registry.rows[entry.touroku] = before;
  entry.reads = registry.reads;
}

}  // namespace observations
