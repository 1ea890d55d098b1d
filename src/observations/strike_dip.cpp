#include "observations/strike_dip.h"

#include "observations/angle_text.h"
#include "observations/true_north.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations {
namespace {

using platform::upper_case;
using platform::val;

// Codes above that of the digit 9 are letters.
bool ends_in_letter(std::string_view text) {
  return last_code(text) > '9';
}

bool ends_in_digit(std::string_view text) {
  return last_code(text) >= '0' && last_code(text) <= '9';
}

// A strike is a line: read from the south it is the same line read from the north with the other last letter.
void read_from_north(std::string& strike) {
  if (!strike.starts_with('S')) return;
  strike.front() = 'N';
  if (strike.back() == 'E')
    strike.back() = 'W';
  else if (strike.back() == 'W')
    strike.back() = 'E';
}

// The number of a strike that begins with "N", east positive.
double north_number(std::string_view strike) {
  if (strike == "NS") return 0;
  std::string number;
  if (strike.ends_with('E')) number = between_ends(strike);
  if (strike.ends_with('W')) number = "-" + std::string(between_ends(strike));
  if (number.empty()) number = strike.substr(1);
  return val(number);
}

double strike_number(std::string_view strike) {
  return strike.starts_with('N') ? north_number(strike) : val(strike);
}

enum class Side { unknown, right, left };

// The side to which a dip's letter lets the plane fall from a strike read from the north. "S" and "N" count only beside
// a strike that ends in a letter.
Side side_of(char letter, std::string_view strike) {
  if (letter == 'E') return Side::right;
  if (letter == 'W') return Side::left;
  if (letter != 'S' && letter != 'N') return Side::unknown;
  if (strike.ends_with('W')) return letter == 'N' ? Side::right : Side::left;
  if (strike.ends_with('E')) return letter == 'S' ? Side::right : Side::left;
  return Side::unknown;
}

// Sets `d` from a dip that ends in a letter, negative for the left; leaves it where the letter tells no side.
void lettered_dip(std::string_view dip, std::string_view strike, double& d) {
  const std::string number(without_last(dip));
  const Side side = side_of(dip.back(), strike);
  if (side == Side::right && !number.empty()) d = val(number);
  if (side == Side::left) d = val("-" + number);
}

// The general reading of the 3D export, behind its rules for "N..E" and "N..W".
double export_azimuth(std::string_view strike) {
  double a = 0;
  if (strike == "SN")
    a = 180;
  else if (strike.starts_with('S') && strike.ends_with('W'))
    a = val("-" + std::string(between_ends(strike)));
  else if (strike.starts_with('S'))
    a = val(strike.substr(1));
  else
    a = strike_number(strike);
  return a < 0 ? a + 360 : a;
}

}  // namespace

void 角度変換(std::string_view strike, std::string_view dip, double& a, double& d) {
  double azimuth = 0;
  double plunge = 0;
  if (!is_blank(strike)) {
    std::string c = upper_case(strike);
    const std::string k = upper_case(dip);
    read_from_north(c);
    azimuth = strike_number(c);
    if (ends_in_letter(k))
      lettered_dip(k, c, plunge);
    else if (ends_in_digit(k))
      plunge = val(k);
    turn_left_plane(azimuth, plunge);
  }
  a = azimuth;
  d = plunge;
}

void 角度変換B(std::string_view strike, std::string_view dip, double& a, double& d) {
  double azimuth = 0;
  double plunge = d;
  const std::string c = upper_case(strike);
  const std::string k = upper_case(dip);
  if (is_blank(strike)) {
    plunge = 0;
  } else if (!ends_in_letter(c) && !ends_in_letter(k)) {
    azimuth = val(c);
    plunge = val(k);
  } else if (c.starts_with('N') && c.ends_with('E')) {
    azimuth = val(between_ends(c));
    if (k.ends_with('E')) plunge = val(without_last(k));
  } else if (c.starts_with('N') && c.ends_with('W')) {
    azimuth = 180 - val(between_ends(c));
    plunge = val(k);
  } else {
    azimuth = export_azimuth(c);
    if (ends_in_letter(k)) lettered_dip(k, c, plunge);
  }
  a = azimuth;
  d = plunge;
}

void Dip_Strike_Trance(std::string& strike, std::string& dip, std::string_view henkaku_done, double& a, double& d,
                       double decl) {
  strike = upper_case(strike);
  dip = upper_case(dip);
  double plunge = 0;
  // A dip that ends in the digit 9 is neither a letter nor a bare number here.
  if (last_code(dip) > '9')
    lettered_dip(dip, strike, plunge);
  else if (last_code(dip) < '9')
    plunge = val(dip);
  a = strike_number(strike) + declination_for(henkaku_done, decl);
  d = plunge;
}

void Dip_Strike_Trance(std::span<std::string> strikes, std::span<std::string> dips,
                       std::span<const std::string> henkaku_done, std::span<double> a, std::span<double> d,
                       double decl) {
  const std::size_t n = strikes.size();
  if (dips.size() < n || henkaku_done.size() < n || a.size() < n || d.size() < n)
    throw platform::Subscript_failure("strikes without their dips");
  for (std::size_t i = 0; i < n; ++i) Dip_Strike_Trance(strikes[i], dips[i], henkaku_done[i], a[i], d[i], decl);
}

Declination_label Dip_Strike_Trance_S(const Geomagnetic_field& field, double X, double Y, std::string_view strike,
                                      std::string_view dip, std::string_view henkaku_done, double& a, double& d) {
  constexpr double units_per_degree = 100'000;
  const double decl = declination_at(field, Y / units_per_degree, X / units_per_degree);
  角度変換(strike, dip, a, d);
  if (!is_blank(strike)) a += declination_for(henkaku_done, decl);
  return declination_label(decl);
}

}  // namespace observations
