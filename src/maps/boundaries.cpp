#include "maps/boundaries.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"
#include "platform/text_files.h"

namespace maps {
namespace {

// One line is one polyline; points are parted by ";".
//   name="神流町" pos="138.9125/36.1166;138.9250/36.1208;138.9375/36.1166"
//                 1   2        3       4
constexpr drawing::Colour boundary_colour = 0x800080;
const drawing::Pen boundary_pen{boundary_colour, 1, drawing::Line_style::dashed};

// The pieces of a text between separators, empty ones too.
std::vector<std::string_view> pieces(std::string_view text, char separator) {
  std::vector<std::string_view> found;
  for (;;) {
    const std::size_t end = text.find(separator);
    found.push_back(text.substr(0, end));
    if (end == std::string_view::npos) return found;
    text.remove_prefix(end + 1);
  }
}

std::string_view quoted_text(std::string_view line) {
  const std::size_t pos = line.find("pos");
  if (pos == std::string_view::npos) return {};
  const std::size_t open = line.find('"', pos);
  if (open == std::string_view::npos) return {};
  const std::string_view rest = line.substr(open + 1);
  return rest.substr(0, rest.find('"'));
}

drawing::Point on_canvas(Canvas& canvas, const Boundary_point& point) {
  const bool degrees = std::abs(point.x) <= 180 && std::abs(point.y) <= 90;
  const Canvas_point at =
      degrees ? henkan_px4(canvas, point.x * 100'000, point.y * 100'000) : henkan_px(canvas, point.x, point.y);
  return {at.x, at.y};
}

bool touches_window(const Canvas& canvas, const std::vector<drawing::Point>& points) {
  if (canvas.width <= 0 || canvas.height <= 0) return true;
  double left = points.front().x, right = left, top = points.front().y, bottom = top;
  for (const drawing::Point& point : points) {
    left = std::min(left, point.x);
    right = std::max(right, point.x);
    top = std::min(top, point.y);
    bottom = std::max(bottom, point.y);
  }
  return right >= 0 && left <= canvas.width / twips_per_unit && bottom >= 0 && top <= canvas.height / twips_per_unit;
}

}  // namespace

Boundary boundary_of_line(std::string_view line) {
  Boundary points;
  for (const std::string_view piece : pieces(quoted_text(line), ';')) {
    const std::vector<std::string_view> numbers = pieces(piece, '/');
    for (std::size_t i = 0; i + 1 < numbers.size(); i += 2)
      points.push_back({platform::val(numbers[i]), platform::val(numbers[i + 1])});
  }
  return points;
}

void gyousei_read(platform::Files& files, const std::string& program_path, Boundaries& boundaries) {
  boundaries.lines.clear();
  const std::string folder = platform::join_path(program_path, "mps");
  for (const std::string& name : files.list(folder, "*.mps"))
    for (const std::string& line : platform::read_lines(files, platform::join_path(folder, name)))
      if (Boundary points = boundary_of_line(line); points.size() >= 2) boundaries.lines.push_back(std::move(points));
}

void gyousei_out(drawing::Surface& surface, Canvas& canvas, const Boundaries& boundaries) {
  std::vector<drawing::Point> points;
  for (const Boundary& line : boundaries.lines) {
    points.clear();
    for (const Boundary_point& point : line) points.push_back(on_canvas(canvas, point));
    if (!points.empty() && touches_window(canvas, points)) surface.polyline(points, boundary_pen);
  }
}

}  // namespace maps
