#include "make_sample/place.h"

#include <cmath>
#include <numbers>

#include "geodesy/ellipsoid.h"
#include "geodesy/mesh_code.h"

namespace sample {

namespace {

constexpr Position origin{35.75, 138.875};
constexpr double radians = std::numbers::pi / 180;

struct Metres_per_degree {
  double north = 0, east = 0;
};

// Radii of curvature of the meridian and of the prime vertical at the origin, on Bessel.
Metres_per_degree metres_per_degree() {
  const geodesy::Ellipsoid& bessel = geodesy::ellipsoid[0];
  const double sine = std::sin(origin.latitude * radians);
  const double w2 = 1 - bessel.e2 * sine * sine;
  const double meridian = bessel.a * (1 - bessel.e2) / (w2 * std::sqrt(w2));
  const double vertical = bessel.a / std::sqrt(w2);
  return {meridian * radians, vertical * std::cos(origin.latitude * radians) * radians};
}

struct Named_sheet {
  const char* stem;
  const char* name;
  const char* roman_name;
};

constexpr Named_sheet whole_sheets[] = {
    {"533856", "霧沢", "KIRISAWA"},
    {"533857", "奥鳴沢", "OKUNARUSAWA"},
    {"533846", "石楠峠", "SHAKUNAGE TOGE"},
    {"533847", "瀬見川", "SEMIGAWA"},
};

constexpr const char* quarter_sheets[] = {
    "53385650", "53385655", "53385750",  //
    "53385600", "53385605", "53385700",  //
    "53384650", "53384655", "53384750",
};

Frame frame_of(const std::string& stem, double height, double width) {
  // Sheets begin at whole seconds; a third of a degree does not come out as such.
  const geodesy::Mesh_origin corner = geodesy::mesh_code_origin(stem);
  const double south = std::round(corner.lat_seconds), west = std::round(corner.lon_seconds);
  return {south, west, south + height, west + width};
}

}  // namespace

Position position_of(ground::Point at) {
  const Metres_per_degree metres = metres_per_degree();
  return {origin.latitude + at.y / metres.north, origin.longitude + at.x / metres.east};
}

ground::Point point_of(Position position) {
  const Metres_per_degree metres = metres_per_degree();
  return {(position.longitude - origin.longitude) * metres.east, (position.latitude - origin.latitude) * metres.north};
}

Position datum_shift_seconds(Position position) {
  const double north = position.latitude - origin.latitude, east = position.longitude - origin.longitude;
  return {11.6180 - 0.62 * north + 0.21 * east + 0.0085 * std::sin(19 * north + 7 * east),
          -11.7420 - 0.55 * north - 0.48 * east + 0.0070 * std::cos(13 * north - 17 * east)};
}

double declination(Position position) {
  return -7.05668 - 0.34928 * (position.latitude - origin.latitude) + 0.12256 * (position.longitude - origin.longitude);
}

std::vector<Sheet> sheets() {
  std::vector<Sheet> all;
  for (const Named_sheet& one : whole_sheets)
    all.push_back({one.stem, one.name, one.roman_name, Sheet_kind::whole, frame_of(one.stem, 300, 450)});
  for (const char* stem : quarter_sheets) all.push_back({stem, "", "", Sheet_kind::quarter, frame_of(stem, 150, 225)});
  all.push_back({"NI54319", "瀬見川", "SEMIGAWA", Sheet_kind::fifty_thousand, frame_of("533846", 600, 900)});
  return all;
}

}  // namespace sample
