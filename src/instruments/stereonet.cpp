#include "instruments/stereonet.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>
#include <string_view>

#include "instruments/measurement_files.h"

namespace instruments {
namespace {

using drawing::Fill;
using drawing::Fill_style;
using drawing::Pen;
using drawing::Point;
using drawing::Surface;

constexpr double radian = std::numbers::pi / 180;
constexpr int step = 2;           // degrees between the points of a circle
constexpr double sign_reach = 7;  // half a sign's width, canvas units
constexpr double letter_height = 32, text_height = 26, line_height = 36;
constexpr double letter_away = 0.85;  // of its height, from the rim
constexpr double margin = 48;         // about the net, for the letters
constexpr double room_below = 3 * line_height;
constexpr double name_width = 170;  // of a sign and its name at the longest, "lineation"
constexpr double tick_length = 10, long_tick_length = 20;
constexpr const char* text_font = "MS Gothic";

Direction from(const Direction& a, double part_a, const Direction& b, double part_b) {
  return {a[0] * part_a + b[0] * part_b, a[1] * part_a + b[1] * part_b, a[2] * part_a + b[2] * part_b};
}

Direction cross(const Direction& a, const Direction& b) {
  return {a[1] * b[2] - a[2] * b[1], a[2] * b[0] - a[0] * b[2], a[0] * b[1] - a[1] * b[0]};
}

Point on_rim(const Net& net, double azimuth, double radius) {
  return {net.centre.x + radius * std::sin(azimuth * radian), net.centre.y - radius * std::cos(azimuth * radian)};
}

// A polygon about a point: its corners as parts of the sign's reach, y downwards.
void shape(Surface& surface, Point at, std::span<const Point> corners, const Pen& pen, const Fill& fill) {
  std::vector<Point> points;
  for (const Point& corner : corners) points.push_back({at.x + corner.x * sign_reach, at.y + corner.y * sign_reach});
  surface.polygon(points, pen, fill);
}

void strokes(Surface& surface, Point at, double x, double y, const Pen& pen) {
  const double dx = x * sign_reach, dy = y * sign_reach;
  surface.line({at.x - dx, at.y - dy}, {at.x + dx, at.y + dy}, pen);
  surface.line({at.x - dy, at.y + dx}, {at.x + dy, at.y - dx}, pen);
}

std::vector<Point> star() {
  std::vector<Point> corners;
  for (int i = 0; i < 10; ++i) {
    const double reach = i % 2 == 0 ? 1.2 : 0.48;
    corners.push_back({reach * std::sin(i * 36 * radian), -reach * std::cos(i * 36 * radian)});
  }
  return corners;
}

// The polygons of the marks that are filled.
std::vector<Point> corners_of(std::string_view token) {
  if (token == "Rect") return {{-0.9, -0.9}, {0.9, -0.9}, {0.9, 0.9}, {-0.9, 0.9}};
  if (token == "Spade") return {{0, -1.2}, {1.2, 0}, {0, 1.2}, {-1.2, 0}};
  if (token == "Triangle") return {{0, -1.1}, {1.1, 0.9}, {-1.1, 0.9}};
  if (token == "RTriangle") return {{0, 1.1}, {1.1, -0.9}, {-1.1, -0.9}};
  if (token == "Star") return star();
  return {};
}

void pole_out(Surface& surface, Point at, std::string_view token) {
  const Pen pen{pole_colour, 1};
  const Fill fill{pole_colour, Fill_style::solid};
  const std::vector<Point> corners = corners_of(token);
  if (!corners.empty())
    shape(surface, at, corners, pen, fill);
  else if (token == "Cross")
    strokes(surface, at, 1, 0, pen);
  else if (token == "DCross")
    strokes(surface, at, 0.8, 0.8, pen);
  else
    surface.circle(at, sign_reach * 0.8, pen, fill);
}

void lineation_out(Surface& surface, Point at) {
  constexpr std::array<Point, 3> corners{{{0, -1.2}, {1.2, 1}, {-1.2, 1}}};
  shape(surface, at, corners, Pen{lineation_colour, 1}, Fill{drawing::white, Fill_style::solid});
}

void mean_pole_out(Surface& surface, Point at) {
  surface.circle(at, sign_reach * 1.3, Pen{mean_colour, 1.5}, Fill{mean_colour, Fill_style::solid});
}

void frame_out(Surface& surface, const Net& net) {
  const Pen pen{drawing::black, 1};
  surface.circle(net.centre, net.radius, Pen{drawing::black, 1.5}, Fill{});
  for (int azimuth = 0; azimuth < 360; azimuth += 10) {
    const double length = azimuth % 90 == 0 ? long_tick_length : tick_length;
    surface.line(on_rim(net, azimuth, net.radius), on_rim(net, azimuth, net.radius - length), pen);
  }
  strokes(surface, net.centre, 1.2, 0, pen);
  constexpr std::array<const char*, 4> letters{"N", "E", "S", "W"};
  for (std::size_t i = 0; i < letters.size(); ++i) {
    const Point at = on_rim(net, static_cast<double>(i) * 90, net.radius + letter_height * letter_away);
    surface.text({at.x - letter_height / 4, at.y - letter_height / 2}, letters[i], {text_font, letter_height, false},
                 drawing::black, 0);
  }
}

void mean_out(Surface& surface, const Net& net, const Scatter& scatter) {
  const Pen pen{mean_colour, 1.5};
  surface.polyline(great_circle(net, scatter.mean), pen);
  if (scatter.cone)
    for (const std::vector<Point>& line : small_circle(net, pole_of(scatter.mean), *scatter.cone))
      surface.polyline(line, Pen{mean_colour, 1, drawing::Line_style::dashed});
  mean_pole_out(surface, net_point(net, direction_of(pole_of(scatter.mean))));
}

void texts_out(Surface& surface, const Net& net, const Net_texts& texts) {
  const drawing::Font font{text_font, text_height, false};
  const double left = net.centre.x - net.radius, below = net.centre.y + net.radius + margin;
  const double part = std::max(net.radius * 2 / 3, name_width), first = net.centre.x - part * 1.5;
  const double sign = first + sign_reach * 2, word = first + sign_reach * 5;
  double line = below;
  if (!texts.mean.empty()) {
    surface.text({left, line}, texts.mean, font, drawing::black, 0);
    line += line_height;
  }
  pole_out(surface, {sign, line + text_height / 2}, "Circle");
  surface.text({word, line}, texts.pole, font, drawing::black, 0);
  lineation_out(surface, {sign + part, line + text_height / 2});
  surface.text({word + part, line}, texts.lineation, font, drawing::black, 0);
  mean_pole_out(surface, {sign + 2 * part, line + text_height / 2});
  surface.text({word + 2 * part, line}, texts.circle, font, drawing::black, 0);
}

}  // namespace

Net net_in(double width, double height) {
  const double radius = std::max(0.0, std::min(width - 2 * margin, height - 2 * margin - room_below) / 2);
  return {{width / 2, margin + radius}, radius};
}

Net_texts net_texts(const std::optional<Scatter>& scatter, bool japanese) {
  if (japanese) return {scatter_text(scatter, true), "面の極", "線構造", "平均の極"};
  return {scatter_text(scatter, false), "pole", "lineation", "mean pole"};
}

Point net_point(const Net& net, const Direction& direction) {
  const double side = direction[2] < 0 ? -1 : 1;
  const double north = side * direction[0], east = side * direction[1], down = side * direction[2];
  const double level = std::hypot(north, east);
  if (level == 0) return net.centre;
  const double radius = net.radius * std::sqrt(std::max(0.0, 1 - down));
  return {net.centre.x + radius * east / level, net.centre.y - radius * north / level};
}

std::vector<Point> great_circle(const Net& net, const Plane& plane) {
  const Direction strike = direction_of({plane.azimuth, 0});
  const Direction fall = direction_of({plane.azimuth + 90, plane.dip});
  // Both ends lie on the rim: at the second the sine is taken as 0, so that no rounding lifts it to the first.
  std::vector<Point> points;
  for (int rake = 0; rake < 180; rake += step)
    points.push_back(net_point(net, from(strike, std::cos(rake * radian), fall, std::sin(rake * radian))));
  points.push_back(net_point(net, {-strike[0], -strike[1], 0}));
  return points;
}

std::vector<std::vector<Point>> small_circle(const Net& net, const Axis& axis, double angle) {
  const Direction middle = direction_of(axis);
  const Direction level = direction_of({axis.trend + 90, 0});
  const Direction up = cross(middle, level);
  std::vector<std::vector<Point>> lines(1);
  bool below = true;
  for (int turn = 0; turn <= 360; turn += step) {
    const Direction around = from(level, std::cos(turn * radian), up, std::sin(turn * radian));
    const Direction point = from(middle, std::cos(angle * radian), around, std::sin(angle * radian));
    if (turn > 0 && (point[2] >= 0) != below) lines.emplace_back();
    below = point[2] >= 0;
    lines.back().push_back(net_point(net, point));
  }
  std::erase_if(lines, [](const std::vector<Point>& line) { return line.size() < 2; });
  return lines;
}

void stereonet_out(Surface& surface, const Net& net, const std::vector<Measured>& measured,
                   const std::optional<Scatter>& scatter, const Net_texts& texts) {
  surface.clear(drawing::white);
  frame_out(surface, net);
  if (scatter) mean_out(surface, net, *scatter);
  for (const Measured& one : measured) {
    if (one.plane) pole_out(surface, net_point(net, direction_of(pole_of(*one.plane))), mark_token(one.mark));
    if (one.lineation) lineation_out(surface, net_point(net, direction_of(*one.lineation)));
  }
  texts_out(surface, net, texts);
}

}  // namespace instruments
