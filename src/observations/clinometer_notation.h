// Strike, dip and lineation as the clinometer's dialog reads and writes them. It keeps the direction of a strike where
// the map takes it for a line, and its bands stretch over the quadrant lines by ten degrees. Its procedures bear the
// names of the map's, hence a namespace of their own. docs/strike_and_dip.md sets the two families side by side.
#pragma once

#include <string>
#include <string_view>

namespace observations::clinometer {

// The five pieces of a rendered plane or lineation; all empty for an azimuth outside 0 to 360.
struct Pieces {
  std::string base;        // "N"
  std::string number;      // the angle from it, plain digits
  std::string direction;   // "E" or "W"
  std::string dip;         // plain digits
  std::string dip_letter;  // "E", "W", "S" or "N"
  bool operator==(const Pieces&) const = default;
};

// A plane: "S20W" is 200 and "S20E" 160; "EW" and "E0W" are 90, "WE" and "W0E" 270, "SN" 360; a bare number is itself.
// A blank strike gives 0 and 0. A dip whose letter lies on the left of the azimuth turns it by 180.
void 角度変換(std::string_view strike, std::string_view dip, double& a, double& d);
// A lineation, read in the same way.
void 線角度変換(std::string_view strike, std::string_view dip, double& a, double& d);

// The pieces of a plane by the bands, `a` in degrees from 0 to 360.
Pieces 走向変換(double a, double d);
// The pieces of a lineation, by the same bands.
Pieces 線走向変換(double a, double d);

// Adds the declination (unrounded) to a plane's strike. "-0-", the mark of a record without a plane, gives empty texts;
// a strike that begins with no letter of the compass stays a number. At exactly 180 the strike is "EW" with an "N" dip.
void 偏角表示変換(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                  std::string& out_dip);
// The same for a lineation.
void 線偏角表示変換(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                    std::string& out_dip);

}  // namespace observations::clinometer
