// Angles as packed numbers and as degrees, minutes and seconds. A packed angle is a decimal number laid out
// ddmmss.sssss (dddmmss.sssss for a longitude): degrees x 10000 + minutes x 100 + seconds.
#pragma once

#include <string>

namespace geodesy {

struct Unpacked_angle {
  int sign = 0;        // -1, 0 or 1
  double degrees = 0;  // whole degrees of the size
  double decimal = 0;  // the angle in decimal degrees, with its sign
};

// Reads a packed angle. A hair (1e-13) is added to its size, so that 350000 does not fall to 34 degrees 99 minutes.
Unpacked_angle unpack(double packed);

// Decimal degrees to a packed angle, by way of its text, which leaves the binary noise behind. For angles from 0 up; of
// a negative one only the whole degrees come out. Division_failure when it is not finite or has no whole part in 32
// bits.
double degrees_to_packed(double degrees);

struct Signed_dms {
  std::string sign;  // "-", or one blank
  double d = 0, m = 0, s = 0;
};

// Decimal degrees to sign, degrees, minutes and seconds; seconds that would print as 60.00000 carry into the minutes.
// Division_failure when the value is not finite.
Signed_dms degrees_to_dms(double degrees);

}  // namespace geodesy
