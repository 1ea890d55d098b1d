#include "observations/draw_helpers.h"

#include <array>
#include <cmath>
#include <numbers>

#include "observations/mark_out.h"
#include "observations/painted_part.h"

namespace observations {
namespace {

using drawing::Point;

constexpr double start_radius = 5;
constexpr double head_length = 15, head_angle = 30;
constexpr double box_width = 120, box_height = 100;
constexpr double marker_half = 75;  // twips
constexpr double units_per_degree = 100'000;

double radians(double degrees) {
  return degrees * std::numbers::pi / 180;
}

// An offset turned clockwise as seen, y growing downwards.
Point turned(Point offset, double angle) {
  return {offset.x * std::cos(angle) - offset.y * std::sin(angle),
          offset.x * std::sin(angle) + offset.y * std::cos(angle)};
}

void ring_out(drawing::Surface& surface, const std::array<Point, 4>& corners, drawing::Colour colour) {
  for (std::size_t i = 0; i < corners.size(); ++i) ld(surface, corners[i], corners[(i + 1) % corners.size()], colour);
}

double geographic_units(const Degrees& angle) {
  return (angle.d + angle.m / 60 + angle.s / 3600) * units_per_degree;
}

}  // namespace

void LINE_out(drawing::Surface& surface, maps::Canvas& canvas, Point from, Point to, drawing::Colour colour) {
  const Point start = place_of(canvas, from.x, from.y);
  lc(surface, start, start_radius, colour);
  ld(surface, start, place_of(canvas, to.x, to.y), colour);
}

void Vec_out(drawing::Surface& surface, Point from, Point to, drawing::Colour colour) {
  ld(surface, from, to, colour);
  const double length = std::hypot(to.x - from.x, to.y - from.y);
  if (!(length > 0)) return;
  const Point back{(from.x - to.x) / length * head_length, (from.y - to.y) / length * head_length};
  for (const double side : {-head_angle, head_angle}) {
    const Point barb = turned(back, radians(side));
    ld(surface, to, {to.x + barb.x, to.y + barb.y}, colour);
  }
}

void kaIten_out(drawing::Surface& surface, Point centre, double degrees, drawing::Colour colour, double scale) {
  const double x = box_width / 2 * scale, y = box_height / 2 * scale;
  std::array<Point, 4> corners{{{-x, -y}, {x, -y}, {x, y}, {-x, y}}};
  for (Point& corner : corners) {
    const Point offset = turned(corner, radians(degrees));
    corner = {centre.x + offset.x, centre.y + offset.y};
  }
  ring_out(surface, corners, colour);
}

void LBOX(drawing::Surface& surface, Point a, Point b, drawing::Colour colour) {
  ring_out(surface, {{a, {b.x, a.y}, b, {a.x, b.y}}}, colour);
}

Marker_place point_out(maps::Canvas& canvas, const Degrees& longitude, const Degrees& latitude) {
  const Point at = place_of(canvas, geographic_units(longitude), geographic_units(latitude));
  return {at.x * maps::twips_per_unit - marker_half, at.y * maps::twips_per_unit - marker_half, true};
}

}  // namespace observations
