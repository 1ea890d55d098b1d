// Transverse Mercator on the Bessel ellipsoid: UTM, and plane rectangular system IX. Both work in double precision on
// single-precision angles and narrow their results to single at the very end, so a northing is good to a quarter of a
// metre and no better. The two carry constants of their own that differ in their digits on purpose.
#pragma once

namespace geodesy {

struct Utm_position {
  float easting = 0;   // metres, false easting 500,000
  float northing = 0;  // metres from the equator
};

// Latitude and longitude in degrees, the central meridian in radians. Any angles are taken; Division_failure where the
// arithmetic leaves its range (a pole, an infinity).
Utm_position latlon_to_utm(float latitude, float longitude, float central_meridian);

// The zone from the whole degrees of the longitude: 51 (120 to 125) to 56 (150 to 155). Outside 120 to 155 the outputs
// stay as they were and the result is false. Neighbouring zones are not reconciled.
bool latlon_to_utm_auto(float latitude, float longitude, float& easting, float& northing);

struct Plane_position {
  float x = 0;  // metres northward from latitude 36
  float y = 0;  // metres eastward from longitude 139 degrees 50 minutes
};

// System IX from latitude and longitude in radians; nothing is converted. The meridian arc is expanded about the origin
// with the cosines of the origin itself, which is exact there and off by some 10 cm a tenth of a degree away.
Plane_position latlon_to_plane9(float latitude, float longitude);

}  // namespace geodesy
