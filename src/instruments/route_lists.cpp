#include "instruments/route_lists.h"

#include <algorithm>
#include <set>

#include "instruments/routes.h"
#include "platform/code_page_932.h"
#include "platform/text_case.h"
#include "platform/text_files.h"

namespace instruments {
namespace {

// A line of keiro_out.dat, the name of a file in \chisou_men\gps:
//   081115.txt
// A line of keiro_out2.dat, a full path:
//   C:\logs\081115.NME

// What tells one path from another: names are the same in any case, and "/" is as good as "\".
std::string key_of(const std::string& path) {
  std::string key = platform::fold_case(path);
  std::replace(key.begin(), key.end(), '/', '\\');
  return key;
}

// The files of a folder, ticked where the list names `in_list` of them.
template <typename In_list>
std::vector<core::File_choice> choices(platform::Files& files, const std::string& folder, const char* pattern,
                                       const std::string& list, In_list in_list) {
  std::set<std::string> drawn;
  for (const std::string& line : platform::read_lines(files, list)) drawn.insert(key_of(line));
  std::vector<core::File_choice> found;
  for (const std::string& name : files.list(folder, pattern))
    found.push_back({name, drawn.count(key_of(in_list(name))) > 0});
  return found;
}

bool list_w(platform::Files& files, platform::Prompts& prompts, const std::string& path,
            const std::vector<std::string>& lines) {
  platform::Line_writer writer;
  for (const std::string& line : lines) {
    if (!platform::characters_without_code(line).empty()) {
      prompts.message("この名前には保存できない文字があります: " + line,
                      "This name has characters that can't be stored: " + line);
      return false;
    }
    writer.line(line);
  }
  files.write_whole(path, writer.bytes());
  return true;
}

std::string folder_of(const std::string& path) {
  const std::size_t end = path.find_last_of("\\/");
  return end == std::string::npos ? std::string() : path.substr(0, end);
}

}  // namespace

void frm_keiro_load(platform::Files& files, const core::Settings& settings, Route_boxes& boxes) {
  boxes.Dir1 = gps_folder(settings.project_path);
  boxes.List1 = choices(files, boxes.Dir1, "*.txt", keiro_out_path(settings.project_path),
                        [](const std::string& name) { return name; });
}

void Dir1_change(platform::Files& files, const core::Settings& settings, Route_boxes& boxes,
                 const std::string& folder) {
  boxes.Dir1 = folder;
  boxes.List1 = choices(files, folder, "*.nme", keiro_out2_path(settings.project_path),
                        [&](const std::string& name) { return platform::join_path(folder, name); });
}

void frm_keiroNMEA_load(platform::Files& files, const core::Settings& settings, Route_boxes& boxes) {
  const std::vector<std::string> drawn = platform::read_lines(files, keiro_out2_path(settings.project_path));
  const std::string last = drawn.empty() ? std::string() : folder_of(drawn.front());
  const bool is_there = !last.empty() && files.folder_exists(last);
  Dir1_change(files, settings, boxes, is_there ? last : gps_folder(settings.project_path));
}

bool frm_keiro_Command1(platform::Files& files, platform::Prompts& prompts, const core::Settings& settings,
                        const Route_boxes& boxes) {
  std::vector<std::string> lines;
  for (const core::File_choice& choice : boxes.List1)
    if (choice.selected) lines.push_back(choice.name);
  return list_w(files, prompts, keiro_out_path(settings.project_path), lines);
}

bool frm_keiroNMEA_Command1(platform::Files& files, platform::Prompts& prompts, const core::Settings& settings,
                            const Route_boxes& boxes) {
  std::vector<std::string> lines;
  for (const core::File_choice& choice : boxes.List1)
    if (choice.selected) lines.push_back(platform::join_path(boxes.Dir1, choice.name));
  return list_w(files, prompts, keiro_out2_path(settings.project_path), lines);
}

void Command3(Route_boxes& boxes) {
  for (core::File_choice& choice : boxes.List1) choice.selected = true;
}

}  // namespace instruments
