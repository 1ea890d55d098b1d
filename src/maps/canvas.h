// The one coordinate model of the program.
//
// Three spaces:
//   geographic  hundred-thousandths of a degree (degrees x 100000) as doubles; 139.5 degrees is 13,950,000
//   map         metres east and north of the current sheet's south-west corner
//   canvas      canvas units, half a logical pixel, from the top-left of Picture1, y downwards
// The mouse and the view offsets are in twips: 15 to the logical pixel, 7.5 to the canvas unit.
#pragma once

#include <string>

namespace maps {

inline constexpr double twips_per_unit = 7.5;
inline constexpr double twips_per_pixel = 15;
inline constexpr double sheet_margin = 100;   // canvas units left around the sheet
inline constexpr double sheet_height = 1000;  // canvas units that a sheet's height takes on arrival
inline constexpr double fallback_scale = 10;  // what a conversion makes of a canvas_scale of 0

struct Canvas {
  double canvas_scale = 0;   // canvas units per metre
  double canvas_scale0 = 0;  // the scale to return to
  double zoom_factor = 0.5;
  double view_x = 0, view_y = 0;  // offset of the picture, twips; positive moves it right and down
  double zoom_count = 1;          // magnification of the marks
  double label_scale = 0;         // text size factor
  double map_x0 = 0, map_y0 = 0, map_x1 = 0, map_y1 = 0;  // metres
  double map_w = 0, map_h = 0;
  int y_mode = 2;         // 1: canvas y grows with map Y; 2: north is at the top
  char hemisphere = 'N';  // 'N' or 'S'
  bool is_geographic = false;
  float geo_x0 = 0, geo_y0 = 0, geo_x1 = 0, geo_y1 = 0;  // west, north, east and south edge, geographic units
  double sec_m_x = 0, sec_m_y = 0;                       // metres per second of longitude and of latitude
  double grid_nx = 100, grid_ny = 100;
  double cell_w = 0, cell_h = 0;
  double width = 0, height = 0;  // of Picture1, twips
  bool operator==(const Canvas&) const = default;
};

struct Canvas_point {
  float x = 0, y = 0;  // canvas units
  bool operator==(const Canvas_point&) const = default;
};

struct Map_position {
  double x = 0, y = 0;          // metres
  double geo_x = 0, geo_y = 0;  // geographic units; only where the canvas is geographic
};

// The four corner texts of a sheet: "N353000.0" and "E1393000.0". Corner A is the upper left, B the lower right.
struct Corner_texts {
  std::string lat_a, lon_a, lat_b, lon_b;
  bool operator==(const Corner_texts&) const = default;
};

// Forward: map metres, or geographic units where the input test says so, to canvas units. Each sets a canvas_scale of
// 0 to 10 first. Only henkan_px leaves map_y0 out where the given y is below 100,000, on purpose.
Canvas_point henkan_px(Canvas& canvas, double x, double y);   // geographic when both magnitudes exceed 1,000,000
Canvas_point henkan_px0(Canvas& canvas, double x, double y);  // the same without the magnitude
Canvas_point henkan_px2(Canvas& canvas, double x, double y);  // as henkan_px0 from 100,000
Canvas_point henkan_px4(Canvas& canvas, double x, double y);  // always geographic on a geographic sheet

// Back: a mouse position in twips to map metres and geographic units.
Map_position henkan_M(Canvas& canvas, double mouse_x, double mouse_y);
inline Map_position henkan_M0(Canvas& canvas, double mouse_x, double mouse_y) {
  return henkan_M(canvas, mouse_x, mouse_y);
}

// Geographic units to map metres and back, by the sheet's metres per second. The way back leaves the values as they
// are on a sheet without them.
void geographic_to_map(const Canvas& canvas, double& x, double& y);
void map_to_geographic(const Canvas& canvas, double& x, double& y);

// Sets the frame of a sheet from its corner texts: extents, metres per second, scale. The ellipsoid is Bessel. A frame
// of no height leaves canvas_scale and canvas_scale0 as they were; the view offsets stay in any case.
void zahyo_r3(Canvas& canvas, const Corner_texts& corners);

}  // namespace maps
