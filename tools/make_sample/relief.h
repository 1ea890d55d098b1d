// The topography on a regular lattice, from which the pictures take their heights: near enough to the model for a
// picture (some decimetres), and fast enough for every pixel.
#pragma once

#include <vector>

#include "make_sample/ground.h"

namespace sample {

struct Relief {
  double west = 0, south = 0;  // of the first node, metres
  double spacing = 0;
  int columns = 0, rows = 0;
  std::vector<float> heights;  // rows from the south
  // On each fourth node, how surely the land there is a valley floor, 0 to 1: it lies below what surrounds it.
  int coarse_columns = 0, coarse_rows = 0;
  std::vector<float> valley;
};

// Heights over the sheets and a margin; works on all processors.
Relief make_relief(const ground::Ground& ground, double spacing);

// Height and slopes between the nodes by bicubic convolution (Keys 1981, a = -1/2). Beyond the lattice the edge goes
// on.
ground::Height relief_at(const Relief& relief, double x, double y);

// The lattice interpolated along one northing, for going through a picture's row.
struct Relief_row {
  double west = 0, spacing = 0;
  std::vector<double> heights, slopes;  // per column: height, and rise towards the north
};
Relief_row relief_row(const Relief& relief, double y);
ground::Height relief_at(const Relief_row& row, double x);

// How surely a place is a valley floor, 0 to 1.
double valley_at(const Relief& relief, double x, double y);

struct Summit {
  ground::Point at;
  double height = 0;
  double rises = 0;  // metres above the mean of a ring around it
};

// Nodes higher than all others within `radius` metres, the most prominent first.
std::vector<Summit> summits(const Relief& relief, double radius);

}  // namespace sample
