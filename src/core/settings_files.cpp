#include "core/settings_files.h"

#include <algorithm>
#include <array>
#include <initializer_list>
#include <utility>

#include "core/project_folders.h"
#include "drawing/text_split.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace core {

using platform::Files;
using platform::join_path;
using platform::Line_reader;
using platform::Line_writer;
using platform::number_text;
using platform::print_number;
using platform::read_lines;

namespace {

// dempath.dat, BoringOut.set, Rockview3d.set, setpath2.dat and yoshiki.ini hold one whole line each:
//   C:\DEM50\DATA
std::string one_line_r(Files& files, const std::string& path) {
  return Line_reader(read_lines(files, path)).whole_line();
}

void one_line_w(Files& files, const std::string& path, const std::string& text) {
  Line_writer writer;
  writer.line(text);
  files.write_whole(path, writer.bytes());
}

int number_field(Line_reader& reader) {
  return platform::val(reader.field()) != 0 ? 1 : 0;
}

}  // namespace

std::string dempath_r(Files& files, const std::string& program_path) {
  return one_line_r(files, join_path(program_path, "dempath.dat"));
}

void dempath_w(Files& files, const std::string& program_path, const std::string& folder) {
  one_line_w(files, join_path(program_path, "dempath.dat"), folder);
}

std::string boring_out_r(Files& files, const std::string& program_path) {
  return one_line_r(files, join_path(program_path, "BoringOut.set"));
}

void boring_out_w(Files& files, const std::string& program_path, const std::string& folder) {
  one_line_w(files, join_path(program_path, "BoringOut.set"), folder);
}

std::string rockview3d_r(Files& files, const std::string& program_path) {
  return one_line_r(files, join_path(program_path, "Rockview3d.set"));
}

void rockview3d_w(Files& files, const std::string& program_path, const std::string& folder) {
  one_line_w(files, join_path(program_path, "Rockview3d.set"), folder);
}

std::string setpath2_r(Files& files, const std::string& program_path) {
  return one_line_r(files, join_path(program_path, "setpath2.dat"));
}

void setpath2_w(Files& files, const std::string& program_path, const std::string& folder) {
  one_line_w(files, join_path(program_path, "setpath2.dat"), folder);
}

std::string yoshiki_r(Files& files, const std::string& project_path) {
  return one_line_r(files, chisou_men(project_path, "yoshiki.ini"));
}

void yoshiki_w(Files& files, const std::string& project_path, const std::string& form) {
  one_line_w(files, chisou_men(project_path, "yoshiki.ini"), form);
}

// ProAtlas.ini:
//   ProAtlasSV.Map
std::string pro_atlas_class(Files& files, const std::string& program_path) {
  const std::string name = one_line_r(files, join_path(program_path, "ProAtlas.ini"));
  return name.empty() ? "ProAtlasSV.Map" : name;
}

// RockviewPath.dat, one field a line:
//   1 c:                Drive9
//   2 c:\model          Dir9
//   3 tani3d            Text11
//   4 1                 Check4
//   5 0                 Check11
//   6 30                Text15
void rockview_path_r(Files& files, const std::string& program_path, Rockview_path& job) {
  Line_reader reader(read_lines(files, join_path(program_path, "RockviewPath.dat")));
  for (std::string* text : {&job.Drive9, &job.Dir9, &job.Text11})
    if (!reader.end()) *text = reader.field();
  for (int* check : {&job.Check4, &job.Check11})
    if (!reader.end()) *check = number_field(reader);
  if (!reader.end()) job.Text15 = reader.field();
}

void rockview_path_w(Files& files, const std::string& program_path, const Rockview_path& job) {
  Line_writer writer;
  writer.line(job.Drive9);
  writer.line(job.Dir9);
  writer.line(job.Text11);
  writer.line(number_text(job.Check4));
  writer.line(number_text(job.Check11));
  writer.line(job.Text15);
  files.write_whole(join_path(program_path, "RockviewPath.dat"), writer.bytes());
}

