// Where two segments cross.
#pragma once

#include "geodesy/plane.h"

namespace observations {

struct Crossing {
  geodesy::Point at{-9999, -9999};
  bool found = false;
};

// The crossing of the lines through a-b and c-d; found when it lies on both segments, ends included, all compared after
// rounding to 11 decimals (15 digits). A segment of no length and parallel ones have none: (-9999, -9999), not found.
Crossing KOUTEN(geodesy::Point a, geodesy::Point b, geodesy::Point c, geodesy::Point d);

// The same, but a crossing at an end of either segment is not found.
Crossing crossing_inside(geodesy::Point a, geodesy::Point b, geodesy::Point c, geodesy::Point d);

}  // namespace observations
