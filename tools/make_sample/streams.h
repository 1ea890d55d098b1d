// The stream network of the sample's place: one winding river from west to east and the streams that feed it, grown by
// rule. The valleys of the topography hang on it, so water always runs downhill.
#pragma once

#include <vector>

namespace ground {

struct Point {
  double x = 0, y = 0;  // metres east and north of the place's origin
};

struct Stream_node {
  Point at;
  double bed = 0;    // height of the water, metres
  double flow = 0;   // kilometres of stream above this node, the node's own piece included
  double floor = 0;  // half the width of the valley floor, metres
};

// Nodes from the mouth upwards. The first node of a tributary is the node of its parent where it flows in.
struct Stream {
  int parent = -1;  // place of the parent in the network; -1 for the river
  int order = 0;    // 0 river, 1 large tributary, 2 brook, 3 gully
  std::vector<Stream_node> nodes;
};

// A parent stands before its tributaries.
using Stream_net = std::vector<Stream>;

// Half the measure of the country that has streams: a little more than the sheets cover.
inline constexpr double half_width_of_country = 14000;
inline constexpr double half_height_of_country = 12000;

Stream_net make_streams();

// The river's course: its northing at an easting.
double river_course(double x);

}  // namespace ground
