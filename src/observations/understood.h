// What the system will understand of a strike and a dip as they are typed: the plane, the side to which it falls, the
// true strike after the declination, and what of the texts doesn't fit the notation. It refuses nothing; the entry
// panel shows it back so that a slip is seen before it is stored.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "observations/true_north.h"

namespace observations {

enum class Reading {
  blank,
  fits,     // a form of the notation, read in whole
  beyond,   // a form of the notation with an angle beyond its range: "N120E", "400", "95E"
  partly,   // a number is read, but something of the text is left out: "15W", "N15E "
  as_zero,  // reads as 0 though it doesn't say so: "EW", "30S" beside a strike without a letter
};

enum class Correction {
  applied,    // the declination is added
  not_taken,  // the record is marked as corrected: the strike is already true
  unknown,    // no declination is known: the strike is shown uncorrected
};

struct Understood {
  Reading strike = Reading::blank;
  Reading dip = Reading::blank;
  // The plane as read, the azimuth brought into 0 to 360 (360 itself becomes 0), without declination; it falls to the
  // right of the azimuth.
  Strike_value raw;
  // Where it falls: the azimuth of the dip's direction, and its compass point of eight, "N", "NE" ... "NW". Empty where
  // the dip has no side that counts.
  std::optional<double> fall;
  std::string side;
  Correction correction = Correction::unknown;
  double declination = 0;  // that was added, rounded to one decimal as the displays do; 0 where none was
  // The true strike, and the texts that the display of the map gives for it. As read, where no declination is known.
  Strike_value corrected;
  std::string corrected_strike, corrected_dip;
  // The drawing on the map reads "S47W" and a bare dip that ends in 9 in another way: whether its plane is another, and
  // that plane.
  bool drawn_otherwise = false;
  Strike_value drawn;
};

// `declination` in degrees, none where it can't be known; `henkaku_done` is column 19 (the box for corrected data).
Understood understood(std::string_view strike, std::string_view dip, std::optional<double> declination,
                      std::string_view henkaku_done);

}  // namespace observations
