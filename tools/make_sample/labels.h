// The lettering of the map: what is written where, settled once for a scale so that a name that crosses a sheet's edge
// goes on in the neighbour. No two names overlap; what comes first in the order of importance stays.
#pragma once

#include <string>
#include <vector>

#include "make_sample/country.h"

namespace sample {

enum class Letters { town, village, station, summit, height, contour, river, lake, municipality };

struct Label {
  std::string text;
  Point at;           // the middle of the lettering
  double angle = 0;   // radians, counter-clockwise from east
  double mm = 2;      // height of a letter on the printed map
  double spread = 0;  // blank between two letters, in letter heights
  Letters letters = Letters::village;
};

std::vector<Label> make_labels(const Country& country, int scale);

}  // namespace sample
