#include "observations/area.h"

#include <algorithm>
#include <array>
#include <cmath>

#include "core/project_folders.h"
#include "drawing/text_split.h"
#include "observations/painted_part.h"
#include "observations/registry.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace observations {
namespace {

constexpr double ring_pen = 2, ring_reach = 6;
constexpr std::size_t least_vertices = 3;

std::string path_of(const std::string& project_path) {
  return core::chisou_men(project_path, "Area.dat");
}

//  3 , 13850000 , 3550000 , 13850100.5 , 3550000 , 13850100 , 3550100 ,
//  1   2          3         4            5         6          7
Area area_of(const std::string& line) {
  std::array<std::string, 1 + 2 * area_vertex_limit> fields;
  const int pieces = drawing::split_csv(line, fields);
  const double told = platform::val(fields[0]);
  const double whole = std::min({told, static_cast<double>(area_vertex_limit), (pieces - 1) / 2.0});
  Area area;
  for (std::size_t i = 0; static_cast<double>(i + 1) <= whole; ++i)
    area.push_back({platform::val(fields[1 + 2 * i]), platform::val(fields[2 + 2 * i])});
  return area.size() < least_vertices ? Area{} : area;
}

std::string line_of(const Area& area) {
  std::string line = platform::print_number(static_cast<int>(area.size())) + ',';
  for (const geodesy::Point& vertex : area)
    line += platform::print_number(vertex.x) + ',' + platform::print_number(vertex.y) + ',';
  return line;
}

bool is_kept(const Area& area) {
  return area.size() >= least_vertices && area.size() <= area_vertex_limit &&
         std::all_of(area.begin(), area.end(),
                     [](const geodesy::Point& vertex) { return std::isfinite(vertex.x) && std::isfinite(vertex.y); });
}

}  // namespace

std::vector<Area> Area_read(platform::Files& files, const std::string& project_path) {
  std::vector<Area> areas;
  for (const std::string& line : platform::read_lines(files, path_of(project_path))) {
    if (areas.size() == area_limit) break;
    if (Area area = area_of(line); !area.empty()) areas.push_back(std::move(area));
  }
  return areas;
}

bool Area_make(platform::Files& files, const std::string& project_path, const Area& area) {
  if (!is_kept(area)) return false;
  const std::string path = path_of(project_path);
  const std::vector<platform::Text_line> lines = lines_to_keep(files, path);
  if (lines.size() >= area_limit) return false;
  platform::Line_writer writer;
  for (const platform::Text_line& line : lines) writer.line(line);
  writer.line(line_of(area));
  files.make_folder(core::chisou_men(project_path));
  files.write_whole(path, writer.bytes());
  return true;
}

void Area_out(drawing::Surface& surface, maps::Canvas& canvas, const std::vector<Area>& areas, drawing::Colour colour,
              bool filled) {
  const Sides part = painted_part(surface, canvas);
  const drawing::Fill_style style = filled ? drawing::Fill_style::see_through : drawing::Fill_style::none;
  std::vector<drawing::Point> places;
  for (const Area& area : areas) {
    places.clear();
    for (const geodesy::Point& vertex : area) places.push_back(place_of(canvas, vertex.x, vertex.y));
    if (may_be_seen(part, places, ring_reach) && is_drawable(places))
      surface.polygon(places, {colour, ring_pen}, {colour, style});
  }
}

}  // namespace observations
