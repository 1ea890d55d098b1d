#include "maps/sheet_index.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numeric>
#include <vector>

#include "core/save_messages.h"
#include "drawing/text_split.h"
#include "geodesy/mesh_code.h"
#include "maps/corner_text.h"
#include "maps/frame_file.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace maps {
namespace {

constexpr double row_seconds = 300, column_seconds = 450;
constexpr double first_column_seconds = 100 * 3600;
constexpr double steps_per_first_level = 8;

constexpr double grid_margin = 40;  // canvas units
constexpr double text_inset = 6, part_inset = 6;
// Height to width of a cell in the middle of Japan: 300 seconds of latitude to 450 of longitude.
constexpr double cell_ratio = 0.82;
// Of a cell: corners come from seconds and carry binary noise.
constexpr double hair = 1e-6;
constexpr double least_cell_width = 60, largest_cell_width = 480;
constexpr drawing::Colour sheet_colour = 0xF4F1E6, selected_colour = 0xFFD966;

Index_sheet placed(double south, double west, double north, double east) {
  Index_sheet sheet;
  sheet.row = south / row_seconds;
  sheet.column = (west - first_column_seconds) / column_seconds;
  sheet.rows = (north - south) / row_seconds;
  sheet.columns = (east - west) / column_seconds;
  return sheet;
}

// Corner A may be the southern one.
Index_sheet placed_by_corners(const Corner_texts& corners) {
  const Corner_seconds at = corner_seconds(corners);
  return placed(std::min(at.lat_a, at.lat_b), std::min(at.lon_a, at.lon_b), std::max(at.lat_a, at.lat_b),
                std::max(at.lon_a, at.lon_b));
}

Index_sheet place_of(platform::Files& files, const std::string& folder, const std::string& stem) {
  Corner_texts corners;
  if (is_code(stem, 6)) return cell_of_code(stem);
  if (frame_read(files, platform::join_path(folder, stem + ".set"), corners)) return placed_by_corners(corners);
  if (!is_code(stem, 8)) return placed(0, 0, 0, 0);  // of no extent
  const geodesy::Mesh_origin origin = geodesy::mesh_code_origin(stem);
  return placed(origin.lat_seconds, origin.lon_seconds, origin.lat_seconds + row_seconds / 2,
                origin.lon_seconds + column_seconds / 2);
}

void add(Sheet_index& index, const Index_sheet& sheet) {
  index.sheets[index.sheet_count + 1] = sheet;
  ++index.sheet_count;
  index.row_min = std::min(index.row_min, sheet.row);
  index.row_max = std::max(index.row_max, sheet.row + sheet.rows);
  index.column_min = std::min(index.column_min, sheet.column);
  index.column_max = std::max(index.column_max, sheet.column + sheet.columns);
}

double extent(const Index_sheet& sheet) {
  return sheet.rows * sheet.columns;
}

// Small sheets lie on top of the large ones that hold them.
std::vector<int> largest_first(const Sheet_index& index) {
  std::vector<int> rows(static_cast<std::size_t>(index.sheet_count));
  std::iota(rows.begin(), rows.end(), 1);
  std::stable_sort(rows.begin(), rows.end(),
                   [&](int a, int b) { return extent(index.sheets[a]) > extent(index.sheets[b]); });
  return rows;
}

// As much of a name as stands in a width; a half-width character is half as wide as it is high.
std::string as_fits(const std::string& name, double width, double height) {
  const int room = static_cast<int>(std::min(width / (height / 2), 1000.0));
  return drawing::len_bytes(name) <= room ? name : drawing::mid_bytes(name, 1, std::max(0, room - 2)) + "..";
}

bool is_inside(const drawing::Rect& rect, drawing::Point at) {
  return at.x >= rect.x && at.x < rect.x + rect.width && at.y >= rect.y && at.y < rect.y + rect.height;
}

// The lines of \chizuset.dat:
//   120
//   80
//   24
std::array<double*, 3> lines_of(Index_display& display) {
  return {&display.cell_width, &display.cell_height, &display.text_height};
}
constexpr double largest_setting = 10'000;

}  // namespace

Index_sheet cell_of_code(std::string_view stem) {
  const auto digits = [stem](std::size_t at, std::size_t count) { return platform::val(stem.substr(at, count)); };
  Index_sheet sheet;
  sheet.row = digits(0, 2) * steps_per_first_level + digits(4, 1);
  sheet.column = digits(2, 2) * steps_per_first_level + digits(5, 1);
  return sheet;
}

void sheet_index_read(platform::Files& files, const Catalogue& catalogue, const std::string& folder,
                      std::string_view language, Sheet_index& index) {
  const Index_display display = index.display;
  index = {};
  index.display = display;
  for (const std::string& file : files.list(folder, "*.bmp")) {
    const Sheet_name name = chikeizu_name_get(catalogue, file, language);
    Index_sheet sheet = place_of(files, folder, name.stem);
    if (sheet.rows <= 0 || sheet.columns <= 0) continue;
    sheet.stem = name.stem;
    sheet.name = name.display;
    add(index, sheet);
  }
}

