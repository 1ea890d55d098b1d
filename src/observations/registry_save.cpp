#include "observations/registry_save.h"

#include <algorithm>

#include "core/project_folders.h"
#include "core/save_messages.h"
#include "observations/memo.h"
#include "observations/record_line.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations {
namespace {

using platform::Message;
using platform::Prompts;

constexpr Message no_surface{"面を選択して下さい。", "面を選択して下さい。"};
constexpr Message no_name{"地層名を選択して下さい。", "地層名を選択して下さい。"};
constexpr Message no_other_name{"他の地層名を選択して下さい。", "他の地層名を選択して下さい。"};
constexpr Message nothing_chosen{"保存する点が選択されていません。", "No point is selected."};

// The short record of a copy ends before the column that marks a corrected strike.
constexpr Message mark_not_copied{"追加した地点には偏角補正済みの印が付かないため、走向に偏角が加えられます。",
                                  "The copy is not marked as corrected: the declination will be added to its strike."};

constexpr Message memo_needs_number{"メモの保存には、ファイル名にできる登録番号が必要です。",
                                    "A memo needs a registration number that can be a file's name."};

bool characters_told(const Entry_boxes& boxes, const Record& stored, const std::string& memo, Prompts& prompts) {
  return core::unknown_characters(prompts, characters_not_stored(boxes, stored, memo));
}

// Whether the table is all that the file holds. One that was never read stands for a file that isn't there.
bool is_whole(const Registry& registry, platform::Files& files, const std::string& path) {
  if (registry.file.empty()) return files.length(path) == 0;
  return registry.complete && platform::same_name(registry.file, path);
}

// The record as it is in the table. A new one that a later read has overwritten has nothing yet.
Record record_before(const Entry& entry, const Registry& registry) {
  const bool overwritten = entry.unsaved && entry.reads != registry.reads && entry.touroku <= registry.N;
  return overwritten ? Record{} : registry.rows[entry.touroku];
}

// Where the record goes: its own row, or behind all others for a new one that saw the table read again.
int row_to_write(const Entry& entry, const Registry& registry) {
  return entry.unsaved && entry.reads != registry.reads ? registry.N + 1 : entry.touroku;
}

// What forbids a save, told to the user.
bool refused(Edit_context context, const Entry& entry, const Registry& registry, const std::string& path) {
  if (path.empty())
    context.prompts.message(no_surface);
  else if (context.settings.registry_count > 1)
    context.prompts.message(several_files);
  else if (entry.touroku == 0)
    context.prompts.message(nothing_chosen);
  else if (is_of_another_file(context.settings, entry))
    context.prompts.message(
        "入力中に地点登録ファイルの設定が変わったため、保存しません。元のファイルを選び直して下さい: " + entry.file,
        "Another registration file was chosen meanwhile, so nothing is saved. Please choose the one before again: " +
            entry.file);
  else if (!entry.unsaved && registry.rows[entry.touroku].touroku_no != entry.stored_number)
    context.prompts.message("地点登録ファイルが変更されていたため、保存しません: " + path,
                            "The file was changed meanwhile, so nothing was saved: " + path);
  else if (!is_whole(registry, context.files, path))
    core::read_in_part(context.prompts, path);
  else
    return characters_told(entry.boxes, record_before(entry, registry), entry.stored_memo, context.prompts);
  return true;
}

// The table with its new row to the file; on a fault the table gets its old row back.
bool write_table(Edit_context context, Registry& registry, int number, const Record& record, const std::string& path) {
  const int old_count = registry.N;
  const Record old = registry.rows[number];
  registry.N = std::max(registry.N, number);
  registry.rows[number] = record;
  try {
    context.files.write_whole(path, registry_bytes(registry));
  } catch (const platform::File_failure& failure) {
    registry.rows[number] = old;
    registry.N = old_count;
    core::write_failed(context.prompts, path, failure);
    return false;
  }
  return true;
}

// Whether a new record has the number that mnu_sinki gave it, and no other record has it (numbers repeat behind 999).
bool is_newly_given(const Entry& entry, const Registry& registry, const std::string& number) {
  if (!entry.unsaved || number.empty() || number != entry.stored_number) return false;
  for (int i = 1; i <= registry.N; ++i)
    if (i != entry.touroku && number_parts(registry.rows[i].touroku_no).registration == number) return false;
  return true;
}

// The memo's file is written before the table: a memo without a record does no harm, a record without its memo does. A
// memo that wasn't touched goes along to a new number that has none.
bool write_memo(Edit_context context, const Entry& entry, const Registry& registry) {
  const std::string number = platform::trim_text(entry.boxes.Text14[box_touroku_no]);
  const std::string path = memo_path(context.settings.project_path, number);
  const bool changed = entry.boxes.memo != entry.stored_memo;
  if (path.empty()) {
    if (changed) context.prompts.message(memo_needs_number);
    return !changed;
  }
  if (!changed && context.files.length(path) > 0) {
    // A number that was just given out is in no file: a memo of its name belonged to a record that is gone.
    if (!is_newly_given(entry, registry, number) || context.files.remove(path)) return true;
    context.prompts.message("削除できません: " + path, "The file can't be deleted: " + path);
    return false;
  }
  try {
    memo_write(context.files, context.settings.project_path, path, entry.boxes.memo);
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, path, failure);
    return false;
  }
  return true;
}

