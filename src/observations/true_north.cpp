#include "observations/true_north.h"

#include "platform/numbers.h"

namespace observations {

bool reads_as_corrected(std::string_view henkaku_done) {
  return platform::val(henkaku_done) == 1;
}

double declination_for(std::string_view henkaku_done, double decl) {
  return reads_as_corrected(henkaku_done) ? 0 : decl;
}

void apply_declination(Strike_value& strike, double decl) {
  if (strike.declination_applied) return;
  strike.azimuth += decl;
  strike.declination_applied = true;
}

}  // namespace observations