// danmen.dat:
//   A-A',2                  name, number of vertices
//    1250.5 , 3300.25       x, y of the first end
//    1875 ,-12.5            x, y of the second
bool danmen_line_r(Files& files, const std::string& program_path, Section_line& line) {
  const std::vector<std::string> lines = read_lines(files, join_path(program_path, "danmen.dat"));
  if (lines.size() < 3) return false;
  std::array<std::string, 2> first, second;
  drawing::split_csv(lines[1], first);
  drawing::split_csv(lines[2], second);
  line = {platform::val(first[0]), platform::val(first[1]), platform::val(second[0]), platform::val(second[1])};
  return true;
}

void danmen_line_w(Files& files, const std::string& program_path, const Section_line& line) {
  Line_writer writer;
  writer.line("A-A',2");
  writer.line(print_number(line.x1) + "," + print_number(line.y1));
  writer.line(print_number(line.x2) + "," + print_number(line.y2));
  files.write_whole(join_path(program_path, "danmen.dat"), writer.bytes());
}

namespace {

// RSPORT.dat, one text a line:
//    1 04                       Combo8
//    2 007                      Text15, the last three characters of "000" and the number
//    3 c:                       DriveGPS
//    4 c:\gps                   DirGPS
//    5 0612.csv                 FileGPS
//    6 c:                       DriveImage
//    7 c:\photo                 DirImage
//    8 p001.jpg                 FileImage
//    9 c:                       DriveGPS2
//   10 c:\gps2                  DirGPS2
//   11 0612.nme                 FileGPS2
//   12 -7.2                     Text1
//   13 1                        Check3
constexpr std::string Rsport::*rsport_texts[] = {
    &Rsport::Combo8,   &Rsport::Text15,    &Rsport::DriveGPS,  &Rsport::DirGPS,  &Rsport::FileGPS,  &Rsport::DriveImage,
    &Rsport::DirImage, &Rsport::FileImage, &Rsport::DriveGPS2, &Rsport::DirGPS2, &Rsport::FileGPS2, &Rsport::Text1};

// The last three characters of "000" and the number.
std::string three_digits(const std::string& number) {
  std::string text = "000" + platform::trim_text(number);
  std::size_t at = text.size();
  for (int characters = 0; characters < 3; ++characters) {
    --at;
    while (at > 0 && (static_cast<unsigned char>(text[at]) & 0xc0) == 0x80) --at;
  }
  return text.substr(at);
}

void rsport_lines_w(Files& files, const std::string& program_path, Rsport link, bool all) {
  link.Text15 = three_digits(link.Text15);
  Line_writer writer;
  int count = 0;
  for (const auto text : rsport_texts)
    if (all || ++count <= 2) writer.line(link.*text);
  if (all) writer.line(number_text(link.Check3));
  files.write_whole(join_path(program_path, "RSPORT.dat"), writer.bytes());
}

}  // namespace

void rsport_r(Files& files, const std::string& program_path, Rsport& link) {
  Line_reader reader(read_lines(files, join_path(program_path, "RSPORT.dat")));
  for (const auto text : rsport_texts)
    if (!reader.end()) link.*text = reader.whole_line();
  if (!reader.end()) link.Check3 = number_field(reader);
}

void rsport_w(Files& files, const std::string& program_path, const Rsport& link) {
  rsport_lines_w(files, program_path, link, true);
}

void rsport_w2(Files& files, const std::string& program_path, const Rsport& link) {
  rsport_lines_w(files, program_path, link, false);
}

// psettei.dat, one field a line:
//   c:\photo\new        Dir1
//   c:\photo\kept       Dir2
void psettei_r(Files& files, const std::string& program_path, Picture_folders& folders) {
  Line_reader reader(read_lines(files, join_path(program_path, "psettei.dat")));
  for (std::string* box : {&folders.Dir1, &folders.Dir2}) {
    if (reader.end()) return;
    std::string folder = reader.field();
    if (!folder.empty() && files.folder_exists(folder)) *box = std::move(folder);
  }
}

