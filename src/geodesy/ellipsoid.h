// The two ellipsoids of the datum conversion. The projections carry Bessel constants of their own (projection.cpp).
#pragma once

#include <array>
#include <string_view>

namespace geodesy {

struct Ellipsoid {
  double a = 0;          // semi-major axis, metres
  double inverse_f = 0;  // inverse flattening
  double f = 0;          // flattening
  double e2 = 0;         // first eccentricity squared
  std::string_view name;
};

constexpr Ellipsoid ellipsoid_of(double a, double inverse_f, std::string_view name) {
  return {a, inverse_f, 1 / inverse_f, (2 * inverse_f - 1) / inverse_f / inverse_f, name};
}

// Rows 0 and 1; filled by the compiler, so it is there before anything runs.
inline constexpr std::array<Ellipsoid, 2> ellipsoid{
    ellipsoid_of(6377397.155, 299.152813, "Bessel"),
    ellipsoid_of(6378137.0, 298.257222101, "GRS-80"),
};

}  // namespace geodesy
