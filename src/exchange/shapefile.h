// The program's own Shapefile: one shape in a .shp and a .shx, laid over what the files held before.
//
// Integers are written as 16-bit values in the lower half of their 32-bit fields, and neither file is cut: bytes that
// a shape doesn't cover, the tail of a longer one among them, stay. The .shx carries the length of the .shp, and the
// offset 51; readers that trust the .shx refuse it. gis_shapefile.h writes the set that they take.
#pragma once

#include <cstddef>
#include <string>

#include "exchange/shape_list.h"

namespace exchange {

// The points of which the record's length, n x 8 + 24, still goes into 16 bits.
inline constexpr std::size_t shape_points_limit = 8188;

struct Shapefile {
  std::string shp, shx;  // content
};

// Each lays a shape over the content. The box of a point runs from 0 to twice its coordinates, so that it has room
// round it; a polygon is written as it is given, closed or not. Division_failure, and the content as it was, for more
// than shape_points_limit points. A line or polygon without points has a box of zeros.
void shape_point(Shapefile& file, drawing::Point point);
void shape_line(Shapefile& file, const std::vector<drawing::Point>& points);
void shape_polygon(Shapefile& file, const std::vector<drawing::Point>& points);
// The one of the three that fits the shape.
void shape_out(Shapefile& file, const Shape& shape);

}  // namespace exchange
