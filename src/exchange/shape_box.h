// The box round the points of a shape.
#pragma once

#include <vector>

#include "drawing/surface.h"

namespace exchange {

struct Shape_box {
  drawing::Point least, most;
};

// All zeros for no points.
Shape_box shape_box(const std::vector<drawing::Point>& points);

}  // namespace exchange
