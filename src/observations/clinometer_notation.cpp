#include "observations/clinometer_notation.h"

#include <array>

#include "observations/angle_text.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations::clinometer {
namespace {

using platform::upper_case;
using platform::val;

// What stands instead of the strike in a record without a plane.
constexpr std::string_view no_plane = "-0-";

bool begins_with_compass_letter(std::string_view strike) {
  return !strike.empty() && std::string_view("WESN").find(strike.front()) != std::string_view::npos;
}

// The number of "N..E", "N..W", "S..E", "S..W", negative where the last letter is `negative_end`; a last letter that is
// missing leaves the number.
double quadrant_number(std::string_view strike, char negative_end) {
  if (strike.ends_with(negative_end)) return val("-" + std::string(between_ends(strike)));
  return val(strike.substr(1));
}

// 0 for the letter alone.
double north_azimuth(std::string_view strike) {
  if (strike == "NS" || strike == "N") return 0;
  const double a = quadrant_number(strike, 'W');
  return a < 0 ? a + 360 : a;
}

double south_azimuth(std::string_view strike) {
  if (strike == "S") return 0;
  const double a = (strike == "SN" ? 180 : quadrant_number(strike, 'E')) + 180;
  return a < 0 ? a + 360 : a;
}

double azimuth_of(std::string_view strike) {
  if (strike.starts_with('S')) return south_azimuth(strike);
  if (strike.starts_with('N')) return north_azimuth(strike);
  if (!begins_with_compass_letter(strike)) return val(strike);
  if (strike == "EW" || strike == "E0W") return 90;
  if (strike == "WE" || strike == "W0E") return 270;
  return 0;
}

// Where a dip's letter lies on the left of the azimuth. Bounds don't belong to a range; on the quadrant lines
// themselves the rows with two equal bounds decide.
struct Left_side {
  double low, high;
  char letter;
};

// clang-format off
constexpr std::array<Left_side, 9> left_sides{{
    {  0, 180, 'N'},
    {  0,  90, 'W'},
    {180, 360, 'S'},
    { 90, 270, 'E'},
    {270, 360, 'W'},
    {  0,   0, 'W'},
    {180, 180, 'E'},
    { 90,  90, 'N'},
    {270, 270, 'S'},
}};
// clang-format on

bool falls_left(double a, char letter) {
  for (const Left_side& row : left_sides) {
    const bool within = row.low == row.high ? a == row.low : a > row.low && a < row.high;
    if (within && letter == row.letter) return true;
  }
  return false;
}

// Makes the dip of a plane that falls to the left positive and turns the azimuth. One that was below -180, as only a
// bare number can be, stays negative here, where the map lifts it.
void turn(double& a, double& d) {
  if (!(d < 0)) return;
  d = -d;
  a += 180;
  if (a > 360) a -= 360;
}

// The bands of the renderer. Those that begin or end at a quadrant line stretch over it by ten degrees, so that strikes
// near east and west fall to the north or the south.
struct Band {
  double low, high;
  bool with_low, with_high;
  const char* direction;
  int factor, offset;  // number = factor * azimuth + offset
  const char* dip_letter;
};

// clang-format off
constexpr std::array<Band, 10> bands{{
    {  0,   0,  true,  true, "E",  1,    0, "S"},
    {  0,  10, false, false, "E",  1,    0, "N"},
    { 10,  80,  true, false, "E",  1,    0, "E"},
    { 80,  90,  true,  true, "E",  1,    0, "S"},
    { 90, 100, false,  true, "W", -1,  180, "S"},
    {100, 180, false,  true, "W", -1,  180, "W"},
    {180, 260, false, false, "E",  1, -180, "W"},
    {260, 270,  true, false, "E",  1, -180, "N"},
    {270, 280,  true, false, "W", -1,  360, "N"},
    {280, 360,  true,  true, "W", -1,  360, "E"},
}};
// clang-format on

bool lies_in(const Band& band, double a) {
  return (band.with_low ? a >= band.low : a > band.low) && (band.with_high ? a <= band.high : a < band.high);
}

// Texts that take the place of the bands', tried in this order. The last one stands at 180 where 270 would be expected:
// due south reads "EW", and due west has no text of its own.
struct Override {
  double azimuth;
  const char* strike;
  const char* dip_letter;
};

// clang-format off
constexpr std::array<Override, 4> overrides{{
    {  0, "NS", "E"},
    {180, "NS", "W"},
    { 90, "EW", "S"},
    {180, "EW", "N"},
}};
// clang-format on

void compass_texts(double az, double d, std::string& strike, std::string& dip) {
  const Pieces pieces = 走向変換(az, d);
  strike = pieces.base + pieces.number + pieces.direction;
  dip = pieces.dip + pieces.dip_letter;
  for (const Override& text : overrides)
    if (az == text.azimuth) {
      strike = text.strike;
      dip = angle_text(d) + text.dip_letter;
    }
}

}  // namespace

void 角度変換(std::string_view strike, std::string_view dip, double& a, double& d) {
  double azimuth = 0;
  double plunge = 0;
  if (!is_blank(strike)) {
    const std::string k = upper_case(dip);
    azimuth = azimuth_of(upper_case(strike));
    if (last_code(k) > '9') {
      plunge = val(without_last(k));
      if (falls_left(azimuth, k.back())) plunge = 0 - plunge;
    } else {
      plunge = val(k);
    }
    turn(azimuth, plunge);
  }
  a = azimuth;
  d = plunge;
}

void 線角度変換(std::string_view strike, std::string_view dip, double& a, double& d) {
  角度変換(strike, dip, a, d);
}

Pieces 走向変換(double a, double d) {
  for (const Band& band : bands)
    if (lies_in(band, a))
      return {"N", angle_text(band.factor * a + band.offset), band.direction, angle_text(d), band.dip_letter};
  return {};
}

Pieces 線走向変換(double a, double d) {
  return 走向変換(a, d);
}

void 偏角表示変換(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                  std::string& out_dip) {
  std::string shown_strike, shown_dip;
  if (strike != no_plane) {
    double a = 0, d = 0;
    角度変換(strike, dip, a, d);
    double az = angle_through_text(decl + a);
    if (az > 360) az = angle_through_text(az - 360);
    if (az < 0) az = angle_through_text(az + 360);
    if (begins_with_compass_letter(upper_case(strike))) {
      compass_texts(az, d, shown_strike, shown_dip);
    } else {
      shown_strike = angle_text(az);
      shown_dip = angle_text(d);
    }
  }
  out_strike = shown_strike;
  out_dip = shown_dip;
}

void 線偏角表示変換(std::string_view strike, std::string_view dip, double decl, std::string& out_strike,
                    std::string& out_dip) {
  偏角表示変換(strike, dip, decl, out_strike, out_dip);
}

}  // namespace observations::clinometer
