#include "observations/point_file.h"

#include <algorithm>
#include <array>
#include <utility>

#include "drawing/picture_files.h"
#include "drawing/text_split.h"
#include "platform/numbers.h"
#include "platform/text_case.h"
#include "platform/text_files.h"

namespace observations {
namespace {

using platform::join_path;
using platform::Text_line;

constexpr const char* position_form = "#####0.####0";
constexpr std::string_view bmp_ending = "bmp";

std::string_view ending_of(std::string_view name) {
  const std::size_t dot = name.rfind('.');
  return dot == std::string_view::npos ? std::string_view{} : name.substr(dot + 1);
}

// A column of a line without the blanks around it, with the strays that lie in it.
Listed_picture file_column(const Text_line& line) {
  Listed_picture picture;
  const std::size_t first = line.text.find(',');
  if (first == std::string::npos) return picture;
  const std::size_t start = line.text.find_first_not_of(' ', first + 1);
  if (start == std::string::npos) return picture;
  const std::size_t end = std::min(line.text.find(',', start), line.text.size());
  picture.name = platform::trim_text(std::string_view(line.text).substr(start, end - start));
  for (const platform::Unmapped_byte& stray : line.unmapped)
    if (stray.offset >= start && stray.offset < start + picture.name.size())
      picture.strays.push_back({stray.offset - start, stray.byte});
  return picture;
}

Text_line picture_line(std::size_t number, const Listed_picture& picture) {
  Text_line line{platform::print_number(static_cast<int>(number)) + ",", {}};
  for (const platform::Unmapped_byte& stray : picture.strays)
    line.unmapped.push_back({line.text.size() + stray.offset, stray.byte});
  line.text += picture.name + ",";
  return line;
}

}  // namespace

Name_fault name_fault(std::string_view name) {
  if (platform::trim_text(name).empty()) return Name_fault::empty;
  // The longest file of the point is no longer than this.
  if (!drawing::is_file_name(name)) return Name_fault::no_file_name;
  if (name.find(',') != std::string_view::npos) return Name_fault::comma;
  return platform::characters_without_code(name).empty() ? Name_fault::none : Name_fault::no_code;
}

std::string image_folder(const std::string& project_path) {
  return join_path(project_path, "image");
}

std::string point_folder(const std::string& project_path, const std::string& name) {
  return join_path(image_folder(project_path), name);
}

std::string point_path(const std::string& project_path, const std::string& name, std::string_view ending) {
  if (project_path.empty() || name_fault(name) != Name_fault::none) return {};
  return join_path(point_folder(project_path, name), name + std::string(ending));
}

std::string picture_path(const std::string& project_path, const std::string& point, const std::string& picture) {
  if (point_path(project_path, point, {}).empty() || !platform::stays_inside(picture)) return {};
  return join_path(point_folder(project_path, point), picture);
}

// 081115-001,13976712.5,3568123.6, 2       name, X, Y, number of pictures
//  1 ,RIMG0001.bmp,                        number, file
//  2 ,voice.wav,
bool point_r(platform::Files& files, const std::string& path, Point_file& point) {
  if (files.length(path) == 0) return false;
  const std::vector<Text_line> lines = platform::text_lines_of(files.read_bytes(path));
  if (lines.empty()) return false;
  std::array<std::string, drawing::settings_fields> fields;
  drawing::split_csv(lines.front().text, fields);
  Point_file read;
  read.name = platform::trim_text(fields[0]);
  read.X = platform::val(fields[1]);
  read.Y = platform::val(fields[2]);
  for (std::size_t i = 1; i < lines.size(); ++i) {
    Listed_picture picture = file_column(lines[i]);
    if (!picture.name.empty()) read.pictures.push_back(std::move(picture));
  }
  point = std::move(read);
  return true;
}

std::string point_bytes(const Point_file& point) {
  platform::Line_writer writer;
  writer.line(point.name + "," + platform::format_number(point.X, position_form) + "," +
              platform::format_number(point.Y, position_form) + "," +
              platform::print_number(static_cast<int>(point.pictures.size())));
  for (std::size_t i = 0; i < point.pictures.size(); ++i) writer.line(picture_line(i + 1, point.pictures[i]));
  return writer.bytes();
}

std::string point_text_bytes(const std::string& name) {
  platform::Line_writer writer;
  writer.line(name);
  return writer.bytes();
}

bool is_picture_name(std::string_view name) {
  constexpr std::array<std::string_view, 5> endings{bmp_ending, "jpg", "jpeg", "jpe", "png"};
  const std::string ending = platform::fold_case(ending_of(name));
  return std::find(endings.begin(), endings.end(), ending) != endings.end();
}

bool is_sound_name(std::string_view name) {
  return platform::same_name(ending_of(name), "wav");
}

bool is_bmp_name(std::string_view name) {
  return platform::same_name(ending_of(name), bmp_ending);
}

std::string stored_name(std::string_view name) {
  if (is_sound_name(name) || is_bmp_name(name)) return std::string(name);
  const std::size_t dot = name.rfind('.');
  return std::string(name.substr(0, dot)) + "." + std::string(bmp_ending);
}

std::string leaf_of(std::string_view path) {
  const std::size_t last = path.find_last_of("\\/");
  return std::string(last == std::string_view::npos ? path : path.substr(last + 1));
}

}  // namespace observations
