#include "observations/painted_part.h"

#include <algorithm>
#include <cmath>

namespace observations {

Sides painted_part(const drawing::Surface& surface, const maps::Canvas& canvas) {
  const drawing::Rect touched = surface.touched_part();
  Sides part{touched.x, touched.y, touched.x + touched.width, touched.y + touched.height};
  if (canvas.width <= 0 || canvas.height <= 0) return part;
  part.left = std::max(part.left, 0.0);
  part.top = std::max(part.top, 0.0);
  part.right = std::min(part.right, canvas.width / maps::twips_per_unit);
  part.bottom = std::min(part.bottom, canvas.height / maps::twips_per_unit);
  return part;
}

bool reaches_into(const Sides& part, drawing::Point at, const Sides& reach) {
  return at.x + reach.right >= part.left && at.x - reach.left <= part.right && at.y + reach.bottom >= part.top &&
         at.y - reach.top <= part.bottom;
}

bool may_be_seen(const Sides& part, std::span<const drawing::Point> places, double margin) {
  if (places.empty()) return false;
  Sides box{places[0].x, places[0].y, places[0].x, places[0].y};
  for (const drawing::Point place : places) {
    box.left = std::min(box.left, place.x);
    box.right = std::max(box.right, place.x);
    box.top = std::min(box.top, place.y);
    box.bottom = std::max(box.bottom, place.y);
  }
  return box.right + margin >= part.left && box.left - margin <= part.right && box.bottom + margin >= part.top &&
         box.top - margin <= part.bottom;
}

drawing::Point place_of(maps::Canvas& canvas, double x, double y) {
  const maps::Canvas_point at = maps::henkan_px(canvas, x, y);
  return {at.x, at.y};
}

bool is_drawable(std::span<const drawing::Point> places) {
  constexpr double farthest = 1e7;
  return std::all_of(places.begin(), places.end(),
                     [](drawing::Point at) { return std::abs(at.x) < farthest && std::abs(at.y) < farthest; });
}

}  // namespace observations