void psettei_w(Files& files, const std::string& program_path, const Picture_folders& folders) {
  Line_writer writer;
  writer.line(folders.Dir1);
  writer.line(folders.Dir2);
  files.write_whole(join_path(program_path, "psettei.dat"), writer.bytes());
}

namespace {

std::string zahyo_path(const std::string& model_path) {
  return chisou_men(model_path, "zahyo.dat");
}

void degrees_w(Line_writer& writer, const Degrees& angle, std::string_view seconds_form) {
  writer.line(number_text(angle.degrees));
  writer.line(number_text(angle.minutes));
  writer.line(platform::format_number(angle.seconds, seconds_form));
}

void lines_w(Line_writer& writer, std::initializer_list<std::string_view> lines) {
  for (const std::string_view line : lines) writer.line(line);
}

// A whole number of a file that another program may have written; bounded, so that it fits.
int whole_number(const std::string& line) {
  return static_cast<int>(std::clamp(platform::fix(platform::val(line)), -1e9, 1e9));
}

Degrees degrees_r(const std::vector<std::string>& lines, std::size_t line) {
  return {whole_number(lines[line - 1]), whole_number(lines[line]), platform::val(lines[line + 1])};
}

}  // namespace

// zahyo.dat, forty whole lines:
//    1 120.5           left          9 139      left longitude: degrees     22 C:\DEM50   dem_folder
//    2 80              top          10 30       minutes                     23 30
//    3 900             right        11 12.25    seconds                     24 30
//    4 640             bottom       12 35 20 0.5  top latitude              25 1
//    5 (empty)                      15 ...      right longitude             26 True ... 32 False
//    6 0.5                          18 ...      bottom latitude             36 False 37 False
//    7 False  8 True                21 0                                    40 0    datum_mode
// Lines 5 to 8 and 21 to 39 but for the folder are constants for Rockview3D.
void zahyo_w(Files& files, const std::string& model_path, const Zahyo& range) {
  Line_writer writer;
  for (const double corner : {range.left, range.top, range.right, range.bottom}) writer.line(number_text(corner));
  lines_w(writer, {"", "0.5", "False", "True"});
  degrees_w(writer, range.left_lon, "#####0.##0");
  degrees_w(writer, range.top_lat, "######0.##0");
  degrees_w(writer, range.right_lon, "#####0.##0");
  degrees_w(writer, range.bottom_lat, "######0.##0");
  lines_w(writer, {"0", range.dem_folder, "30", "30", "1"});
  lines_w(writer, {"True", "False", "True", "False", "True", "False", "False"});
  lines_w(writer, {"", "", "", "False", "False", "", ""});
  writer.line(number_text(range.datum_mode));
  files.write_whole(zahyo_path(model_path), writer.bytes());
}

std::vector<std::string> zahyo_lines_r(Files& files, const std::string& model_path) {
  std::vector<std::string> lines = read_lines(files, zahyo_path(model_path));
  if (lines.size() > zahyo_limit) lines.resize(zahyo_limit);
  return lines;
}

bool zahyo_r(Files& files, const std::string& model_path, Zahyo& range) {
  const std::vector<std::string> lines = zahyo_lines_r(files, model_path);
  if (lines.size() < 20) return false;
  Zahyo read;
  read.left = platform::val(lines[0]);
  read.top = platform::val(lines[1]);
  read.right = platform::val(lines[2]);
  read.bottom = platform::val(lines[3]);
  read.left_lon = degrees_r(lines, 9);
  read.top_lat = degrees_r(lines, 12);
  read.right_lon = degrees_r(lines, 15);
  read.bottom_lat = degrees_r(lines, 18);
  if (lines.size() >= 22) read.dem_folder = lines[21];
  if (lines.size() >= 40) read.datum_mode = platform::val(lines[39]) == 1 ? 1 : 0;
  range = read;
  return true;
}

}  // namespace core
