// Small lines, circles and convex polygons straight into rows of pixels, edges smoothed by the covered area. They look
// as the toolkit's painter draws them: pens with square ends and bevelled corners.
#pragma once

#include <span>
#include <vector>

#include "drawing/coverage.h"

namespace drawing {

// Shapes beyond this many pixels in width or height are the painter's.
inline constexpr double small_shape_limit = 160;

// Where small shapes are drawn, and the memory that is kept from one to the next.
struct Small_shapes {
  Raster raster;
  Pixel_range clip;
  Coverage coverage;
  std::vector<Point> outer, inner;
};

// Each draws in device pixels and gives false, with nothing drawn, for what it isn't made for: a shape too large, a
// line without length, a polygon that isn't convex, a pen without width. A filled shape has the pen's colour inside.
bool small_line(Small_shapes& shapes, Point from, Point to, double width, Colour colour);
bool small_circle(Small_shapes& shapes, Point centre, double radius, double width, Colour colour, bool filled);
bool small_polygon(Small_shapes& shapes, std::span<const Point> corners, double width, Colour colour, bool filled);

}  // namespace drawing
