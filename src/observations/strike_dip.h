// Strike and dip as the map, the 3D export and the sections read them: from two texts such as "N15W" and "30E" to an
// azimuth and a dip in degrees. The plane falls to the right of the azimuth, that is, clockwise.
//
//   strike  "N15E" "N15W" quadrant, read from the north; "S47W" "S47E" read from the south; "NS"; "N15" the number;
//           "127" an azimuth
//   dip     "30E" "30W" "30S" "30N" the angle and the side to which the plane falls; "30" no side
//
// Texts are upper-cased before anything else and not trimmed. Nothing is reported: what doesn't fit reads as the
// longest numeric prefix, 0 when there is none. docs/strike_and_dip.md tells the notation and its oddities in whole.
#pragma once

#include <span>
#include <string>
#include <string_view>

#include "observations/declination.h"
#include "observations/geomagnetic_field.h"

namespace observations {

// The plane of one record; both 0 when the strike is blank. A dip on the left turns the azimuth by 180: "N15W" "30W" is
// 165 and 30. The azimuth of "N15W" "30E" stays -15.
void 角度変換(std::string_view strike, std::string_view dip, double& a, double& d);

// The reading of the 3D export: no turn, so `d` is negative for a plane that falls to the left. `d` keeps what it had
// where the dip has no letter that counts beside a strike with one.
void 角度変換B(std::string_view strike, std::string_view dip, double& a, double& d);

// The reading of the drawing on the map, declination added, for as many records as `strikes` has; the other spans are
// as long, or Subscript_failure. The texts are upper-cased in place. A record whose `henkaku_done` (column 19) reads 1
// takes no declination. No turn and no wrap: `d` is negative for a plane that falls to the left. "S47W" reads as 0, and
// a bare dip that ends in the digit 9 as 0.
void Dip_Strike_Trance(std::span<std::string> strikes, std::span<std::string> dips,
                       std::span<const std::string> henkaku_done, std::span<double> a, std::span<double> d,
                       double decl);
// The same for one record.
void Dip_Strike_Trance(std::string& strike, std::string& dip, std::string_view henkaku_done, double& a, double& d,
                       double decl);

// One record at its own place: `X` and `Y` are longitude and latitude in degrees times 100,000. Reads as 角度変換 and
// adds the declination there after the turn, unless column 19 reads 1 or the strike is blank; gives the label that
// shows the declination. Division_failure where the field has no declination.
Declination_label Dip_Strike_Trance_S(const Geomagnetic_field& field, double X, double Y, std::string_view strike,
                                      std::string_view dip, std::string_view henkaku_done, double& a, double& d);

}  // namespace observations
