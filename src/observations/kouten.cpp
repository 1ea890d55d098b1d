#include "observations/kouten.h"

#include <algorithm>
#include <cmath>

#include "platform/numbers.h"

namespace observations {
namespace {

using geodesy::Point;

// The rounding takes off the noise that would put a point on a segment's end outside it.
Point rounded(Point p) {
  const auto to_11_decimals = [](double value) {
    return platform::val(platform::format_number(value, "###########0.##########0"));
  };
  return {to_11_decimals(p.x), to_11_decimals(p.y)};
}

bool same(Point p, Point q) {
  return p.x == q.x && p.y == q.y;
}

bool between(double value, double end1, double end2) {
  return std::min(end1, end2) <= value && value <= std::max(end1, end2);
}

bool in_box(Point p, Point a, Point b) {
  return between(p.x, a.x, b.x) && between(p.y, a.y, b.y);
}

}  // namespace

// With u = b - a and v = d - c the lines meet at a + t u, t = ((c - a) x v) / (u x v).
Crossing KOUTEN(Point a, Point b, Point c, Point d) {
  const Point u{b.x - a.x, b.y - a.y}, v{d.x - c.x, d.y - c.y};
  const double determinant = u.x * v.y - u.y * v.x;
  if (same(a, b) || same(c, d) || determinant == 0 || !std::isfinite(determinant)) return {};
  const double t = ((c.x - a.x) * v.y - (c.y - a.y) * v.x) / determinant;
  const Point meeting{a.x + t * u.x, a.y + t * u.y};
  if (!std::isfinite(meeting.x) || !std::isfinite(meeting.y)) return {};
  const Point at = rounded(meeting);
  return {at, in_box(at, rounded(a), rounded(b)) && in_box(at, rounded(c), rounded(d))};
}

Crossing crossing_inside(Point a, Point b, Point c, Point d) {
  Crossing crossing = KOUTEN(a, b, c, d);
  for (const Point end : {a, b, c, d})
    if (crossing.found && same(crossing.at, rounded(end))) crossing.found = false;
  return crossing;
}

}  // namespace observations
