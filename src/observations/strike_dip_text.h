// Strike and dip back to texts: for a plane on a section, for the displays of the map, and for the 3D export. Tables
// are kept letter by letter, also where a text doesn't read back to the same plane (docs/strike_and_dip.md).
#pragma once

#include <string>
#include <string_view>

namespace observations {

// A plane from the section tools: `a` from -180 to 180, `d` from 0 to 180 degrees; above 90 the plane has turned over.
// `first_y` and `second_y` are the northings of the active section line's ends. Nothing is written where they are equal
// or `a` lies outside its range.
void 走向変換(double first_y, double second_y, double a, double d, std::string& strike, std::string& dip);

// Adds the declination, rounded to one decimal, to a record's strike and gives the display form: south readings for the
// southern half, 100 as "S80W". Both texts are empty for an azimuth above 360.
void 偏角表示変換(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                  std::string& out_dip);

// The same for the 3D export, in readings from the north only.
void 偏角表示変換Rockview(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                          std::string& out_dip);

}  // namespace observations
