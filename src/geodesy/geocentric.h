// Geodetic positions on an ellipsoid to earth-centred coordinates and back, and the fixed shift between the two datums.
#pragma once

#include "geodesy/ellipsoid.h"

namespace geodesy {

struct Geodetic {
  double latitude = 0;   // radians
  double longitude = 0;  // radians
  double height = 0;     // metres above the ellipsoid
};

struct Geocentric {
  double x = 0, y = 0, z = 0;  // metres
};

Geocentric to_geocentric(const Ellipsoid& body, const Geodetic& position);

// By the one-step formula of Bowring (Survey Review 28, 1985), good to 1e-9 seconds near the ground. On the axis, where
// the longitude has no value, everything is 0.
Geodetic to_geodetic(const Ellipsoid& body, const Geocentric& position);

struct Position {
  double latitude = 0;   // degrees
  double longitude = 0;  // degrees
};

// A position on the Tokyo datum (Bessel) to JGD2000 (GRS-80) by the shift at the triangulation point Tokyo Taisho, at
// height 0. Good to some ten metres over the country; for where the parameter table has no entry.
// Division_failure for angles that are no finite numbers.
Position shift_3parameters(double latitude, double longitude);

}  // namespace geodesy
