#include "core/project_settings.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/project_folders.h"
#include "core/save_messages.h"
#include "core/settei.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/text_case.h"

namespace core {

using platform::Files;
using platform::join_path;
using platform::Message;
using platform::Prompts;

namespace {

constexpr Message no_registry_selected = {"地点登録ファイルは必ず選択して下さい。", "Please Select Basic Frame File"};
constexpr Message delete_question = {"ファイルを削除すると復活はできません。削除を実行しますか。",
                                     "If yuou delete file then you can not revival this file.  Do it?"};
constexpr Message where_registries_are = {"地点登録ファイルは,[地形図フォルダ」内の[chisou_men]の中に作成されます。",
                                          "Position File make in [chisou_men] Folder"};
// The selected names stand in one line of settei.ini, parted by commas: the next start would take half of this one.
constexpr Message name_with_comma = {"ファイル名に「,」は使えません。", "A comma can't stand in the name of the file."};

// False, with the characters named, when a text holds some that the files' code page doesn't have.
bool can_be_stored(const std::string& text, Prompts& prompts) {
  return !unknown_characters(prompts, platform::characters_without_code(text));
}

void folder_failed(const std::string& path, Prompts& prompts) {
  prompts.message("フォルダを作成できません: " + path, "The folder can't be made: " + path);
}

// Makes an empty file in \chisou_men, which is made with it; one that exists stays as it is. False with a message.
bool file_make(Files& files, Prompts& prompts, const std::string& project, const std::string& name) {
  const std::string path = chisou_men(project, name);
  try {
    if (project.empty()) throw platform::File_failure("there is no project folder");
    if (!platform::stays_inside(name)) throw platform::File_failure("the name leaves the folder");
    files.make_folder(chisou_men(project));
    if (files.length(path) == 0) files.write_whole(path, "");
    return true;
  } catch (const platform::File_failure& failure) {
    file_failed(prompts, {"ファイルを作成できません: ", "The file can't be made: "}, path, failure);
    return false;
  }
}

std::string sheet_folder_of(const Settings& settings, int index) {
  return join_path(settings.program_path, index == 1 ? "map50000" : "map");
}

// A folder's text in the form in which two are compared: one kind of separator, none behind.
std::string comparable(std::string folder) {
  std::replace(folder.begin(), folder.end(), '/', '\\');
  while (!folder.empty() && folder.back() == '\\') folder.pop_back();
  return folder;
}

bool is_standard_sheet_folder(const Settings& settings, const std::string& folder) {
  const std::string text = comparable(folder);
  return platform::same_name(text, comparable(sheet_folder_of(settings, 0))) ||
         platform::same_name(text, comparable(sheet_folder_of(settings, 1)));
}

}  // namespace

void menu_settei(const Settings& settings, Settings_boxes& boxes, Files& files) {
  if (files.length(settei_path(settings)) == 0) {
    boxes.Dir3 = settings.program_path;
    boxes.Dir4 = settings.program_path;
    // The sheets lie in a subfolder; the program folder itself would leave a new user with an empty sheet list.
    boxes.Dir10 = sheet_folder_of(settings, boxes.Option5[1] ? 1 : 0);
  }
  File11_refresh(boxes, files);
}

bool Command10(Settings& settings, Settings_boxes& boxes, Files& files, Prompts& prompts) {
  if (std::none_of(boxes.File11.begin(), boxes.File11.end(), [](const File_choice& file) { return file.selected; })) {
    prompts.message(no_registry_selected);
    return false;
  }
  Settings_boxes saved = boxes;
  picture_proportion(saved);
  if (!can_be_stored(settei_texts(saved), prompts)) return false;
  for (const char* name : {"chisou_men", "data"}) {
    const std::string folder = join_path(saved.Dir4, name);
    if (files.make_folder(folder)) continue;
    folder_failed(folder, prompts);
    return false;
  }
  try {
    settei_w(settings, saved, files);
  } catch (const platform::File_failure& failure) {
    file_failed(prompts, {"基本設定を保存できません: ", "The basic settings can't be saved: "}, settei_path(settings),
                failure);
    return false;
  }
  saved.Label11 = saved.Dir4;
  boxes = std::move(saved);
  settings.project_path = boxes.Dir4;
  settings.map_path = boxes.Dir10;
  settings.datum_mode = boxes.Option7 ? wgs_84 : tokyo_datum;
  const std::vector<std::string> names = selected_registries(boxes);
  settings.registry_name = names.front();
  settings.registry_count = static_cast<int>(names.size());
  return true;
}

bool Command11(Settings& settings, Settings_boxes& boxes, Files& files, Prompts& prompts) {
  return settei_r(settings, boxes, files, prompts);
}

std::string Command14(const Settings_boxes& boxes, Files& files, Prompts& prompts) {
  if (boxes.Dir4.empty() || boxes.Text2.empty() || !can_be_stored(boxes.Text2, prompts)) return {};
  std::string path = boxes.Dir4 + "\\" + boxes.Text2;
  // Below a drive's root the separator is doubled. One in front of the path is a network name and stays.
  const std::size_t doubled = path.find("\\\\", 1);
  if (doubled != std::string::npos) path.erase(doubled, 1);
  if (!files.make_folder(path) || !files.make_folder(chisou_men(path))) {
    folder_failed(path, prompts);
    return {};
  }
  return path;
}

bool Command44(const Settings& settings, Settings_boxes& boxes, Files& files, Prompts& prompts) {
  if (boxes.Text4.empty()) {
    // The lower-case word never matches, so the note stays away in Japanese; kept on purpose.
    if (settings.language == "japanese" || settings.language == "English") prompts.message(where_registries_are);
    return false;
  }
  if (!can_be_stored(boxes.Text4, prompts)) return false;
  const std::string name = boxes.Text4 + ".csv";
  if (name.find(',') != std::string::npos) {
    prompts.message(name_with_comma);
    return false;
  }
  if (!file_make(files, prompts, boxes.Dir4, name)) return false;
  const bool none = selected_registries(boxes).empty();
  File11_refresh(boxes, files);
  for (File_choice& file : boxes.File11)
    if (none && platform::same_name(file.name, name)) file.selected = true;
  return true;
}

bool Command45(Settings_boxes& boxes, Files& files, Prompts& prompts) {
  const std::vector<std::string> names = selected_registries(boxes);
  if (names.empty() || !prompts.yes_no(delete_question)) return false;
  for (const std::string& name : names) files.remove(chisou_men(boxes.Dir4, name));
  File11_refresh(boxes, files);
  return true;
}

void File11_refresh(Settings_boxes& boxes, Files& files) {
  std::set<std::string> selected;
  for (const std::string& name : selected_registries(boxes)) selected.insert(platform::fold_case(name));
  boxes.File11.clear();
  if (boxes.Dir4.empty()) return;  // no project: not the folder that the program happens to stand in
  for (const std::string& name : files.list(chisou_men(boxes.Dir4), "*.csv"))
    boxes.File11.push_back({name, selected.contains(platform::fold_case(name))});
}

void Dir4_change(Settings_boxes& boxes, const std::string& folder, Files& files) {
  boxes.Dir4 = folder;
  boxes.File11.clear();
  File11_refresh(boxes, files);
}

void Option5_click(const Settings& settings, Settings_boxes& boxes, int index) {
  boxes.Option5[0] = index == 0;
  boxes.Option5[1] = index == 1;
  if (boxes.Dir10.empty() || is_standard_sheet_folder(settings, boxes.Dir10))
    boxes.Dir10 = sheet_folder_of(settings, index);
}

std::string sheet_folder(const Settings& settings, const Settings_boxes& boxes) {
  if (settings.map_path.empty() || is_standard_sheet_folder(settings, settings.map_path))
    return sheet_folder_of(settings, boxes.Option5[1] ? 1 : 0);
  return settings.map_path;
}

}  // namespace core
