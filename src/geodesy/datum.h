// modTky2jgd: positions from the Tokyo datum (on Bessel) to JGD2000 (on GRS-80) by the published parameter grid. The
// four shifts at the corners of the position's third-level mesh cell are interpolated; where one is missing the whole
// position is shifted by three fixed parameters instead.
#pragma once

#include <array>
#include <string>

#include "geodesy/shift_table.h"

namespace geodesy {

struct Mesh_record {
  int first = 0;     // m1 x 100 + m2
  int second = 0;    // m3 x 10 + m4
  int third = 0;     // m5 x 10 + m6
  int code = 0;      // the 8-digit number
  std::string text;  // "5440-10-27"
  double y = 0;      // latitude fraction inside the cell, from its south side
  double x = 0;      // longitude fraction, from its west side
};

// The third-level cell of a position in degrees. A hair (1e-11 of a cell) lifts a position that is binary noise below a
// border onto it. Far outside any map a digit can leave its range: Type_failure naming "LatLon2MeshCode" and the value.
Mesh_record LatLon2MeshCode(double latitude, double longitude);

// Its checks, in their order: m3 and m4, the second-level digits, from 0 to 7, m5 and m6, the third-level ones, from 0
// to
// 9. Those of m5 and m6 guard the carry above them: no position in degrees brings them out of range.
void check_mesh_digits(double m3, double m4, double m5, double m6);

struct Neighbours {
  int east = 0, north = 0, north_east = 0;  // 8-digit codes
};

// Nothing limits the first level.
Neighbours next_meshes(const Mesh_record& mesh);

// Between four corner values; x and y are 0 at the south-west corner and 1 at the north-east one.
double bilinear(double sw, double se, double nw, double ne, double x, double y);

inline constexpr double no_shift = -9999.0;

struct Shift {
  double dB = no_shift;  // latitude shift, arc seconds
  double dL = no_shift;  // longitude shift, arc seconds
};

// The interpolated shift at a position in degrees; both no_shift outside latitude 20 to 46 or longitude 120 to 154, and
// where a corner is not in the table. Of repeated codes the rows that a walk meets first count: the south-west corner
// from row 1, each further corner from the row of the one before.
Shift mesh_shift(const Shift_table& table, double latitude, double longitude);

// Packed angles (packed_angle.h) to decimal degrees on JGD2000. False, with the outputs as they were, for a negative
// angle, for whole degrees of latitude outside 20 to 46 and of longitude outside 120 to 154.
bool tky2jgd(const Shift_table& table, double packed_longitude, double packed_latitude, double& longitude,
             double& latitude);

// A corner of a sheet to second counts on JGD2000. False, with the outputs as they were, where tky2jgd gives false.
bool SOKUCHIKEI_HENKAN(const Shift_table& table, double lat_d, double lat_m, double lat_s, double lon_d, double lon_m,
                       double lon_s, double& lat_seconds, double& lon_seconds);

}  // namespace geodesy
