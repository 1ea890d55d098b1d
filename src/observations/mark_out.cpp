#include "observations/mark_out.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <vector>

namespace observations {
namespace {

using drawing::Point;

constexpr double mark_pen = 2;
constexpr double least_radius = 2;
constexpr double size_unit = 10;  // canvas units to a step of the size
constexpr double default_size = 2;

enum class Shape { none, circle, two_circles, cross, plus, y, square, triangle, inverted, rhomb };

struct Mark_name {
  const char* name;
  Shape shape;
  bool filled;
};

// clang-format off
constexpr Mark_name mark_names[] = {
    {"○", Shape::circle, false},   {"circle", Shape::circle, false},
    {"●", Shape::circle, true},    {"filled circle", Shape::circle, true},
    {"□", Shape::square, false},   {"square", Shape::square, false},
    {"■", Shape::square, true},    {"filled square", Shape::square, true},
    {"△", Shape::triangle, false}, {"triangle", Shape::triangle, false},
    {"▲", Shape::triangle, true},  {"filled triangle", Shape::triangle, true},
    {"▽", Shape::inverted, false}, {"inverted triangle", Shape::inverted, false},
    {"▼", Shape::inverted, true},  {"triangle inverted triangle", Shape::inverted, true},
    {"◇", Shape::rhomb, false},    {"rhombic", Shape::rhomb, false},
    {"◆", Shape::rhomb, true},     {"filled rhombic", Shape::rhomb, true},
    // Not offered by the list of marks; records hold them by other means.
    {"◎", Shape::two_circles, false}, {"×", Shape::cross, false}, {"＋", Shape::plus, false}, {"Y", Shape::y, false},
};
// clang-format on

drawing::Pen pen_of(drawing::Colour colour, double width) {
  return {colour, std::max(1.0, std::floor(width * 1.2))};
}

std::vector<Point> corners_of(Shape shape, Point at, double h) {
  switch (shape) {
    case Shape::square:
      return {{at.x - h, at.y - h}, {at.x + h, at.y - h}, {at.x + h, at.y + h}, {at.x - h, at.y + h}};
    case Shape::triangle:
      return {{at.x, at.y - h}, {at.x + h, at.y + h}, {at.x - h, at.y + h}};
    case Shape::inverted:
      return {{at.x - h, at.y - h}, {at.x + h, at.y - h}, {at.x, at.y + h}};
    case Shape::rhomb:
      return {{at.x, at.y - h}, {at.x + h, at.y}, {at.x, at.y + h}, {at.x - h, at.y}};
    default:
      return {};
  }
}

void lines_out(drawing::Surface& surface, Shape shape, Point at, double h, drawing::Colour colour) {
  const auto line = [&](double x1, double y1, double x2, double y2) {
    ld(surface, {at.x + x1, at.y + y1}, {at.x + x2, at.y + y2}, colour, mark_pen);
  };
  if (shape == Shape::cross) {
    line(-h, -h, h, h);
    line(h, -h, -h, h);
  } else if (shape == Shape::plus) {
    line(0, -h, 0, h);
    line(-h, 0, h, 0);
  } else if (shape == Shape::y) {
    line(0, 0, -h, -h);
    line(0, 0, h, -h);
    line(0, 0, 0, h);
  }
}

double component(double value) {
  return std::clamp(std::isnan(value) ? 0 : value, 0.0, 255.0);
}

}  // namespace

drawing::Colour colour_of(double red, double green, double blue) {
  const auto byte = [](double value) { return static_cast<drawing::Colour>(component(value)); };
  return byte(red) << 16 | byte(green) << 8 | byte(blue);
}

double mark_half(double size) {
  return (size == 0 ? default_size : size) / 2 * size_unit;
}

void ld(drawing::Surface& surface, Point from, Point to, drawing::Colour colour, double width) {
  surface.line(from, to, pen_of(colour, width));
}

void lc(drawing::Surface& surface, Point centre, double radius, drawing::Colour colour, double width) {
  surface.circle(centre, radius, pen_of(colour, width), {});
}

double mark_reach(double size) {
  return std::max(mark_half(size), least_radius) + mark_pen;
}

void mark_out(drawing::Surface& surface, Point at, drawing::Colour colour, double size, std::string_view mark) {
  const auto* const found = std::find_if(std::begin(mark_names), std::end(mark_names),
                                         [mark](const Mark_name& name) { return mark == name.name; });
  if (found == std::end(mark_names)) return;
  const double h = mark_half(size);
  const drawing::Pen pen = pen_of(colour, mark_pen);
  const drawing::Fill fill{colour, found->filled ? drawing::Fill_style::solid : drawing::Fill_style::none};
  if (found->shape == Shape::circle || found->shape == Shape::two_circles) {
    surface.circle(at, std::max(h, least_radius), pen, fill);
    if (found->shape == Shape::two_circles) surface.circle(at, h / 2, pen, {});
    return;
  }
  const std::vector<Point> corners = corners_of(found->shape, at, h);
  if (corners.empty())
    lines_out(surface, found->shape, at, h, colour);
  else
    surface.polygon(corners, pen, fill);
}

}  // namespace observations