void chizuset_r(platform::Files& files, const std::string& program_path, Index_display& display) {
  platform::Line_reader reader(platform::read_lines(files, platform::join_path(program_path, "chizuset.dat")));
  for (double* setting : lines_of(display)) {
    const double value = platform::val(reader.field());
    if (value > 0) *setting = std::min(value, largest_setting);
  }
}

bool Command1(platform::Files& files, platform::Prompts& prompts, const std::string& program_path,
              const Index_display& display) {
  Index_display settings = display;
  platform::Line_writer writer;
  for (const double* setting : lines_of(settings)) writer.line(platform::print_number(*setting));
  const std::string path = platform::join_path(program_path, "chizuset.dat");
  try {
    files.write_whole(path, writer.bytes());
    return true;
  } catch (const platform::File_failure& failure) {
    core::file_failed(prompts, {"表示設定を保存できません: ", "The display settings can't be saved: "}, path, failure);
    return false;
  }
}

void fit_display(Sheet_index& index, double width, double height) {
  if (index.sheet_count == 0) return;
  const double across = (width - 2 * grid_margin) / (index.column_max - index.column_min);
  const double down = (height - 2 * grid_margin) / (index.row_max - index.row_min);
  const double cell = std::min(across, down / cell_ratio);
  index.display.cell_width = std::floor(std::clamp(cell, least_cell_width, largest_cell_width));
  index.display.cell_height = std::floor(index.display.cell_width * cell_ratio);
}

// A sheet that is a part of a cell stands inside the cell's frame, below its name, so that the whole sheet's frame and
// name are still seen and clicked.
drawing::Rect cell_rectangle(const Sheet_index& index, const Index_sheet& sheet) {
  const Index_display& display = index.display;
  const double left = std::floor(sheet.column + hair), bottom = std::floor(sheet.row + hair);
  const bool part = sheet.rows < 1 - hair && sheet.columns < 1 - hair &&
                    sheet.column + sheet.columns <= left + 1 + hair && sheet.row + sheet.rows <= bottom + 1 + hair;
  if (!part)
    return {grid_margin + (sheet.column - index.column_min) * display.cell_width,
            grid_margin + (index.row_max - sheet.row - sheet.rows) * display.cell_height,
            sheet.columns * display.cell_width, sheet.rows * display.cell_height};
  const double name_strip = std::min(display.text_height + text_inset, display.cell_height / 2);
  const drawing::Rect inner{grid_margin + (left - index.column_min) * display.cell_width + part_inset,
                            grid_margin + (index.row_max - bottom - 1) * display.cell_height + name_strip,
                            display.cell_width - 2 * part_inset, display.cell_height - name_strip - part_inset};
  return {inner.x + (sheet.column - left) * inner.width, inner.y + (bottom + 1 - sheet.row - sheet.rows) * inner.height,
          sheet.columns * inner.width, sheet.rows * inner.height};
}

drawing::Rect index_rectangle(const Sheet_index& index) {
  if (index.sheet_count == 0) return {0, 0, 2 * grid_margin, 2 * grid_margin};
  return {0, 0, (index.column_max - index.column_min) * index.display.cell_width + 2 * grid_margin,
          (index.row_max - index.row_min) * index.display.cell_height + 2 * grid_margin};
}

void chizu_out(drawing::Surface& surface, const Sheet_index& index, std::string_view selected, drawing::Point offset) {
  surface.clear(drawing::white);
  const drawing::Font font{.height = index.display.text_height};
  for (const int row : largest_first(index)) {
    const Index_sheet& sheet = index.sheets[row];
    drawing::Rect cell = cell_rectangle(index, sheet);
    cell.x -= offset.x;
    cell.y -= offset.y;
    const std::array<drawing::Point, 4> corners{{{cell.x, cell.y},
                                                 {cell.x + cell.width, cell.y},
                                                 {cell.x + cell.width, cell.y + cell.height},
                                                 {cell.x, cell.y + cell.height}}};
    const drawing::Colour fill = sheet.stem == selected ? selected_colour : sheet_colour;
    surface.polygon(corners, {}, {fill, drawing::Fill_style::solid});
    const std::string name = as_fits(sheet.name, cell.width - 2 * text_inset, font.height);
    if (font.height <= cell.height) surface.text({cell.x + text_inset, cell.y + 1}, name, font, drawing::black, 0);
  }
}

int sheet_index_hit(const Sheet_index& index, drawing::Point at) {
  int hit = 0;
  for (int row = 1; row <= index.sheet_count; ++row) {
    const Index_sheet& sheet = index.sheets[row];
    if (is_inside(cell_rectangle(index, sheet), at) && (hit == 0 || extent(sheet) < extent(index.sheets[hit])))
      hit = row;
  }
  return hit;
}

}  // namespace maps
