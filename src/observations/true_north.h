// A strike and whether it is already turned to true north, so that no road applies the declination twice.
#pragma once

#include <string_view>

namespace observations {

// Azimuth and dip in degrees; the plane falls to the right of the azimuth.
struct Strike_value {
  double azimuth = 0;
  double dip = 0;
  bool declination_applied = false;
};

// Whether the text of column 19 says that the strike is already turned to true north: "1", or a tick printed as " 1 ".
bool reads_as_corrected(std::string_view henkaku_done);

// The declination that a record still needs: 0 where column 19 reads as corrected. Every conversion that takes a
// declination and not the record is handed this one.
double declination_for(std::string_view henkaku_done, double decl);

// Adds the declination to the azimuth (no wrap) and sets the flag; a strike that bears the flag stays as it is.
void apply_declination(Strike_value& strike, double decl);

}  // namespace observations
