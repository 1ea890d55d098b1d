// Any two texts (a line each) and a declination (the third): every parser gives finite numbers and keeps its promises,
// and every display ends with texts or with the one failure of arithmetic.
#include <algorithm>
#include <cmath>

#include "observations/clinometer_notation.h"
#include "observations/strike_dip.h"
#include "observations/strike_dip_text.h"
#include "observations/understood.h"
#include "one_file.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace {

using namespace observations;
using support::promise;

void parsers(const std::string& strike, const std::string& dip, double decl) {
  double a = 1, d = 1;
  角度変換(strike, dip, a, d);
  promise(std::isfinite(a) && std::isfinite(d) && d >= 0);
  d = 1;
  角度変換B(strike, dip, a, d);
  promise(std::isfinite(a) && std::isfinite(d));
  clinometer::角度変換(strike, dip, a, d);
  promise(std::isfinite(a) && std::isfinite(d) && d >= 0);
  std::string c = strike, k = dip;
  Dip_Strike_Trance(c, k, "1", a, d, decl);
  promise(std::isfinite(a) && std::isfinite(d));
  promise(c == platform::upper_case(strike) && k == platform::upper_case(dip));
}

void displays(const std::string& strike, const std::string& dip, double decl) {
  for (const auto display :
       {偏角表示変換, 偏角表示変換Rockview, clinometer::偏角表示変換, clinometer::線偏角表示変換}) {
    std::string out_strike = "untouched", out_dip = "untouched";
    display(strike, dip, decl, out_strike, out_dip);
    promise(out_strike != "untouched" && out_dip != "untouched");
    promise(out_strike.empty() == out_dip.empty());
  }
  const Understood echo = understood(strike, dip, decl, "");
  promise(echo.raw.azimuth >= 0 && echo.raw.azimuth < 360);
  promise(echo.corrected.azimuth >= 0 && echo.corrected.azimuth < 360);
  promise(echo.side.empty() == !echo.fall);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(data, data + size);
  const std::size_t first = std::min(text.find('\n'), size);
  const std::size_t second = std::min(text.find('\n', first + 1), size);
  const std::string strike = text.substr(0, first);
  const std::string dip = first < size ? text.substr(first + 1, second - first - 1) : "";
  const double decl = second < size ? platform::val(text.substr(second + 1)) : 0;
  parsers(strike, dip, decl);
  try {
    displays(strike, dip, decl);
  } catch (const platform::Division_failure&) {
    promise(std::abs(decl) > 1e300);  // only a declination without sense leaves arithmetic
  }
  std::string out_strike, out_dip;
  走向変換(1, 0, platform::val(strike), platform::val(dip), out_strike, out_dip);
  const clinometer::Pieces pieces = clinometer::走向変換(platform::val(strike), platform::val(dip));
  promise(pieces.base.empty() == pieces.dip_letter.empty());
  return 0;
}
