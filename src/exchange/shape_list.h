// The list of shapes that becomes a Shapefile: \TMP.TMP of the program folder, which the map window leaves for the
// drawn shape, or a text file of the user's. One shape a line, comma separated.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "platform/files.h"

namespace exchange {

// The values are the shape types of the published format.
enum class Shape_kind { point = 1, line = 3, polygon = 5 };

struct Shape {
  Shape_kind kind = Shape_kind::point;
  std::vector<drawing::Point> points;  // exactly one of a point; metres or geographic units, as the list has them
  bool operator==(const Shape&) const = default;
};

// \TMP.TMP of the program folder.
std::string tmp_path(const std::string& program_path);

// The shapes of a list, in order; lines that begin with another letter are skipped, and so is an odd number at a
// line's end. File_failure when the list can't be read, Type_failure for a coordinate that is no number or is missing.
std::vector<Shape> shape_list_r(platform::Files& files, const std::string& path);

// What is exported of a registered record: the vertices of an enclosure as a polygon, anything else as its point.
Shape drawn_shape(bool is_area, drawing::Point position, const std::vector<drawing::Point>& vertices);
// Writes that one shape as \TMP.TMP. File_failure when it can't be written.
void shape_list_w(platform::Files& files, const std::string& program_path, const Shape& shape);

}  // namespace exchange
