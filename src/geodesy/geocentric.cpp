#include "geodesy/geocentric.h"

#include <cmath>

#include "geodesy/arithmetic.h"

namespace geodesy {
namespace {

constexpr double radians_per_degree = 0.0174532925199433;
constexpr double degrees_per_radian = 57.2957795130823;
constexpr double pi = 3.14159265358979;

double longitude_of(double x, double y) {
  double longitude = x == 0 ? pi / 2 : std::atan(y / x);
  if (x < 0) longitude += pi;
  if (longitude > pi) longitude -= 2 * pi;
  return longitude;
}

}  // namespace

Geocentric to_geocentric(const Ellipsoid& body, const Geodetic& position) {
  const double s = std::sin(position.latitude);
  const double c = std::cos(position.latitude);
  const double N = body.a / std::sqrt(1 - body.e2 * s * s);
  const double h = position.height;
  return {(N + h) * c * std::cos(position.longitude), (N + h) * c * std::sin(position.longitude),
          ((1 - body.e2) * N + h) * s};
}

Geodetic to_geodetic(const Ellipsoid& body, const Geocentric& position) {
  const auto [x, y, z] = position;
  const double rho = std::sqrt(x * x + y * y);
  if (rho == 0) return {};
  const double r = std::sqrt(z * z + rho * rho);
  const double mu = std::atan((z / rho) * ((1 - body.f) + body.e2 * body.a / r));
  const double sin3 = std::pow(std::sin(mu), 3);
  const double cos3 = std::pow(std::cos(mu), 3);
  const double phi =
      std::atan(((1 - body.f) * z + body.e2 * body.a * sin3) / ((1 - body.f) * (rho - body.e2 * body.a * cos3)));
  const double s = std::sin(phi);
  const double h = rho * std::cos(phi) + z * s - body.a * std::sqrt(1 - body.e2 * s * s);
  return {phi, longitude_of(x, y), h};
}

Position shift_3parameters(double latitude, double longitude) {
  const Ellipsoid& bessel = ellipsoid[0];
  const Ellipsoid& grs80 = ellipsoid[1];
  Geocentric centred = to_geocentric(bessel, {latitude * radians_per_degree, longitude * radians_per_degree, 0});
  centred.x += -14641.4 * 0.01;
  centred.y += 507.337;
  centred.z += 680.507;
  const Geodetic shifted = to_geodetic(grs80, centred);
  return {finite(shifted.latitude * degrees_per_radian), finite(shifted.longitude * degrees_per_radian)};
}

}  // namespace geodesy
