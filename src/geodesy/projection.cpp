#include "geodesy/projection.h"

#include <cmath>

#include "geodesy/arithmetic.h"

namespace geodesy {
namespace {

// This literal, not the machine's pi: the results depend on it in the millimetres.
constexpr double deg = 3.141592654 / 180;

namespace utm {
constexpr double a = 6377397.155;  // metres
constexpr double e2 = 0.006674372231315;
constexpr double second_e2 = 0.006719218798677;  // e'2
constexpr double one_less_e2 = 0.993325627768685;
constexpr double k0 = 0.9996;
constexpr double false_easting = 500000;
// Meridian arc coefficients
constexpr double A = 1.00503730604856;
constexpr double B = 0.0050478492403;
constexpr double C = 1.0563786831e-05;
constexpr double D = 2.0633322e-08;
constexpr double E = 3.8853e-11;
constexpr double F = 7e-14;
}  // namespace utm

namespace plane9 {
constexpr double phi0 = 0.6283184885978699;             // latitude 36
constexpr double central_meridian = 2.440551996231079;  // 139 degrees 50 minutes
constexpr double k0 = 0.9999;
constexpr double a = 6377.39697265625;  // kilometres
constexpr double e2 = 0.006674372125416994;
constexpr double second_e = 0.08197083324193954;  // e'
constexpr double a_one_less_e2 = 6334.83203125;   // kilometres
// Meridian arc coefficients, and the multiples of the origin's latitude that go with them
constexpr double A = 1.0050369501113892;
constexpr double B = 0.005047848913818598, phi0_x2 = 1.2566369771957397;
constexpr double C = 1.0563800060481299e-05, phi0_x4 = 2.5132739543914795;
constexpr double D = 2.0599999928094803e-08, phi0_x6 = 3.7699108123779297;
}  // namespace plane9

// The sines of the multiples of phi come from its own sine and cosine by the addition theorems: within two nanometres
// of five more calls (latitude 20 to 46), and the whole projection takes half the time.
double utm_meridian_arc(double phi, double sin_phi, double cos_phi) {
  using namespace utm;
  const double sin2 = 2 * sin_phi * cos_phi, cos2 = (cos_phi - sin_phi) * (cos_phi + sin_phi);
  const double sin4 = 2 * sin2 * cos2, cos4 = (cos2 - sin2) * (cos2 + sin2);
  const double sin6 = sin4 * cos2 + cos4 * sin2;
  const double sin8 = 2 * sin4 * cos4, cos8 = (cos4 - sin4) * (cos4 + sin4);
  const double sin10 = sin8 * cos2 + cos8 * sin2;
  return (A * phi - B * 0.5 * sin2 + C * 0.25 * sin4 - (1.0 / 6) * D * sin6 + E * 0.125 * sin8 - F * 0.1 * sin10) * a *
         one_less_e2;
}

double plane9_meridian_arc(double dphi) {
  using namespace plane9;
  return (A * dphi - B * std::sin(dphi) * std::cos(phi0_x2) + C * std::sin(2 * dphi) * std::cos(phi0_x4) / 2 -
          D * std::sin(3 * dphi) * std::cos(phi0_x6) / 3) *
         a_one_less_e2;
}

}  // namespace

// The series of the transverse Mercator projection to the fourth order in dl (Snyder, Map Projections: A Working
// Manual, section 8), nested.
Utm_position latlon_to_utm(float latitude, float longitude, float central_meridian) {
  using namespace utm;
  const double phi = latitude * deg;
  const double dl = longitude * deg - central_meridian;
  const double c = std::cos(phi);
  const double s = std::sin(phi);
  const double t2 = (s / c) * (s / c);
  const double p = dl * c;
  const double p2 = p * p;
  const double N = a / std::sqrt(1 - e2 * s * s);
  const double eta2 = c * c * second_e2;
  const double S = utm_meridian_arc(phi, s, c);
  const double G =
      5 - t2 + 9 * eta2 + 4 * eta2 * eta2 + (61 - 58 * t2 + t2 * t2 + 270 * eta2 - 330 * t2 * eta2) * p2 / 30;
  const double northing = (S + 0.5 * N * s * dl * p * (1 + G * p2 / 12)) * k0;
  const double H = 1 - t2 + eta2 + (5 - 18 * t2 + t2 * t2 + 14 * eta2 - 58 * t2 * eta2) * p2 * 0.05;
  const double easting = (1 + H * p2 / 6) * N * p * k0 + false_easting;
  return {single(easting), single(northing)};
}

bool latlon_to_utm_auto(float latitude, float longitude, float& easting, float& northing) {
  if (!(longitude >= 120 && longitude < 156)) return false;
  const int zones_east_of_51 = (whole(longitude) - 120) / 6;
  const double middle = 123 + 6 * zones_east_of_51;
  const Utm_position position = latlon_to_utm(latitude, longitude, single(middle * deg));
  easting = position.easting;
  northing = position.northing;
  return true;
}

// Gauss-Kruger to the sixth order in dl, in kilometres until the last line.
Plane_position latlon_to_plane9(float latitude, float longitude) {
  using namespace plane9;
  const double phi = latitude;
  const double dl = longitude - central_meridian;
  const double sin_phi = std::sin(phi);
  const double cos_phi = std::cos(phi);
  const double t = std::tan(phi);
  const double t2 = t * t, t4 = t2 * t2;
  const double eta = second_e * cos_phi;
  const double eta2 = eta * eta, eta4 = eta2 * eta2;
  const double N = a / std::sqrt(1 - e2 * sin_phi * sin_phi);
  const double B_arc = plane9_meridian_arc(phi - phi0);
  const double dl2 = dl * dl, dl3 = dl2 * dl, dl4 = dl2 * dl2, dl5 = dl4 * dl, dl6 = dl4 * dl2;
  const double cos3 = cos_phi * cos_phi * cos_phi, cos5 = cos3 * cos_phi * cos_phi;
  const double x = B_arc + dl2 * N * sin_phi * cos_phi / 2 +
                   dl4 * N * sin_phi * cos3 * (5 - t2 + 9 * eta2 + 4 * eta4) / 24 +
                   dl6 * N * sin_phi * cos5 * (61 - 58 * t2 + t4) / 720;
  const double y = dl * N * cos_phi + dl3 * N * cos3 * (1 - t2 + eta2) / 6 + dl5 * N * cos5 * (5 - 18 * t2 + t4) / 120;
  return {single(x * k0 * 1000), single(y * k0 * 1000)};
}

}  // namespace geodesy
