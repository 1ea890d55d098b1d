// The texts of angles, and the small tests on strike and dip texts that both families of the notation share. Texts are
// taken by their bytes: every letter that the notation knows is ASCII, and the last byte of any other character counts
// as a letter.
#pragma once

#include <string>
#include <string_view>

namespace observations {

// Plain digits of an angle: at most 15 significant ones and 12 decimals, no needless zeros, a minus sign in front;
// never an exponent. 360 - 352.8 is "7.2".
std::string angle_text(double degrees);
// The angle that its text reads back as: -9.4 + 15.2 becomes 5.8. Sums are taken through it before they are compared
// with the bounds of a table.
double angle_through_text(double degrees);

// Rounded to one decimal, half to even on ten times the value: 7.04 is 7, 7.25 is 7.2.
double one_decimal(double degrees);

// Whether nothing but half-width blanks stands there: the only place where the notation trims.
bool is_blank(std::string_view text);
// The last byte; 0 when the text is empty.
unsigned char last_code(std::string_view text);
// The text without its last byte.
std::string_view without_last(std::string_view text);
// What stands between the first and the last byte; empty when there is nothing.
std::string_view between_ends(std::string_view text);

// The dip of a plane that falls to the left comes out negative: it is made positive and the azimuth turned by 180. The
// turned azimuth lies in 0 to 360 when the old one lay in -180 to 360; exactly 360 stays.
void turn_left_plane(double& azimuth, double& dip);

}  // namespace observations
