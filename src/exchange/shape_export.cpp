#include "exchange/shape_export.h"

#include "drawing/picture_files.h"
#include "exchange/file_set.h"
#include "exchange/gis_shapefile.h"
#include "exchange/shape_list.h"
#include "exchange/shapefile.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace exchange {

using platform::Files;
using platform::join_path;

namespace {

constexpr platform::Message bad_name{"ファイル名に使えない名前です。", "This name can't be used as a file name."};
constexpr platform::Message no_folder{"保存先のフォルダがありません。", "The folder to save to isn't there."};
constexpr platform::Message no_shape{"出力する図形がありません。", "There is no shape to write."};
constexpr platform::Message gis_refuses{
    "この図形はGIS用のShapeファイルにできません。線には2点以上、範囲には面積が必要です。何も書き込みませんでした。",
    "This shape can't be a Shapefile for GIS programs: a line needs two points or more, an enclosure an area. Nothing "
    "was written."};

// What a file holds, which a shape is laid over; nothing for a missing one.
std::string content_of(Files& files, const std::string& path) {
  return files.length(path) == 0 ? std::string{} : files.read_bytes(path);
}

// "name" of "folder\name".
std::string last_name(const std::string& base) {
  const std::size_t separator = base.find_last_of("\\/");
  return separator == std::string::npos ? base : base.substr(separator + 1);
}

void write_own_set(Files& files, const std::string& program_path, const std::vector<Shape>& shapes,
                   const std::string& base) {
  Shapefile file{content_of(files, base + ".shp"), content_of(files, base + ".shx")};
  for (const Shape& shape : shapes) shape_out(file, shape);
  write_together(files, {{base + ".shp", file.shp}, {base + ".shx", file.shx}}, New_files::stay);
  files.copy(join_path(program_path, "def.dbf"), base + ".dbf");
}

void write_gis_set(Files& files, const Gis_shapefile& set, const std::string& base) {
  const std::string gis = base + "_gis";
  write_together(files,
                 {{gis + ".dbf", set.dbf},
                  {gis + ".cpg", set.cpg},
                  {gis + ".prj", set.prj},
                  {gis + ".shx", set.shx},
                  {gis + ".shp", set.shp}},
                 New_files::go);
}

// Both dialogs: the list is judged whole before the first file is written.
bool convert(const core::Settings& settings, const std::string& input, const std::string& base, bool with_gis,
             Files& files, platform::Prompts& prompts, platform::Clock& clock) {
  const std::vector<Shape> shapes = shape_list_r(files, input);
  if (shapes.empty()) {
    prompts.message(no_shape);
    return false;
  }
  if (with_gis && !gis_takes(shapes.back())) {
    prompts.message(gis_refuses);
    return false;
  }
  write_own_set(files, settings.program_path, shapes, base);
  if (with_gis)
    write_gis_set(files, gis_shapefile(shapes.back(), settings.datum_mode, last_name(base), clock.now()), base);
  return true;
}

// One text for both languages.
void tell_made(platform::Prompts& prompts, const std::string& base) {
  prompts.message(base + "を作成しました。", base + "を作成しました。");
}

}  // namespace

bool shape_convert(Files& files, const std::string& program_path, const std::string& input, const std::string& base) {
  const std::vector<Shape> shapes = shape_list_r(files, input);
  if (shapes.empty()) return false;
  write_own_set(files, program_path, shapes, base);
  return true;
}

// shape.set holds one whole line:
//   C:\GIS\SHAPE
std::string shape_set_r(Files& files, const std::string& program_path) {
  return platform::Line_reader(platform::read_lines(files, join_path(program_path, "shape.set"))).whole_line();
}

void shape_set_w(Files& files, const std::string& program_path, const std::string& folder) {
  platform::Line_writer writer;
  writer.line(folder);
  files.write_whole(join_path(program_path, "shape.set"), writer.bytes());
}

std::string drive_of(const std::string& folder) {
  return folder.size() >= 2 && folder[1] == ':' ? folder.substr(0, 2) : std::string{};
}

void frm_Shape_load(const core::Settings& settings, Shape_boxes& boxes, Files& files) {
  const std::string last = shape_set_r(files, settings.program_path);
  boxes.Dir1 = !last.empty() && files.folder_exists(last) ? last : settings.project_path;
  boxes.Drive1 = drive_of(boxes.Dir1);
}

bool frm_Shape_ok(const core::Settings& settings, const Shape_boxes& boxes, Files& files, platform::Prompts& prompts,
                  platform::Clock& clock) {
  const std::string list = tmp_path(settings.program_path);
  const std::string name = platform::trim_text(boxes.Text1);
  if (files.length(list) == 0 || name.empty()) return false;
  if (!drawing::is_file_name(name)) {
    prompts.message(bad_name);
    return false;
  }
  if (!files.folder_exists(boxes.Dir1)) {
    prompts.message(no_folder);
    return false;
  }
  const std::string base = join_path(boxes.Dir1, name);
  if (!convert(settings, list, base, boxes.Check1, files, prompts, clock)) return false;
  shape_set_w(files, settings.program_path, boxes.Dir1);
  tell_made(prompts, base);
  return true;
}

bool frm_ShapeMake_ok(const core::Settings& settings, const Shape_make_boxes& boxes, Files& files,
                      platform::Prompts& prompts, platform::Clock& clock) {
  if (boxes.File1.empty()) return false;
  const std::string input = join_path(boxes.Dir1, boxes.File1);
  const std::string base = input.substr(0, input.find('.'));
  if (last_name(base).empty()) {  // a name that begins with the "." leaves no name for the set
    prompts.message(bad_name);
    return false;
  }
  if (!convert(settings, input, base, boxes.Check1, files, prompts, clock)) return false;
  tell_made(prompts, base);
  return true;
}

}  // namespace exchange
