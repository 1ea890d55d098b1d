#include "observations/strike_symbol.h"

#include <cmath>
#include <numbers>

#include "observations/mark_out.h"
#include "observations/marks.h"
#include "observations/strike_dip.h"
#include "observations/true_north.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace observations {
namespace {

using drawing::Point;

constexpr double shaft_length = 50, head_length = 40, head_angle = 10;
constexpr double half_strike = 25, tick_length = 15;
constexpr double symbol_pen = 1;
constexpr int lineation = 2;  // place of 線構造 among the measured objects

// The point at a length from another in the direction of an azimuth; y grows downwards.
Point away(Point from, double azimuth, double length) {
  const double radians = azimuth * std::numbers::pi / 180;
  return {from.x + length * std::sin(radians), from.y - length * std::cos(radians)};
}

double azimuth_of(std::string strike, std::string dip, const Record& record, double decl, double& d) {
  double a = 0;
  Dip_Strike_Trance(strike, dip, record.henkaku_done, a, d, decl);
  return a;
}

void arrow_out(drawing::Surface& surface, Point at, double azimuth, double scale) {
  const Point tip = away(at, azimuth, shaft_length * scale);
  ld(surface, at, tip, drawing::blue, symbol_pen);
  for (const double side : {-head_angle, head_angle})
    ld(surface, tip, away(at, azimuth + side, head_length * scale), drawing::blue, symbol_pen);
}

// Where the dip's number stands, from the point. The letter moves it, and then the strike's range.
Point number_offset(const Symbol& symbol) {
  double azimuth = std::fmod(symbol.azimuth, 360);
  if (azimuth < 0) azimuth += 360;
  if (azimuth >= 135 && azimuth <= 225) return {-30, -25};
  if (azimuth <= 45 || azimuth >= 315) return {10, -30};
  switch (symbol.dip_letter) {
    case 'S':
      return {0, 10};
    case 'N':
      return {0, -20};
    case 'W':
      return {-50, 0};
    case 'E':
      return {10, -30};
    default:
      return {0, 0};
  }
}

void plane_out(drawing::Surface& surface, Point at, const Symbol& symbol, double scale, double label_height) {
  const drawing::Colour colour = symbol.true_north ? drawing::blue : drawing::red;
  ld(surface, away(at, symbol.azimuth, -half_strike * scale), away(at, symbol.azimuth, half_strike * scale), colour,
     symbol_pen);
  const double tick = symbol.azimuth + (symbol.dip > 0 ? 90 : -90);
  ld(surface, at, away(at, tick, tick_length * scale), colour, symbol_pen);
  const Point offset = number_offset(symbol);
  surface.text({at.x + offset.x * scale, at.y + offset.y * scale}, symbol.dip_text, {.height = label_height}, colour,
               0);
}

}  // namespace

Symbol symbol_of(const Record& record, double decl, bool decl_known) {
  Symbol symbol;
  const bool corrected = reads_as_corrected(record.henkaku_done);
  symbol.true_north = corrected || decl_known;
  if (taishou_index(record.taishou) == lineation) {
    if (record.soukou.empty() && record.keisha.empty()) return symbol;
    symbol.kind = Symbol_kind::lineation;
    symbol.azimuth = azimuth_of(record.soukou, record.keisha, record, decl, symbol.dip);
    return symbol;
  }
  if (record.soukou.empty() || record.keisha.empty()) return symbol;
  symbol.kind = Symbol_kind::plane;
  symbol.azimuth = azimuth_of(record.soukou, record.keisha, record, decl, symbol.dip);
  const std::string dip = platform::upper_case(record.keisha);
  symbol.dip_text = platform::number_text(std::abs(platform::val(dip)));
  if (std::string_view("NSEW").find(dip.back()) != std::string_view::npos) symbol.dip_letter = dip.back();
  symbol.has_line = !record.sen_keisha.empty();
  double plunge = 0;
  if (symbol.has_line) symbol.line_azimuth = azimuth_of(record.sen_houkou, record.sen_keisha, record, decl, plunge);
  return symbol;
}

void symbol_out(drawing::Surface& surface, Point at, const Symbol& symbol, double scale, double label_height) {
  if (symbol.kind == Symbol_kind::lineation) arrow_out(surface, at, symbol.azimuth, scale);
  if (symbol.kind == Symbol_kind::plane) plane_out(surface, at, symbol, scale, label_height);
  if (symbol.has_line) arrow_out(surface, at, symbol.line_azimuth, scale);
}

}  // namespace observations
