#include "geodesy/packed_angle.h"

#include <cmath>

#include "geodesy/arithmetic.h"
#include "platform/numbers.h"

namespace geodesy {

Unpacked_angle unpack(double packed) {
  const int sign = packed > 0 ? 1 : packed < 0 ? -1 : 0;
  double w = std::abs(packed) / 10000 + 1e-13;
  const double d = std::floor(w);
  w = (w - d) * 100;
  const double m = std::floor(w);
  const double seconds = (w - m) * 100;
  return {sign, d, ((seconds / 60 + m) / 60 + d) * sign};
}

double degrees_to_packed(double degrees) {
  const int d = whole(degrees);
  const double t = (degrees - d) * 60;
  const double m = std::trunc(t);
  const double s = (t - m) * 60;
  const double whole_seconds = std::trunc(s);
  const std::string fraction = platform::format_number(s - whole_seconds, ".00000000000000000");
  const std::string text = platform::number_text(d) + platform::format_number(m, "00") +
                           platform::format_number(whole_seconds, "00") + fraction.substr(fraction.find('.'));
  return platform::val(text);
}

Signed_dms degrees_to_dms(double degrees) {
  const double w = std::abs(finite(degrees)) + 1e-11;
  double d = std::trunc(w);
  const double t = (w - d) * 60;
  double m = std::trunc(t);
  double s = (t - m) * 60;
  if (platform::format_number(s, "00.00000").starts_with("60")) {
    s = 0;
    m += 1;
    if (m == 60) {
      m = 0;
      d += 1;
    }
  }
  return {degrees < 0 ? "-" : " ", d, m, s};
}

}  // namespace geodesy
