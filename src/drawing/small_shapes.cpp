#include "drawing/small_shapes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace drawing {
namespace {

// How far a circle's chords may lie inside it, in pixels.
constexpr double chord_depth = 0.04;
constexpr int least_chords = 8;

Rect bounds_of(std::span<const Point> points) {
  double left = points[0].x, right = left, top = points[0].y, bottom = top;
  for (const Point point : points) {
    left = std::min(left, point.x);
    right = std::max(right, point.x);
    top = std::min(top, point.y);
    bottom = std::max(bottom, point.y);
  }
  return {left, top, right - left, bottom - top};
}

// False for what isn't a number, too.
bool is_small(const Rect& bounds) {
  return bounds.width <= small_shape_limit && bounds.height <= small_shape_limit && std::abs(bounds.x) < 1e6 &&
         std::abs(bounds.y) < 1e6;
}

bool is_in(const Pixel_range& clip, const Rect& bounds) {
  return bounds.x < clip.x1 && bounds.x + bounds.width > clip.x0 && bounds.y < clip.y1 &&
         bounds.y + bounds.height > clip.y0;
}

Rect widened(const Rect& box, double by) {
  return {box.x - by, box.y - by, box.width + 2 * by, box.height + 2 * by};
}

// Fills `outer`, less `inner` where it has points.
bool blend_rings(Small_shapes& shapes, Colour colour) {
  const Rect bounds = bounds_of(shapes.outer);
  if (!is_small(bounds)) return false;
  if (!is_in(shapes.clip, bounds)) return true;
  cover_begin(shapes.coverage, bounds);
  cover_fetch(shapes.coverage, shapes.raster, shapes.clip);
  cover_ring(shapes.coverage, shapes.outer);
  cover_ring(shapes.coverage, shapes.inner);
  cover_blend(shapes.coverage, shapes.raster, shapes.clip, colour);
  return true;
}

// Points on a circle, clockwise as seen, or the other way round. The chords lie half inside and half outside of it.
void circle_ring(std::vector<Point>& ring, Point centre, double radius, bool reversed) {
  const int chords =
      std::max(least_chords, static_cast<int>(std::ceil(std::numbers::pi * std::sqrt(radius / (2 * chord_depth)))));
  const double step = (reversed ? -2 : 2) * std::numbers::pi / chords;
  const double r = radius * (1 + (1 - std::cos(step / 2)) / 2);
  const double turn_x = std::cos(step), turn_y = std::sin(step);
  Point spoke{r, 0};
  ring.clear();
  for (int i = 0; i < chords; ++i) {
    ring.push_back({centre.x + spoke.x, centre.y + spoke.y});
    spoke = {spoke.x * turn_x - spoke.y * turn_y, spoke.x * turn_y + spoke.y * turn_x};
  }
}

double cross(Point a, Point b) {
  return a.x * b.y - a.y * b.x;
}

Point between(Point a, Point b) {
  return {b.x - a.x, b.y - a.y};
}

// 1 or -1: the direction in which a convex polygon goes round. 0 for any other: one that bends both ways, runs straight
// on at a corner, has a corner that isn't a number, or goes round more than once as a star does (its edges then turn
// from up to down more than once).
int turn_of(std::span<const Point> corners) {
  const std::size_t n = corners.size();
  int turn = 0, turns_down = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const Point edge = between(corners[i], corners[(i + 1) % n]);
    const Point next = between(corners[(i + 1) % n], corners[(i + 2) % n]);
    const double bend = cross(edge, next);
    if (!std::isnormal(bend) || (turn != 0 && (bend > 0) != (turn > 0))) return 0;
    turn = bend > 0 ? 1 : -1;
    if (edge.y < 0 && next.y >= 0) ++turns_down;
  }
  return turns_down == 1 ? turn : 0;
}

Point outward(Point from, Point to, int turn) {
  const Point along = between(from, to);
  const double length = std::hypot(along.x, along.y);
  return {turn * along.y / length, -turn * along.x / length};
}

