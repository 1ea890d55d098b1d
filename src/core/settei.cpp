#include "core/settei.h"

#include <array>
#include <cmath>
#include <optional>

#include "core/project_folders.h"
#include "platform/numbers.h"
#include "platform/text_case.h"
#include "platform/text_files.h"

namespace core {

using platform::Files;
using platform::Line_reader;
using platform::Line_writer;
using platform::Prompts;

namespace {

constexpr platform::Message do_the_settings = {"基本設定を行なって下さい", "Please Do [BasicSetting]"};

// settei.ini, one real line each:
//    1 C:\waku                    Dir3       folder of the input frame file
//    2 yoshiki.xls                File4      its name
//    3 C:\genba\tani              Dir4       the project folder
//    4 04                         Combo4     GPS port
//    5 9600                       Combo5     its speed
//    6 True                       Option4    numbering: by entry date
//    7 False                                 by third-level mesh
//    8 False                                 typed in
//    9 True                       Option5    sheet folder \map
//   10 False                                 \map50000
//   11 sheet1                     Text3      sheet name of the input sheet
//   12 B4                                    cell of the map name
//   13 B5                                    of the latitude
//   14 B6                                    of the longitude
//   15 B7                                    of the point number
//   16 True                       Option6    Tokyo Datum
//   17 False                      Option7    WGS-84
//   18 tani.csv,one.csv           File11     selected registration files, the first is in use
//   19 1000                       Text5      map cut: half range X, metres
//   20 1000                       Text6      half range Y, metres
//   21 500                        Text7      scale bar, metres
//   22 100                        Text8      its division, metres
//   23 6000                       Text9      picture width
//   24 6000                       Text10     picture height
//   25 C:\Terranote\map           Dir10      map folder of the sheet list
//   26 True                       Option8    registration number shown
//   27 False                      Option9    strike and dip measurement number shown
// Lines 18, 25, 26 and 27 are whole lines, the others end at a comma.

bool is_number(std::string_view text) {
  return text.find_first_of("0123456789") != std::string_view::npos &&
         text.find_first_not_of("0123456789+-. ") == std::string_view::npos;
}

// What a flag line says; nothing when it is neither a flag nor a number.
std::optional<bool> flag_of(const std::string& text) {
  const std::string word = platform::fold_case(platform::trim_text(text));
  if (word == "true" || word == "#true#") return true;
  if (word == "false" || word == "#false#") return false;
  if (is_number(word)) return platform::val(word) != 0;
  return std::nullopt;
}

// A folder that doesn't exist, such as one of a removed disk, leaves the box as it was.
void folder_take(std::string& box, const std::string& folder, Files& files) {
  if (!folder.empty() && files.folder_exists(folder)) box = folder;
}

// Setting one option of a group clears the others; clearing one clears only that.
template <std::size_t Count>
void option_take(std::array<bool, Count>& group, std::size_t index, std::optional<bool> value) {
  if (!value) return;
  if (*value) group.fill(false);
  group[index] = *value;
}

void option_take(bool& option, bool& other, std::optional<bool> value) {
  if (!value) return;
  option = *value;
  if (option) other = false;
}

// Lines 1 to 5, which have no test for the end of the file: past it a box stays as it was.
void read_unguarded(Line_reader& reader, Settings_boxes& boxes, Files& files) {
  if (!reader.end()) folder_take(boxes.Dir3, reader.field(), files);
  if (!reader.end()) boxes.File4 = reader.field();
  if (!reader.end()) {
    boxes.Label11 = reader.field();
    folder_take(boxes.Dir4, boxes.Label11, files);
  }
  if (!reader.end()) boxes.Combo4 = reader.field();
  if (!reader.end()) boxes.Combo5 = reader.field();
}

// An empty field is a false flag; a word that is none leaves the option as it was.
std::optional<bool> flag_field(Line_reader& reader) {
  const std::string field = reader.field();
  return field.empty() ? false : flag_of(field);
}

// Lines 6 to 17. False at the first line that is missing.
bool read_options(Line_reader& reader, Settings_boxes& boxes) {
  for (std::size_t i = 0; i < boxes.Option4.size(); ++i) {
    if (reader.end()) return false;
    option_take(boxes.Option4, i, flag_field(reader));
  }
  for (std::size_t i = 0; i < boxes.Option5.size(); ++i) {
    if (reader.end()) return false;
    option_take(boxes.Option5, i, flag_field(reader));
  }
  for (std::string& cell : boxes.Text3) {
    if (reader.end()) return false;
    cell = reader.field();
  }
  if (reader.end()) return false;
  option_take(boxes.Option6, boxes.Option7, flag_field(reader));
  if (reader.end()) return false;
  option_take(boxes.Option7, boxes.Option6, flag_field(reader));
  return true;
}

// Line 18. A file is selected when its name stands anywhere in the line, also as a part of a longer name.
void registries_take(const std::string& line, Settings& settings, Settings_boxes& boxes) {
  const std::string names = platform::fold_case(line);
  settings.registry_count = 0;
  for (File_choice& file : boxes.File11) {
    file.selected = names.find(platform::fold_case(file.name)) != std::string::npos;
    settings.registry_count += file.selected;
  }
  settings.registry_name = line.substr(0, line.find(','));
}

// Lines 18 to 27, up to the first that is missing.
void read_rest(Line_reader& reader, Settings& settings, Settings_boxes& boxes, Files& files) {
  if (reader.end()) return;
  registries_take(reader.whole_line(), settings, boxes);
  for (std::string* box : {&boxes.Text5, &boxes.Text6, &boxes.Text7, &boxes.Text8, &boxes.Text9, &boxes.Text10}) {
    if (reader.end()) return;
    *box = reader.field();
  }
  if (reader.end()) return;
  folder_take(boxes.Dir10, reader.whole_line(), files);
  if (reader.end()) return;
  option_take(boxes.Option8, boxes.Option9, flag_of(reader.whole_line()));
  if (reader.end()) return;
  option_take(boxes.Option9, boxes.Option8, flag_of(reader.whole_line()));
}

std::string registry_line(const Settings_boxes& boxes) {
  std::string line;
  for (const std::string& name : selected_registries(boxes)) {
    if (!line.empty()) line += ',';
    line += name;
  }
  return line;
}

}  // namespace

std::string settei_path(const Settings& settings) {
  return platform::join_path(settings.program_path, "settei.ini");
}

Settings_boxes settei_defaults(const Settings& settings) {
  Settings_boxes boxes;
  boxes.Dir4 = platform::join_path(settings.program_path, "dummy");
  return boxes;
}

bool settei_r(Settings& settings, Settings_boxes& boxes, Files& files, Prompts& prompts) {
  if (files.length(settei_path(settings)) == 0) {
    prompts.message(do_the_settings);
    return false;
  }
  Line_reader reader(platform::read_lines(files, settei_path(settings)));
  read_unguarded(reader, boxes, files);
  const bool goes_on = read_options(reader, boxes);
  // Not in the folder that stands in for a missing one: \dummy stays empty.
  if (goes_on && boxes.Dir4 == boxes.Label11) files.make_folder(chisou_men(boxes.Dir4));
  Dir4_change(boxes, boxes.Dir4, files);
  if (goes_on) read_rest(reader, settings, boxes, files);
  settings.datum_mode = boxes.Option7 ? wgs_84 : tokyo_datum;
  settings.project_path = boxes.Dir4;
  settings.map_path = boxes.Dir10;
  return true;
}

void settei_w(const Settings& settings, const Settings_boxes& boxes, Files& files) {
  Line_writer writer;
  for (const std::string* text : {&boxes.Dir3, &boxes.File4, &boxes.Dir4, &boxes.Combo4, &boxes.Combo5})
    writer.line(*text);
  for (const bool option : boxes.Option4) writer.flag(option);
  for (const bool option : boxes.Option5) writer.flag(option);
  for (const std::string& cell : boxes.Text3) writer.line(cell);
  writer.flag(boxes.Option6);
  writer.flag(boxes.Option7);
  writer.line(registry_line(boxes));
  for (const std::string* text :
       {&boxes.Text5, &boxes.Text6, &boxes.Text7, &boxes.Text8, &boxes.Text9, &boxes.Text10, &boxes.Dir10})
    writer.line(*text);
  writer.flag(boxes.Option8);
  writer.flag(boxes.Option9);
  files.write_whole(settei_path(settings), writer.bytes());
}

std::string settei_texts(const Settings_boxes& boxes) {
  std::string texts = boxes.Dir3 + boxes.File4 + boxes.Dir4 + boxes.Combo4 + boxes.Combo5;
  for (const std::string& cell : boxes.Text3) texts += cell;
  texts += registry_line(boxes) + boxes.Text5 + boxes.Text6 + boxes.Text7 + boxes.Text8;
  return texts + boxes.Text9 + boxes.Text10 + boxes.Dir10;
}

void picture_proportion(Settings_boxes& boxes) {
  const double range_x = platform::val(boxes.Text5), range_y = platform::val(boxes.Text6);
  const double width = platform::val(boxes.Text9), height = platform::val(boxes.Text10);
  if (range_y == 0 || height == 0) return;
  if (range_x / range_y == width / height) return;
  const double fitting = range_x / range_y * height;
  if (std::isfinite(fitting)) boxes.Text9 = platform::format_number(fitting, "#######0");
}

std::vector<std::string> selected_registries(const Settings_boxes& boxes) {
  std::vector<std::string> names;
  for (const File_choice& file : boxes.File11)
    if (file.selected && names.size() < registry_limit) names.push_back(file.name);
  return names;
}

}  // namespace core
