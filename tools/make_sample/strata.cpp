#include <algorithm>
#include <cmath>
#include <numbers>

#include "make_sample/ground.h"

namespace ground {

namespace {

constexpr double radians = std::numbers::pi / 180;
constexpr double turn = 2 * std::numbers::pi;

// The folds: one axis, two wave lengths, and a plunge that brings up older strata towards the south-west.
constexpr double axis_trend = 35, axis_plunge = 2;
constexpr double wave_length[] = {6600, 2250};
constexpr double wave_height[] = {265, 62};  // half the height from trough to crest
constexpr double wave_phase[] = {0.6, 2.1};

constexpr double boundary_height[] = {170, 445, 700};  // of boundaries 1 to 3 at the origin, folds left out
constexpr double thickness_wave = 22;                  // how much a boundary swells against the folds

// The fault: through a point, with its strike and dip.
constexpr double fault_x = 1500, fault_y = 800, fault_z = 400;
constexpr double fault_strike = 330, fault_dip = 64;

// Boundary k as it lay before the fault moved, and lies still in the block below it.
Height before_fault(int k, double x, double y) {
  const double east = std::sin(axis_trend * radians), north = std::cos(axis_trend * radians);
  const double across = x * north - y * east;
  const double fall = std::tan(axis_plunge * radians);
  double z = boundary_height[k - 1] - fall * (x * east + y * north);
  double slope_across = 0;
  for (int wave = 0; wave < 2; ++wave) {
    const double angle = turn * across / wave_length[wave] + wave_phase[wave];
    z += wave_height[wave] * std::cos(angle);
    slope_across -= wave_height[wave] * std::sin(angle) * turn / wave_length[wave];
  }
  const double swell = turn * (x / 9100 + y / 12700) + 1.7 * k;
  z += thickness_wave * std::sin(swell);
  const double swell_slope = thickness_wave * std::cos(swell) * turn;
  return {z, -fall * east + slope_across * north + swell_slope / 9100,
          -fall * north - slope_across * east + swell_slope / 12700};
}

// Boundary k in the block that has gone down.
Height after_fault(int k, double x, double y) {
  const double direction = (fault_strike + 90) * radians;
  Height height = before_fault(k, x - fault_heave() * std::sin(direction), y - fault_heave() * std::cos(direction));
  height.z -= fault_throw;
  return height;
}

Height on_side(int k, double x, double y, bool above) {
  return above ? after_fault(k, x, y) : before_fault(k, x, y);
}

double full_turn(double azimuth) {
  azimuth = std::fmod(azimuth, 360.0);
  return azimuth < 0 ? azimuth + 360 : azimuth;
}

}  // namespace

double fault_heave() {
  return fault_throw / std::tan(fault_dip * radians);
}

Height fault_plane(double x, double y) {
  const double direction = (fault_strike + 90) * radians;
  const double fall = std::tan(fault_dip * radians);
  const double dx = -fall * std::sin(direction), dy = -fall * std::cos(direction);
  return {fault_z + (x - fault_x) * dx + (y - fault_y) * dy, dx, dy};
}

bool above_fault(double x, double y, double z) {
  return z > fault_plane(x, y).z;
}

Height boundary(int k, double x, double y) {
  const Height below = before_fault(k, x, y);
  const Height above = after_fault(k, x, y);
  const Height plane = fault_plane(x, y);
  if (below.z <= plane.z) return below;
  if (above.z >= plane.z) return above;
  return plane;
}

int stratum_at(double x, double y, double z) {
  const bool above = above_fault(x, y, z);
  int stratum = 1;
  while (stratum < strata && z > on_side(stratum, x, y, above).z) ++stratum;
  return stratum;
}

Attitude attitude_of_slopes(double dx, double dy) {
  const double slope = std::hypot(dx, dy);
  if (slope == 0) return {};
  // The plane falls against its slopes.
  const double direction = full_turn(std::atan2(-dx, -dy) / radians);
  return {full_turn(direction - 90), std::atan(slope) / radians, direction};
}

Attitude strike_dip(int k, double x, double y) {
  const Height height = boundary(k, x, y);
  return attitude_of_slopes(height.dx, height.dy);
}

Attitude bedding(double x, double y, double z) {
  const bool above = above_fault(x, y, z);
  const int stratum = stratum_at(x, y, z);
  const Height low = on_side(std::max(stratum - 1, 1), x, y, above);
  const Height high = on_side(std::min(stratum, boundaries), x, y, above);
  const double span = high.z - low.z;
  const double part = span > 0 ? std::clamp((z - low.z) / span, 0.0, 1.0) : 0;
  return attitude_of_slopes(low.dx + part * (high.dx - low.dx), low.dy + part * (high.dy - low.dy));
}

Attitude fault_strike_dip() {
  return {fault_strike, fault_dip, full_turn(fault_strike + 90)};
}

Point fault_point() {
  return {fault_x, fault_y};
}

Lineation fold_axis() {
  return {axis_trend, axis_plunge};
}

Lineation fault_striation() {
  return {full_turn(fault_strike + 90), fault_dip};
}

}  // namespace ground
