// The Japanese standard regional mesh (JIS X 0410) as texts of digits, latitude digits before longitude digits at each
// level, in all the grains of the map sheets; and the split of second counts. Degrees, minutes and seconds come as
// singles; every sum of seconds is formed in double precision, so that only the given singles are rounded.
//   first level   40 minutes x 1 degree        two digits, two digits
//   second level  300 seconds x 450 seconds    one digit, one digit
#pragma once

#include <string>
#include <string_view>

namespace geodesy {

struct Half_code {
  std::string code;          // eight digits: a quarter of a second-level cell; its last two are 0 or 5
  std::string six_digits;    // the second-level cell
  std::string second_level;  // the two second-level digits by themselves
};

// Quarter sheets, 2 x 2 in a second-level cell, each 150 x 225 seconds. The first-level latitude is taken from whole
// minutes: seconds beyond 59 do not lift it. Division_failure where a step does not fit a whole number, here and below.
Half_code mesh_code_half(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s);

// Ten digits: the second-level cell divided rows x columns as the name says, both counts padded to two digits.
std::string mesh_code_2x4(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s);
std::string mesh_code_6x10(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s);
std::string mesh_code_12x20(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s);
std::string mesh_code_24x40(float lat_d, float lat_m, float lat_s, float lon_d, float lon_m, float lon_s);

struct Mesh_origin {
  double lat_seconds = 0;
  double lon_seconds = 0;
};

// The south-west corner of a six-digit code, or of an eight-digit one whose last two digits count 30 and 45 seconds (a
// third-level cell). The steps are not those of mesh_code_half, on purpose; its digits 0 and 5 come out right all the
// same, as 5 x 30 and 5 x 45. A text of any other length counts as six digits; what is not a digit, or missing, reads
// as 0.
Mesh_origin mesh_code_origin(std::string_view code);

struct Dms_pair {
  float lat_d = 0, lat_m = 0, lat_s = 0;
  float lon_d = 0, lon_m = 0, lon_s = 0;
};

// Splits second counts, each by itself; a negative count gives negative parts. With `whole_seconds` the seconds lose
// their fraction.
Dms_pair seconds_to_dms(float lat_seconds, float lon_seconds, bool whole_seconds = false);

}  // namespace geodesy
