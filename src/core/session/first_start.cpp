#include "core/session/first_start.h"

#include <algorithm>
#include <vector>

#include "core/language.h"
#include "core/project_folders.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/left_over.h"
#include "platform/text_files.h"

namespace session {

using platform::File_failure;
using platform::Files;
using platform::join_path;
using platform::Prompts;

namespace {

constexpr const char* answer_name = "sample.set";
constexpr const char* settings_name = "settei.ini";
// Lies in the sample's project, so that the folder is known again.
constexpr const char* project_marker = "sample.txt";
constexpr const char* marker_line = "This is the sample project of Terranote. The whole folder may be deleted.";
constexpr int most_samples = 99;

// settei.ini keeps the project folder in code page 932, in a field that a comma or a quote would end.
bool settings_can_name(const std::string& path) {
  return path.find_first_of(",\"") == std::string::npos && platform::characters_without_code(path).empty();
}

bool is_there(Files& files, const std::string& path) {
  return files.time_stamp(path) != 0;
}

// Makes a folder and those above it that are missing. False when it isn't there then.
bool folders_made(Files& files, const std::string& path) {
  const std::size_t last = path.find_last_of("\\/");
  if (last != std::string::npos && last > 0 && !files.folder_exists(path.substr(0, last)))
    folders_made(files, path.substr(0, last));
  return files.make_folder(path);
}

// The files of one folder, but for those of the names left out.
void copy_missing(Files& files, const std::string& from, const std::string& to,
                  const std::vector<std::string>& left_out = {}) {
  for (const std::string& name : files.list(from, "*"))
    if (std::find(left_out.begin(), left_out.end(), name) == left_out.end() && !is_there(files, join_path(to, name)))
      files.copy(join_path(from, name), join_path(to, name));
}

// dempath.dat is written by every start that could write the folder.
bool never_started(Files& files, const std::string& program_path) {
  return !is_there(files, join_path(program_path, "dempath.dat")) &&
         !is_there(files, join_path(program_path, "Language.set"));
}

// Temporary files of a save that broke off don't count.
bool holds_nothing(Files& files, const std::string& folder) {
  const std::vector<std::string> names = files.list(folder, "*");
  return std::all_of(names.begin(), names.end(),
                     [](const std::string& name) { return platform::process_of_temporary(name) != 0; });
}

// A name is free where nothing is, where an earlier sample is, and where a folder holds no file: a making that was
// killed may have left it.
bool is_free(Files& files, const std::string& folder) {
  if (files.folder_exists(folder) && holds_nothing(files, folder)) return true;
  const std::vector<std::string> lines = platform::read_lines(files, join_path(folder, project_marker));
  if (!lines.empty() && lines.front() == marker_line) return true;
  return !files.folder_exists(folder) && !is_there(files, folder);
}

std::string free_folder(Files& files, const std::string& wanted) {
  if (is_free(files, wanted)) return wanted;
  for (int number = 2; number <= most_samples; ++number) {
    std::string numbered = wanted + " " + std::to_string(number);
    if (is_free(files, numbered)) return numbered;
  }
  return {};
}

void remember_answer(Files& files, const std::string& program_path, const std::string& answer,
                     const std::string& project = {}) {
  platform::Line_writer writer;
  writer.line(answer);
  if (!project.empty()) writer.line(project);
  files.write_whole(join_path(program_path, answer_name), writer.bytes());
}

bool asked_for(Prompts& prompts, const std::string& project) {
  const std::string japanese =
      "サンプルを入れますか。\n\n架空の土地の地図と約 200 件の観測データです。すぐに地図を開いて試せます。\n\n"
      "地図 (約 50 MB) はプログラムフォルダに、プロジェクトは次のフォルダに入ります:\n" +
      project + "\n\n今あるファイルは変わりません。";
  const std::string english =
      "Do you want the sample?\n\nIt has maps of an invented country and some 200 observations, so that you can open a "
      "map and try things at once.\n\nThe maps (some 50 MB) go into the program folder, the project into\n" +
      project + "\n\nNone of your files is changed.";
  return prompts.yes_no({japanese.c_str(), english.c_str()});
}

void tell_failed_sample(Prompts& prompts, const std::string& reason) {
  prompts.message("サンプルを入れられませんでした: " + reason, "The sample could not be put in place: " + reason);
}

// Lines of settei.ini that name folders; the other lines stay as the sample's maker wrote them.
constexpr std::size_t frame_folder_line = 1, project_line = 3, map_line = 25;

// The sample's own settings with the folders where it lies now. Nothing is written of settings that can't be read.
void sample_settings(const std::string& from_program, const std::string& program_path, const std::string& project,
                     Files& files) {
  const std::string from = join_path(from_program, settings_name);
  const std::vector<platform::Text_line> lines = platform::text_lines_of(files.read_bytes(from));
  if (lines.size() < map_line) throw File_failure(from + " holds no whole settings");
  platform::Line_writer writer;
  for (std::size_t number = 1; number <= lines.size(); ++number) {
    if (number == frame_folder_line)
      writer.line(program_path);
    else if (number == project_line)
      writer.line(project);
    else if (number == map_line)
      writer.line(files.native_path(join_path(program_path, "map")));
    else
      writer.line(lines[number - 1].text);
  }
  files.write_whole(join_path(program_path, settings_name), writer.bytes());
}

}  // namespace

bool program_folder_make(const First_start& start, Files& files, Prompts& prompts) {
  const std::string program_path = files.native_path(start.place.folder);
  if (!folders_made(files, program_path)) {
    prompts.message("プログラムフォルダを作れないため、設定を保存できません: " + program_path,
                    "The program folder can't be made, so settings can't be kept: " + program_path);
    return false;
  }
  try {
    copy_missing(files, start.place.templates, program_path);
    if (never_started(files, program_path)) core::language_w(files, program_path, start.language);
    return true;
  } catch (const File_failure& failure) {
    prompts.message(std::string("プログラムフォルダに書き込めないため、設定を保存できません: ") + failure.what(),
                    std::string("The program folder can't be written, so settings can't be kept: ") + failure.what());
    return false;
  }
}

std::string sample_project_folder(const First_start& start, Files& files) {
  const std::string below_program = files.native_path(join_path(start.place.folder, "sample"));
  if (!settings_can_name(below_program)) return {};  // nor can they name the maps, which lie there too
  std::string wanted = files.native_path(join_path(start.documents, "Terranote sample"));
  if (start.documents.empty() || !files.folder_exists(start.documents) || !settings_can_name(wanted))
    wanted = below_program;
  return free_folder(files, wanted);
}

// sample.set, the answer and the folder of the project:
//   Yes
//   /home/sato/Documents/Terranote sample
void sample_offer(const First_start& start, Files& files, Prompts& prompts) {
  const std::string program_path = files.native_path(start.place.folder);
  if (!start.make_sample || files.length(join_path(program_path, settings_name)) > 0 ||
      files.length(join_path(program_path, answer_name)) > 0)
    return;
  const std::string project = sample_project_folder(start, files);
  if (project.empty()) return;
  try {
    Sample_making making = Sample_making::stopped;
    if (asked_for(prompts, project))
      making =
          start.make_sample(core::is_japanese(core::language_r(files, program_path)),
                            [&](const std::string& folder) { sample_place(folder, program_path, project, files); });
    if (making == Sample_making::made) remember_answer(files, program_path, "Yes", project);
    if (making == Sample_making::stopped) remember_answer(files, program_path, "No");
  } catch (const File_failure& failure) {
    tell_failed_sample(prompts, failure.what());
  }
}

void sample_place(const std::string& folder, const std::string& program_path, const std::string& project,
                  Files& files) {
  const std::string from_program = join_path(folder, "program"), from_project = join_path(folder, "project");
  // Its maker writes the settings last.
  if (files.length(join_path(from_program, settings_name)) == 0) throw File_failure(folder + " holds no whole sample");
  if (!folders_made(files, project)) throw File_failure(project + " could not be made");
  if (!is_there(files, join_path(project, project_marker))) {
    platform::Line_writer marker;
    marker.line(marker_line);
    files.write_whole(join_path(project, project_marker), marker.bytes());
  }
  core::project_folders_make(files, project);
  copy_missing(files, core::chisou_men(from_project), core::chisou_men(project));
  core::program_folders_make(files, program_path);
  for (const char* part : {"map", "map50000", "mps"})
    copy_missing(files, join_path(from_program, part), join_path(program_path, part));
  copy_missing(files, from_program, program_path, {settings_name, "Language.set"});
  if (files.length(join_path(program_path, settings_name)) == 0)
    sample_settings(from_program, program_path, project, files);
}

std::string first_start(const First_start& start, Files& files, Prompts& prompts) {
  const platform::Program_place& place = start.place;
  if (place.templates.empty()) return place.folder;
  prompts.use_language(start.language);
  if (place.folder.empty()) {
    prompts.message("ホームフォルダ (環境変数 HOME) がないため、プログラムフォルダを置けません。",
                    "There is no home folder (the variable HOME), so the program folder has no place.");
    return {};
  }
  if (files.length(join_path(place.folder, "Language.set")) > 0)
    prompts.use_language(core::language_r(files, place.folder));
  if (program_folder_make(start, files, prompts)) sample_offer(start, files, prompts);
  return files.native_path(place.folder);
}

}  // namespace session
