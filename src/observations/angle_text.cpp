#include "observations/angle_text.h"

#include "platform/numbers.h"

namespace observations {
namespace {

// The decimals that 15 digits leave to an angle of three digits before the point. A difference such as 360 - 352.8 or
// 9.5 - 9.4 is no more exact than that, however small it is.
constexpr std::string_view plain_digits = "0.############";

}  // namespace

std::string angle_text(double degrees) {
  return platform::format_number(degrees, plain_digits);
}

double angle_through_text(double degrees) {
  return platform::val(angle_text(degrees));
}

double one_decimal(double degrees) {
  return platform::round_even(degrees * 10) / 10;
}

bool is_blank(std::string_view text) {
  return text.find_first_not_of(' ') == std::string_view::npos;
}

unsigned char last_code(std::string_view text) {
  return text.empty() ? 0 : static_cast<unsigned char>(text.back());
}

std::string_view without_last(std::string_view text) {
  return text.substr(0, text.empty() ? 0 : text.size() - 1);
}

std::string_view between_ends(std::string_view text) {
  return text.size() < 2 ? std::string_view{} : text.substr(1, text.size() - 2);
}

void turn_left_plane(double& azimuth, double& dip) {
  if (!(dip < 0)) return;
  dip = -dip;
  azimuth += 180;
  if (azimuth > 360) azimuth -= 360;
  if (azimuth < 0) azimuth += 360;
}

}  // namespace observations
