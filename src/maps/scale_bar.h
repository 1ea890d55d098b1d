// The length of the scale bar that is drawn over the map.
#pragma once

#include <string>

#include "maps/canvas.h"

namespace maps {

struct Scale_bar {
  double metres = 0;
  double units = 0;  // canvas units
  std::string text;  // "500 m", "2 km"
};

// The longest bar of 1, 2 or 5 times a power of ten metres that is not wider than `widest` canvas units. Zero length
// without a scale.
Scale_bar scale_bar(const Canvas& canvas, double widest);

}  // namespace maps