// Whether a pen of this half width leaves something of the inside free.
bool has_inside(std::span<const Point> corners, int turn, double half) {
  Point middle;
  for (const Point corner : corners) {
    middle.x += corner.x / static_cast<double>(corners.size());
    middle.y += corner.y / static_cast<double>(corners.size());
  }
  for (std::size_t i = 0; i < corners.size(); ++i) {
    const Point out = outward(corners[i], corners[(i + 1) % corners.size()], turn);
    const Point to_corner = between(middle, corners[i]);
    if (to_corner.x * out.x + to_corner.y * out.y <= half) return false;
  }
  return true;
}

// The pen's outer edge with its bevels, and its inner edge the other way round.
void outline_rings(Small_shapes& shapes, std::span<const Point> corners, int turn, double half) {
  const std::size_t n = corners.size();
  for (std::size_t i = 0; i < n; ++i) {
    const Point corner = corners[i];
    const Point before = outward(corners[(i + n - 1) % n], corner, turn);
    const Point behind = outward(corner, corners[(i + 1) % n], turn);
    shapes.outer.push_back({corner.x + half * before.x, corner.y + half * before.y});
    shapes.outer.push_back({corner.x + half * behind.x, corner.y + half * behind.y});
    const double reach = half / (1 + before.x * behind.x + before.y * behind.y);
    shapes.inner.push_back({corner.x - reach * (before.x + behind.x), corner.y - reach * (before.y + behind.y)});
  }
  std::reverse(shapes.inner.begin(), shapes.inner.end());
}

}  // namespace

bool small_line(Small_shapes& shapes, Point from, Point to, double width, Colour colour) {
  const Point along = between(from, to);
  const double length = std::hypot(along.x, along.y);
  if (!(length > 0) || length > small_shape_limit || !(width > 0)) return false;
  const std::array<Point, 2> ends{from, to};
  const Rect box = widened(bounds_of(ends), width);
  if (is_small(box) && !is_in(shapes.clip, box)) return true;
  const Point ahead{along.x / length * width / 2, along.y / length * width / 2};
  const Point begin{from.x - ahead.x, from.y - ahead.y}, end{to.x + ahead.x, to.y + ahead.y};
  shapes.outer.assign({{begin.x - ahead.y, begin.y + ahead.x},
                       {end.x - ahead.y, end.y + ahead.x},
                       {end.x + ahead.y, end.y - ahead.x},
                       {begin.x + ahead.y, begin.y - ahead.x}});
  shapes.inner.clear();
  return blend_rings(shapes, colour);
}

bool small_circle(Small_shapes& shapes, Point centre, double radius, double width, Colour colour, bool filled) {
  if (!(radius > 0) || !(width > 0) || radius + width / 2 > small_shape_limit / 2) return false;
  const Rect box = widened({centre.x, centre.y, 0, 0}, radius + width);
  if (is_small(box) && !is_in(shapes.clip, box)) return true;
  circle_ring(shapes.outer, centre, radius + width / 2, false);
  shapes.inner.clear();
  if (!filled && radius > width / 2) circle_ring(shapes.inner, centre, radius - width / 2, true);
  return blend_rings(shapes, colour);
}

bool small_polygon(Small_shapes& shapes, std::span<const Point> corners, double width, Colour colour, bool filled) {
  constexpr std::size_t most_corners = 8;
  if (corners.size() < 3 || corners.size() > most_corners || !(width > 0)) return false;
  const int turn = turn_of(corners);
  if (turn == 0) return false;
  const Rect box = widened(bounds_of(corners), width);
  if (is_small(box) && !is_in(shapes.clip, box)) return true;
  shapes.outer.clear();
  shapes.inner.clear();
  outline_rings(shapes, corners, turn, width / 2);
  if (filled || !has_inside(corners, turn, width / 2)) shapes.inner.clear();
  return blend_rings(shapes, colour);
}

}  // namespace drawing