// 1,-1234.5,6789.25,120,露頭,砂岩,N15W,30E,081115-001
// 1 2       3       4   5    6    7    8   9           the rest is absent
std::string short_record(const Entry_boxes& boxes) {
  std::string line = "1,";
  for (const std::string& text : {boxes.Text14[box_X], boxes.Text14[box_Y], boxes.Text14[box_Z], boxes.Combo7,
                                  boxes.Combo6, boxes.Text14[box_soukou], boxes.Text14[box_keisha]})
    line += text + ",";
  return line + boxes.Text14[box_touroku_no];
}

std::string with_record(const std::vector<platform::Text_line>& lines, const std::string& record) {
  platform::Line_writer writer;
  for (const platform::Text_line& line : lines)
    if (!is_deleted(line.text)) writer.line(line);
  writer.line(record);
  return writer.bytes();
}

}  // namespace

Save_result Command9(Edit_context context, Entry& entry, Registry& registry) {
  Save_result result;
  const core::Settings& settings = context.settings;
  const std::string path = registry_file(settings);
  if (refused(context, entry, registry, path)) return result;
  if (context.files.length(platform::join_path(settings.program_path, "Language.set")) > 0)
    result.captions = core::Language_set(context.settings, context.files, context.prompts);
  if (!platform::trim_text(entry.boxes.Text13).empty())
    result.measurement_in_use = measurement_in_use(registry, entry.boxes.Text13, registry.N - 1);

  Record record = record_before(entry, registry);
  record_from_boxes(record, entry.boxes);
  context.files.make_folder(core::chisou_men(settings.project_path));
  if (!write_memo(context, entry, registry)) return result;
  const int number = row_to_write(entry, registry);
  if (!write_table(context, registry, number, record, path)) return result;
  registry.file = path;
  registry_backup(context.files, settings.project_path);
  entry.open = entry.unsaved = entry.marker_visible = false;
  entry.stored_memo = entry.boxes.memo;
  entry.touroku = number;
  result.saved = true;
  return result;
}

bool surface_add(Edit_context context, const Entry& entry) {
  const std::string& name = entry.boxes.Combo2;
  if (name.empty() || !platform::stays_inside(name + ".csv")) {
    context.prompts.message(no_name);
    return false;
  }
  if (platform::same_name(name + ".csv", context.settings.registry_name)) {
    context.prompts.message(no_other_name);
    return false;
  }
  if (context.settings.registry_count > 1) {
    context.prompts.message(several_files);
    return false;
  }
  if (characters_told(entry.boxes, {}, entry.boxes.memo, context.prompts)) return false;
  const std::string path = core::chisou_men(context.settings.project_path, name + ".csv");
  context.files.make_folder(core::chisou_men(context.settings.project_path));
  try {
    context.files.write_whole(path, with_record(lines_to_keep(context.files, path), short_record(entry.boxes)));
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, path, failure);
    return false;
  }
  const std::string done = name + "面に書き込みました。";
  context.prompts.message(done, done);
  if (entry.boxes.Check9 && !platform::trim_text(entry.boxes.Text14[box_soukou]).empty())
    context.prompts.message(mark_not_copied);
  return true;
}

}  // namespace observations
