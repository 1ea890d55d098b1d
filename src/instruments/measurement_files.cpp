#include "instruments/measurement_files.h"

#include <array>

#include "core/language.h"
#include "core/save_messages.h"
#include "instruments/nmea.h"
#include "instruments/tiltvane_line.h"
#include "observations/record_line.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_files.h"
#include "platform/utf8.h"

namespace instruments {
namespace {

using observations::column_of;
using platform::Message;

struct Mark_name {
  std::string_view mark, token;
};

// clang-format off
constexpr std::array<Mark_name, 8> mark_names{{
    {"＋", "Cross"},
    {"×", "DCross"},
    {"●", "Circle"},
    {"■", "Rect"},
    {"◆", "Spade"},
    {"▲", "Triangle"},
    {"▼", "RTriangle"},
    {"★", "Star"},
}};
// clang-format on

// 1,L,S47W,49S,3.5,N30E,12,2008/11/15 10:20:30,＋,0,0,S54W,49S,3.5,N37E,12,7.0,3541.1234,N,13945.6789,E
// 1 2 3    4   5   6    7  8                   9  10 11 12 13  14  15   16 17  18        19 20         21
std::string line_to_save(const std::string& line, const std::string& Text1) {
  return column_of(line, 3) == no_plane ? line : reconverted_line(line, Text1);
}

std::string bytes_to_save(const std::vector<std::string>& lines, bool japanese, const std::string& Text1) {
  platform::Line_writer writer;
  writer.line(measurement_header(japanese));
  for (const std::string& line : lines) writer.line(line_to_save(line, Text1));
  return writer.bytes();
}

bool asked_twice(platform::Prompts& prompts, const std::string& name) {
  const std::string japanese = name + "を削除しますか。", english = name + " Delete true?";
  if (!prompts.yes_no(Message{japanese.c_str(), english.c_str()})) return false;
  const std::string japanese_again = name + "を本当に削除しますか。復活はできません。";
  const std::string english_again = english + "It is not possible to revive. ";
  return prompts.yes_no(Message{japanese_again.c_str(), english_again.c_str()});
}

}  // namespace

std::unique_ptr<platform::Journal_operation> undoable(const Data_context& context, const char* japanese,
                                                      const char* english) {
  return context.journal ? std::make_unique<platform::Journal_operation>(*context.journal, japanese, english) : nullptr;
}

std::string tiltvane_folder(const std::string& program_path, const std::string& name) {
  const std::string folder = platform::join_path(program_path, "Tiltvane");
  return name.empty() ? folder : platform::join_path(folder, name);
}

std::vector<std::string> saved_files(platform::Files& files, const std::string& program_path) {
  return files.list(tiltvane_folder(program_path), "*.csv");
}

void Tiltvane_out(Measurement_list& list, platform::Files& files, const std::string& path) {
  Measurement_list read;
  read.file = path;
  const bool whole = each_log_line(files, path, [&](std::string_view bytes) {
    std::string line = platform::decode_932(bytes);
    if (is_measurement_header(line)) return true;
    if (line.find("END") != std::string::npos) return false;
    if (platform::character_count(line) < shortest_line) return true;
    read.shortened = static_cast<int>(read.rows.size()) == list_limit;
    if (!read.shortened) read.rows.push_back({std::move(line), false});
    return !read.shortened;
  });
  if (!whole) read.rows.clear();
  list = std::move(read);
}

void Tiltvane_out2(Measurement_list& list, platform::Files& files, const std::string& program_path) {
  Tiltvane_out(list, files, platform::join_path(program_path, "TMP2.TMP"));
  list.memory = true;
}

bool 再表示(Measurement_list& list, const Data_context& context, const std::string& FileImage) {
  if (FileImage.empty()) {
    if (list.memory) context.prompts.message(memory_as_it_is);
    return false;
  }
  Tiltvane_out(list, context.files, tiltvane_folder(context.settings.program_path, FileImage));
  return true;
}

std::vector<std::string> ticked_lines(const Measurement_list& list) {
  std::vector<std::string> lines;
  for (const Measurement_row& row : list.rows)
    if (row.ticked) lines.push_back(row.line);
  return lines;
}

std::string Command10(const Data_context& context, const Measurement_list& list, const std::string& Text1) {
  const std::vector<std::string> lines = ticked_lines(list);
  if (lines.empty()) {
    context.prompts.message(no_row_to_save);
    return {};
  }
  const core::Settings& settings = context.settings;
  std::string name =
      measurement_file_name(column_of(lines.front(), 1), column_of(lines.back(), 1), context.clock.now());
  const std::string path = tiltvane_folder(settings.program_path, name);
  try {
    if (!platform::stays_inside(name)) throw platform::File_failure(name + " can't be the name of a file");
    context.files.make_folder(tiltvane_folder(settings.program_path));
    context.files.write_whole(path, bytes_to_save(lines, core::is_japanese(settings.language), Text1));
  } catch (const platform::File_failure& failure) {
    core::write_failed(context.prompts, path, failure);
    return {};
  }
  context.prompts.message(name + "として保存しました。", "Saved Filename is [" + name + "]");
  return name;
}

bool Command1(const Data_context& context, const std::string& FileImage) {
  if (!platform::stays_inside(FileImage) || !asked_twice(context.prompts, FileImage)) return false;
  const std::string path = tiltvane_folder(context.settings.program_path, FileImage);
  const auto operation = undoable(context, "クリノメータファイルの削除", "Delete clinometer file");
  if (context.files.remove(path)) return true;
  context.prompts.message("削除できません: " + path, "The file can't be deleted: " + path);
  return false;
}

std::string_view mark_token(std::string_view mark) {
  for (const Mark_name& name : mark_names)
    if (name.mark == mark) return name.token;
  return {};
}

}  // namespace instruments
