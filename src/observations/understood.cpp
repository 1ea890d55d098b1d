#include "observations/understood.h"

#include <array>
#include <cmath>

#include "observations/angle_text.h"
#include "observations/strike_dip.h"
#include "observations/strike_dip_text.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations {
namespace {

constexpr double full_turn = 360;
constexpr double right_angle = 90;

// Into 0 up to, not with, 360.
double wrapped(double azimuth) {
  const double rest = std::fmod(azimuth, full_turn);
  const double positive = angle_through_text(rest < 0 ? rest + full_turn : rest);
  return positive == full_turn ? 0 : positive;
}

bool is_compass_letter(char c, std::string_view letters) {
  return letters.find(c) != std::string_view::npos;
}

// Digits with at most one point, at least one digit.
bool is_plain_number(std::string_view text) {
  const bool only = text.find_first_not_of("0123456789.") == std::string_view::npos;
  return only && text.find_first_of("0123456789") != std::string_view::npos && text.find('.') == text.rfind('.');
}

// A text of the notation taken apart: the number, and the largest that its form has. Nothing where the text has no such
// form.
struct Form {
  std::string_view number;
  double largest;
};

std::optional<Form> strike_form(std::string_view c) {
  if (c == "NS") return Form{"0", right_angle};
  std::string_view number = c;
  const bool quadrant = !c.empty() && is_compass_letter(c.front(), "NS");
  if (quadrant) number.remove_prefix(1);
  if (quadrant && !number.empty() && is_compass_letter(number.back(), "EW")) number.remove_suffix(1);
  if (!is_plain_number(number)) return std::nullopt;
  return Form{number, quadrant ? right_angle : full_turn};
}

std::optional<Form> dip_form(std::string_view k) {
  std::string_view number = k;
  if (!k.empty() && is_compass_letter(k.back(), "EWSN")) number.remove_suffix(1);
  if (!is_plain_number(number)) return std::nullopt;
  return Form{number, right_angle};
}

// `value` is what the parser made of the text.
Reading reading_of(std::string_view text, const std::optional<Form>& form, double value) {
  if (is_blank(text)) return Reading::blank;
  const bool reads_zero = value == 0;
  if (!form) return reads_zero ? Reading::as_zero : Reading::partly;
  const double typed = platform::val(form->number);
  if (reads_zero && typed != 0) return Reading::as_zero;
  return typed > form->largest ? Reading::beyond : Reading::fits;
}

std::string_view compass_point(double azimuth) {
  constexpr std::array<std::string_view, 8> points{"N", "NE", "E", "SE", "S", "SW", "W", "NW"};
  const double eighth = full_turn / 8;
  return points[static_cast<std::size_t>(std::floor(azimuth / eighth + 0.5)) % points.size()];
}

// The plane that the drawing takes, its left side told by the sign of the dip, turned to fall to the right.
Strike_value drawn_plane(std::string_view strike, std::string_view dip) {
  std::string c(strike), k(dip);
  Strike_value plane;
  Dip_Strike_Trance(c, k, {}, plane.azimuth, plane.dip, 0);
  turn_left_plane(plane.azimuth, plane.dip);
  plane.azimuth = wrapped(plane.azimuth);
  return plane;
}

void correct(Understood& result, std::string_view strike, std::string_view dip, std::optional<double> declination) {
  result.corrected = result.raw;
  if (result.correction == Correction::applied) {
    result.declination = one_decimal(*declination);
    apply_declination(result.corrected, result.declination);
    result.corrected.azimuth = wrapped(angle_through_text(result.corrected.azimuth));
  }
  if (!is_blank(strike)) 偏角表示変換(strike, dip, result.declination, result.corrected_strike, result.corrected_dip);
}

}  // namespace

Understood understood(std::string_view strike, std::string_view dip, std::optional<double> declination,
                      std::string_view henkaku_done) {
  const std::string c = platform::upper_case(strike);
  const std::string k = platform::upper_case(dip);
  Understood result;
  double a = 0;
  角度変換(c, k, a, result.raw.dip);
  result.raw.azimuth = wrapped(a);
  result.raw.declination_applied = reads_as_corrected(henkaku_done);
  // The strike's own number, before a dip on the left turns it.
  double strike_number = 0, no_dip = 0;
  角度変換(c, {}, strike_number, no_dip);
  result.strike = reading_of(c, strike_form(c), strike_number);
  result.dip = reading_of(k, dip_form(k), result.raw.dip);
  const bool has_side = is_compass_letter(k.empty() ? '\0' : k.back(), "EWSN") && result.dip != Reading::as_zero;
  if (has_side && !is_blank(c)) {
    result.fall = wrapped(result.raw.azimuth + right_angle);
    result.side = compass_point(*result.fall);
  }
  result.correction = result.raw.declination_applied ? Correction::not_taken
                      : declination                  ? Correction::applied
                                                     : Correction::unknown;
  correct(result, c, k, declination);
  result.drawn = drawn_plane(c, k);
  result.drawn_otherwise =
      !is_blank(c) && (result.drawn.azimuth != result.raw.azimuth || result.drawn.dip != result.raw.dip);
  return result;
}

}  // namespace observations
