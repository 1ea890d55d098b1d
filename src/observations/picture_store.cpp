#include "observations/picture_store.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/save_messages.h"
#include "core/settings_files.h"
#include "drawing/picture_files.h"
#include "observations/exif_orientation.h"
#include "observations/memo.h"
#include "observations/record_line.h"
#include "observations/shell_file.h"
#include "platform/content.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/path_keys.h"
#include "platform/text_case.h"

namespace observations {
namespace {

using platform::join_path;
using platform::Message;
using platform::Picture;

constexpr Message name_required{"地点名称を必ず入力して下さい。", "地点名称を必ず入力して下さい。"};
constexpr Message done{"登録が完了しました。", "登録が完了しました。"};
constexpr Message no_project{"先に基本設定で地形図フォルダを選んで下さい。", "Please choose the project folder first."};
constexpr Message places_full{"空いている枠がありません。先に登録するか、枠を空けて下さい。",
                              "No place is free. Please store or empty one first."};

// One file that the store is to write.
struct Store_file {
  std::string name;   // in the point's folder
  std::string path;   // its target
  std::string bytes;  // of a picture that was converted; otherwise it is copied
  std::string from;
};

int turned(int quarter_turns, int by) {
  return ((quarter_turns + by) % 4 + 4) % 4;
}

Picture read_picture(Picture_context context, const std::string& path, int quarter_turns) {
  Picture picture = context.pictures.decode(platform::content_or_nothing(context.files, path)).picture;
  if (picture.empty() || quarter_turns == 0) return picture;
  return context.pictures.rotate_quarter(picture, quarter_turns);
}

void unreadable(Picture_context context, const std::string& path) {
  context.prompts.message("画像を読み込めません: " + path, "The picture can't be read: " + path);
}

std::string temporary(Picture_context context, const char* name) {
  return join_path(context.settings.program_path, name);
}

bool turn(Picture_context context, Picture_place& place, int by) {
  if (place.path.empty() || is_sound_name(place.path)) return false;
  const Picture before = read_picture(context, place.path, place.quarter_turns);
  if (before.empty()) {
    unreadable(context, place.path);
    return false;
  }
  const Picture after = context.pictures.rotate_quarter(before, turned(0, by));
  if (!drawing::save_bmp(context.files, context.prompts, before, temporary(context, "tmp0.bmp"), before.depth) ||
      !drawing::save_bmp(context.files, context.prompts, after, temporary(context, "tmp.bmp"), after.depth))
    return false;
  place.quarter_turns = turned(place.quarter_turns, by);
  return true;
}

Taken take(Picture_context context, Picture_boxes& boxes, std::size_t place) {
  if (boxes.File1.empty()) return Taken::nothing;
  const std::string path = join_path(boxes.Dir1, boxes.File1);
  if (context.files.length(path) == 0) return Taken::nothing;
  if (is_sound_name(boxes.File1)) {
    boxes.places[place] = {path, 0};
    sound_out(context, path);
    return Taken::sound;
  }
  boxes.places[place] = {path, exif_quarter_turns(platform::content_or_nothing(context.files, path))};
  return Taken::picture;
}

// One sentence for a name that can't be a point's; false when it can.
bool name_refused(platform::Prompts& prompts, const std::string& name) {
  switch (name_fault(name)) {
    case Name_fault::none:
      return false;
    case Name_fault::empty:
      prompts.message(name_required);
      return true;
    case Name_fault::no_code:
      return core::unknown_characters(prompts, platform::characters_without_code(name));
    default:
      prompts.message("地点名称に使えない名前です: " + name, "This can't be the name of a point: " + name);
      return true;
  }
}

// What the places hold, by the names that they get, with converted pictures still to be made.
std::vector<Store_file> files_of_places(const core::Settings& settings, const Picture_boxes& boxes,
                                        const std::string& point) {
  std::vector<Store_file> found;
  for (const Picture_place& place : boxes.places) {
    if (place.path.empty()) continue;
    const std::string name = stored_name(leaf_of(place.path));
    found.push_back({name, picture_path(settings.project_path, point, name), {}, place.path});
  }
  return found;
}

bool names_refused(platform::Prompts& prompts, const std::vector<Store_file>& files) {
  for (std::size_t i = 0; i < files.size(); ++i) {
    const std::string& name = files[i].name;
    if (name_fault(name) != Name_fault::none || files[i].path.empty()) {
      prompts.message("登録できないファイル名です: " + name, "A file of this name can't be stored: " + name);
      return true;
    }
    for (std::size_t k = 0; k < i; ++k) {
      if (!platform::same_name(files[k].name, name)) continue;
      prompts.message("同じファイル名が2つあります: " + name, "Two files have the same name: " + name);
      return true;
    }
  }
  return false;
}

// A picture that isn't a bitmap, or is turned, goes through \tmp.bmp. That file lies outside the store's operation, so
// that it never stands in the way of an undo.
bool convert(Picture_context context, const Picture_place& place, Store_file& file) {
  if (is_sound_name(place.path) || (is_bmp_name(place.path) && place.quarter_turns == 0)) return true;
  const Picture picture = read_picture(context, place.path, place.quarter_turns);
  if (picture.empty()) {
    unreadable(context, place.path);
    return false;
  }
  if (!drawing::save_bmp(context.files, context.prompts, picture, temporary(context, "tmp.bmp"), picture.depth))
    return false;
  file.bytes = drawing::bmp_bytes(picture, picture.depth);
  return true;
}

bool convert_all(Picture_context context, const Picture_boxes& boxes, std::vector<Store_file>& files) {
  auto file = files.begin();
  for (const Picture_place& place : boxes.places)
    if (!place.path.empty() && !convert(context, place, *file++)) return false;
  return true;
}

bool same_file(const std::string& a, const std::string& b) {
  return platform::path_key(a) == platform::path_key(b);
}

// Asks once for all pictures that would be replaced. True when none is, or the user agrees.
bool replacing_agreed(Picture_context context, const std::vector<Store_file>& files) {
  std::string names;
  for (const Store_file& file : files)
    if (context.files.length(file.path) > 0 && !same_file(file.path, file.from))
      names += (names.empty() ? "" : ", ") + file.name;
  if (names.empty()) return true;
  const std::string japanese = "この地点には同じ名前のファイルがあります。置き換えますか。\n" + names;
  const std::string english = "This point has files of the same name. Replace them?\n" + names;
  return context.prompts.yes_no({japanese.c_str(), english.c_str()});
}

// True, with a message, when the point has a list that can't be read: a new one would lose what it names.
bool list_unread(Picture_context context, const Picture_boxes& boxes, const std::string& name) {
  if (boxes.File2_point == name) return false;
  const std::string path = point_path(context.settings.project_path, name, ".dat");
  context.prompts.message("画像の一覧を読み込めないため、保存しません: " + path,
                          "The list of pictures can't be read, so nothing is saved: " + path);
  return true;
}

// The point's list with the new files behind those it has.
std::vector<Listed_picture> new_list(const Picture_boxes& boxes, const std::vector<Store_file>& files) {
  std::vector<Listed_picture> list = boxes.File2;
  for (const Store_file& file : files) {
    const bool known = std::any_of(list.begin(), list.end(), [&](const Listed_picture& listed) {
      return platform::same_name(listed.name, file.name);
    });
    if (!known) list.push_back({file.name});
  }
  return list;
}

// The pictures come before the list that names them.
void write_point(Picture_context context, const Point_file& point, const std::vector<Store_file>& files) {
  const std::string& project = context.settings.project_path;
  const platform::Journal_operation operation(context.journal, "画像とテキストの登録", "Store pictures");
  context.files.make_folder(image_folder(project));
  context.files.make_folder(point_folder(project, point.name));
  for (const Store_file& file : files) {
    if (!file.bytes.empty())
      context.files.write_whole(file.path, file.bytes);
    else if (!same_file(file.path, file.from))
      context.files.copy(file.from, file.path);
  }
  context.files.write_whole(point_path(project, point.name, ".dat"), point_bytes(point));
  const std::string text = point_path(project, point.name, ".txt");
  if (context.files.length(text) == 0) context.files.write_whole(text, point_text_bytes(point.name));
}

void remember_folders(Picture_context context, const Picture_boxes& boxes) {
  try {
    core::psettei_w(context.files, context.settings.program_path, {boxes.Dir1, boxes.Dir2});
  } catch (const platform::File_failure&) {
    // Folders that are not remembered are no reason to keep a picture out of the store.
  }
}

}  // namespace

void frm_sel_picture_load(Picture_context context, Picture_boxes& boxes, const std::string& name, const std::string& X,
                          const std::string& Y) {
  core::Picture_folders folders{context.settings.project_path, image_folder(context.settings.project_path)};
  core::psettei_r(context.files, context.settings.program_path, folders);
  boxes = {};
  boxes.Dir1 = folders.Dir1;
  boxes.Dir2 = folders.Dir2;
  boxes.Text1 = name;
  boxes.Text2 = X;
  boxes.Text3 = Y;
}

std::vector<std::string> File1_list(platform::Files& files, const std::string& folder) {
  std::vector<std::string> names = files.list(folder, "*");
  std::erase_if(names, [](const std::string& name) { return !is_picture_name(name) && !is_sound_name(name); });
  return names;
}

bool Text1_change(Picture_context context, Picture_boxes& boxes, bool edit) {
  const std::string name = platform::trim_text(boxes.Text1);
  const std::string& project = context.settings.project_path;
  const std::string path = point_path(project, name, ".dat");
  boxes.File2.clear();
  boxes.File2_point = name;
  boxes.Dir2 = path.empty() ? image_folder(project) : point_folder(project, name);
  Point_file point;
  try {
    if (path.empty() || !point_r(context.files, path, point)) return false;
  } catch (const platform::File_failure&) {
    boxes.File2_point.clear();  // its list isn't known: the store looks again
    return false;
  }
  boxes.File2 = std::move(point.pictures);
  if (edit) {
    boxes.Text2 = platform::number_text(point.X);
    boxes.Text3 = platform::number_text(point.Y);
  }
  return true;
}

bool Dir2_change(Picture_context context, Picture_boxes& boxes, const std::string& folder, bool edit) {
  const std::size_t last = folder.find_last_not_of("\\/");
  const std::string name = leaf_of(folder.substr(0, last == std::string::npos ? 0 : last + 1));
  const std::string& project = context.settings.project_path;
  if (point_path(project, name, ".dat").empty() || !same_file(folder, point_folder(project, name))) {
    context.prompts.message("地点のフォルダではありません。次のフォルダの中から選んで下さい: " + image_folder(project),
                            "This is no point's folder. Please choose one of this folder: " + image_folder(project));
    return false;
  }
  boxes.Text1 = name;
  Text1_change(context, boxes, edit);
  return true;
}

std::vector<std::string> points_in_store(Picture_context context, const Registry& registry) {
  std::vector<std::string> names;
  const std::string& project = context.settings.project_path;
  if (!context.files.folder_exists(image_folder(project))) return names;
  std::set<std::string> seen;
  for (int i = 1; i <= registry.N; ++i) {
    const std::string name = number_parts(registry.rows[i].touroku_no).registration;
    const std::string path = point_path(project, name, ".dat");
    if (!path.empty() && seen.insert(name).second && context.files.length(path) > 0) names.push_back(name);
  }
  return names;
}

std::string point_text(Picture_context context, const Picture_boxes& boxes) {
  const std::string name = platform::trim_text(boxes.Text1);
  return memo_read(context.files, point_path(context.settings.project_path, name, ".txt"));
}

void File2_remove(Picture_boxes& boxes, std::size_t index) {
  if (index < boxes.File2.size()) boxes.File2.erase(boxes.File2.begin() + static_cast<std::ptrdiff_t>(index));
}

Taken Command10(Picture_context context, Picture_boxes& boxes) {
  return take(context, boxes, 0);
}
Taken Command11(Picture_context context, Picture_boxes& boxes) {
  return take(context, boxes, 1);
}
Taken Command12(Picture_context context, Picture_boxes& boxes) {
  return take(context, boxes, 2);
}

int place_from_store(Picture_context context, Picture_boxes& boxes, std::size_t index) {
  if (index >= boxes.File2.size() || !is_picture_name(boxes.File2[index].name)) return -1;
  const std::string path = picture_path(context.settings.project_path, boxes.File2_point, boxes.File2[index].name);
  if (path.empty() || context.files.length(path) == 0) return -1;
  const auto free = std::find_if(boxes.places.begin(), boxes.places.end(), [&](const Picture_place& place) {
    return place.path.empty() || same_file(place.path, path);
  });
  if (free == boxes.places.end()) {
    context.prompts.message(places_full);
    return -1;
  }
  if (free->path.empty()) *free = {path, 0};
  return static_cast<int>(free - boxes.places.begin());
}

void sound_out(Picture_context context, const std::string& path) {
  if (!context.sounds.play(path)) Shell_file(context.processes, context.prompts, path);
}

bool gazou_kaiten(Picture_context context, Picture_place& place) {
  return turn(context, place, 1);
}
bool gazou_kaiten2(Picture_context context, Picture_place& place) {
  return turn(context, place, -1);
}

bool Command5(Picture_context context, Picture_boxes& boxes) {
  remember_folders(context, boxes);
  const std::string name = platform::trim_text(boxes.Text1);
  if (name_refused(context.prompts, name)) return false;
  if (context.settings.project_path.empty()) {
    context.prompts.message(no_project);
    return false;
  }
  if (boxes.File2_point != name) Text1_change(context, boxes, false);
  if (list_unread(context, boxes, name)) return false;
  std::vector<Store_file> files = files_of_places(context.settings, boxes, name);
  if (names_refused(context.prompts, files) || !replacing_agreed(context, files) || !convert_all(context, boxes, files))
    return false;
  const Point_file point{name, platform::val(boxes.Text2), platform::val(boxes.Text3), new_list(boxes, files)};
  try {
    write_point(context, point, files);
  } catch (const platform::File_failure& failure) {
    const bool known = failure.cause != platform::File_cause::unknown;
    core::file_failed(context.prompts, {"保存できません: ", "The files can't be saved: "},
                      known ? failure.file : failure.what(), failure);
    return false;
  }
  boxes.File2 = point.pictures;
  boxes.places = {};
  context.prompts.message(done);
  return true;
}

bool Command7(Picture_context context, const Picture_boxes& boxes) {
  const std::string name = platform::trim_text(boxes.Text1);
  if (name_refused(context.prompts, name)) return false;
  return Shell_file(context.processes, context.prompts, point_path(context.settings.project_path, name, ".txt"));
}

}  // namespace observations
