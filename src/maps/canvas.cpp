#include "maps/canvas.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

#include "maps/corner_text.h"
#include "platform/numbers.h"

namespace maps {
namespace {

// Above these both coordinates of a point are geographic, below they are metres.
constexpr double geographic_from = 1'000'000;
constexpr double geographic_from_px2 = 100'000;
// henkan_px subtracts no map_y0 from a y below this.
constexpr double plain_y_below = 100'000;

constexpr double units_per_degree = 100'000;
constexpr double seconds_per_degree = 3600;

// Narrowed to single precision; what lies beyond its range comes to its end, so that no infinity reaches the surface.
float single(double value) {
  constexpr double limit = std::numeric_limits<float>::max();
  return std::isnan(value) ? 0.0F : static_cast<float>(std::clamp(value, -limit, limit));
}

double scale_of(Canvas& canvas) {
  if (canvas.canvas_scale == 0) canvas.canvas_scale = fallback_scale;
  return canvas.canvas_scale;
}

// `y0` is what is taken off the y of a canvas with north at the top.
Canvas_point to_canvas(Canvas& canvas, double x, double y, double y0) {
  const double s = scale_of(canvas);
  const double px = (x - canvas.map_x0) * s + sheet_margin + canvas.view_x / twips_per_unit;
  const double along = canvas.y_mode == 1 ? y - canvas.map_y0 : std::abs(canvas.map_y1 - canvas.map_y0) - (y - y0);
  const double py = along * s + sheet_margin + canvas.view_y / twips_per_unit;
  return {single(px), single(py)};
}

Canvas_point convert(Canvas& canvas, double x, double y, bool geographic) {
  if (geographic) geographic_to_map(canvas, x, y);
  return to_canvas(canvas, x, y, canvas.map_y0);
}

struct Metres_per_second {
  double longitude = 0, latitude = 0;
};

// Length of a second of arc on the Bessel ellipsoid. Of longitude: radius of the parallel N cos(lat), with the radius
// of curvature in the prime vertical N = a / (1 - e2 sin2(lat))^(1/2). Of latitude: the meridian radius of curvature
// M = a (1 - e2) / (1 - e2 sin2(lat))^(3/2). Both in Snyder, Map Projections - A Working Manual (USGS Professional
// Paper 1395, 1987), equations 4-18, 4-20 and 4-21. e2 = 2f - f2.
Metres_per_second second_lengths(double latitude_degrees) {
  constexpr double a = 6377397.155;
  constexpr double f = 1 / 299.152813;
  constexpr double e2 = f * (2 - f);
  constexpr double radians_per_second = std::numbers::pi / 648000;
  const double latitude = latitude_degrees * std::numbers::pi / 180;
  const double w2 = 1 - e2 * std::sin(latitude) * std::sin(latitude);
  return {radians_per_second * a * std::cos(latitude) / std::sqrt(w2),
          radians_per_second * a * (1 - e2) / (w2 * std::sqrt(w2))};
}

void set_edges(Canvas& canvas, const Corner_seconds& seconds) {
  const auto units = [](double value) { return single(value / seconds_per_degree * units_per_degree); };
  const bool a_is_south = seconds.lat_a < seconds.lat_b;
  canvas.hemisphere = a_is_south ? 'S' : 'N';
  canvas.y_mode = a_is_south ? 1 : 2;
  canvas.geo_x0 = units(seconds.lon_a);
  canvas.geo_x1 = units(seconds.lon_b);
  canvas.geo_y0 = units(a_is_south ? seconds.lat_b : seconds.lat_a);
  canvas.geo_y1 = units(a_is_south ? seconds.lat_a : seconds.lat_b);
}

void set_extents(Canvas& canvas) {
  canvas.map_x0 = canvas.map_y0 = 0;
  canvas.map_x1 = canvas.geo_x1;
  canvas.map_y1 = canvas.geo_y0;
  geographic_to_map(canvas, canvas.map_x1, canvas.map_y1);
  if (canvas.map_y0 > canvas.map_y1) std::swap(canvas.map_y0, canvas.map_y1);
  canvas.map_w = canvas.map_x1 - canvas.map_x0;
  canvas.map_h = canvas.map_y1 - canvas.map_y0;
}

}  // namespace

Canvas_point henkan_px(Canvas& canvas, double x, double y) {
  const double y0 = y < plain_y_below ? 0 : canvas.map_y0;
  const bool geographic = canvas.is_geographic && std::abs(x) > geographic_from && std::abs(y) > geographic_from;
  if (geographic) geographic_to_map(canvas, x, y);
  return to_canvas(canvas, x, y, y0);
}

Canvas_point henkan_px0(Canvas& canvas, double x, double y) {
  return convert(canvas, x, y, canvas.is_geographic && x > geographic_from && y > geographic_from);
}

Canvas_point henkan_px2(Canvas& canvas, double x, double y) {
  return convert(canvas, x, y, canvas.is_geographic && x > geographic_from_px2 && y > geographic_from_px2);
}

Canvas_point henkan_px4(Canvas& canvas, double x, double y) {
  return convert(canvas, x, y, canvas.is_geographic);
}

Map_position henkan_M(Canvas& canvas, double mouse_x, double mouse_y) {
  const double s = scale_of(canvas);
  const double dx = (mouse_x - canvas.view_x) / twips_per_pixel / canvas.zoom_factor;
  const double dy = (mouse_y - canvas.view_y) / twips_per_pixel / canvas.zoom_factor;
  const double h = std::abs(canvas.map_y1 - canvas.map_y0);
  const bool y_grows = canvas.y_mode == 1 || (canvas.is_geographic && canvas.hemisphere == 'S');

  Map_position position;
  position.x = (dx - sheet_margin) / s + canvas.map_x0;
  position.y = y_grows ? (dy - sheet_margin) / s + canvas.map_y0 : (h + canvas.map_y0) - (dy - sheet_margin) / s;
  if (canvas.is_geographic) {
    position.geo_x = position.x;
    position.geo_y = position.y;
    map_to_geographic(canvas, position.geo_x, position.geo_y);
  }
  return position;
}

void geographic_to_map(const Canvas& canvas, double& x, double& y) {
  x = (x - canvas.geo_x0) / units_per_degree * seconds_per_degree * canvas.sec_m_x;
  y = (y - canvas.geo_y1) / units_per_degree * seconds_per_degree * canvas.sec_m_y;
}

void map_to_geographic(const Canvas& canvas, double& x, double& y) {
  if (canvas.sec_m_x == 0 || canvas.sec_m_y == 0) return;
  x = canvas.geo_x0 + x / canvas.sec_m_x / seconds_per_degree * units_per_degree;
  y = canvas.geo_y1 + y / canvas.sec_m_y / seconds_per_degree * units_per_degree;
}

void zahyo_r3(Canvas& canvas, const Corner_texts& corners) {
  const Corner_seconds seconds = corner_seconds(corners);
  canvas.grid_nx = canvas.grid_ny = 100;
  canvas.is_geographic = true;
  set_edges(canvas, seconds);

  const double middle = (seconds.lat_a + seconds.lat_b) / 2 / seconds_per_degree;
  const Metres_per_second lengths = second_lengths(platform::fix(middle));
  canvas.sec_m_x = lengths.longitude;
  canvas.sec_m_y = lengths.latitude;
  set_extents(canvas);
  canvas.cell_w = std::abs(canvas.map_w / canvas.grid_nx);
  canvas.cell_h = std::abs(canvas.map_h / canvas.grid_ny);

  const double h = std::abs(canvas.map_y1 - canvas.map_y0);
  if (h > 0) canvas.canvas_scale = canvas.canvas_scale0 = 500 / h * 2;
}

}  // namespace maps
