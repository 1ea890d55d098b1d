// The ground of the sample's place, one model from which every sheet, observation, log and grid is derived. Metres
// throughout: x east and y north of the place's origin, z above the sea. Azimuths in degrees from true north,
// clockwise.
//
// Topography: valleys hang on the stream network; the ridges stand where two valleys meet.
// Rock: four strata, 1 the lowest; boundary k (1 to 3) parts stratum k from stratum k + 1. They are folded about one
// plunging axis and offset by one normal fault, whose block above the fault plane has gone down along its dip.
#pragma once

#include <vector>

#include "make_sample/streams.h"

namespace ground {

// The value of a surface at a point, and its slopes: what it rises for a metre east and a metre north.
struct Height {
  double z = 0, dx = 0, dy = 0;
};

// A piece of stream between two nodes, from the lower to the upper one.
struct Reach {
  Point low, high;
  double bed_low = 0, bed_high = 0;
  double floor_low = 0, floor_high = 0;
  int stream = 0;
};

struct Ground {
  Stream_net streams;
  std::vector<Reach> reaches;
  std::vector<std::vector<int>> near;  // for each cell of the country the reaches that can shape it
};

// A plane in the ground. The plane falls to the right of the strike, so dip_direction is strike + 90.
struct Attitude {
  double strike = 0;         // 0 to under 360
  double dip = 0;            // 0 to 90
  double dip_direction = 0;  // 0 to under 360
};

// A line in the ground: the azimuth towards which it goes down, and how steeply.
struct Lineation {
  double trend = 0, plunge = 0;
};

inline constexpr int strata = 4;
inline constexpr int boundaries = 3;

Ground make_ground();

// The surface of the land. Good inside the country (streams.h); beyond it the edge's valleys go on.
Height topography(const Ground& ground, double x, double y);

// Boundary k, 1 to 3. Between the two edges of a boundary torn by the fault it runs down the fault plane, so it is one
// unbroken surface over the whole country.
Height boundary(int k, double x, double y);

// The stratum at a point, 1 to 4, whether the land reaches up to it or not.
int stratum_at(double x, double y, double z);

// Attitude of boundary k, from its slopes.
Attitude strike_dip(int k, double x, double y);
// Attitude of the layering at a point: inside a stratum it passes from the lower boundary's to the upper one's.
Attitude bedding(double x, double y, double z);

Height fault_plane(double x, double y);
Attitude fault_strike_dip();
// A point that the fault plane goes through.
Point fault_point();
// True for the block that has gone down, the one above the fault plane.
bool above_fault(double x, double y, double z);
// Metres that the block has gone straight down, and metres that it has moved along the dip direction.
inline constexpr double fault_throw = 150;
double fault_heave();

// The axis of all folds.
Lineation fold_axis();
// The scratches on the fault plane: straight down its dip.
Lineation fault_striation();

// The attitude of a plane with these slopes. A level plane has strike 0 and dip 0.
Attitude attitude_of_slopes(double dx, double dy);

}  // namespace ground
