// The part of the canvas that a repaint is for, so that what lies outside of it is passed over.
#pragma once

#include <span>

#include "drawing/surface.h"
#include "maps/canvas.h"

namespace observations {

// Distances from a point, or places: canvas units.
struct Sides {
  double left = 0, top = 0, right = 0, bottom = 0;
  bool operator==(const Sides&) const = default;
};

// The canvas where the surface takes drawing at all. A canvas without a width shows everything.
Sides painted_part(const drawing::Surface& surface, const maps::Canvas& canvas);

// Whether something at `at` that reaches so far to each side may be seen.
bool reaches_into(const Sides& part, drawing::Point at, const Sides& reach);

// Whether lines through these points, with a pen that reaches `margin` from its middle, may be seen.
bool may_be_seen(const Sides& part, std::span<const drawing::Point> places, double margin);

// A map place in canvas units.
drawing::Point place_of(maps::Canvas& canvas, double x, double y);

// Places far beyond any screen would cost the painter dear.
bool is_drawable(std::span<const drawing::Point> places);

}  // namespace observations
