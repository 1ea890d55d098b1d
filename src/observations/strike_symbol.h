// The symbols of strike and dip: what a record's texts come to, and how it is drawn.
#pragma once

#include <string>
#include <string_view>

#include "drawing/surface.h"
#include "observations/registry.h"

namespace observations {

enum class Symbol_kind { none, plane, lineation };

// A record's symbols, worked out once when the registry is read. Azimuths in degrees clockwise from true north.
struct Symbol {
  Symbol_kind kind = Symbol_kind::none;
  double azimuth = 0;
  double dip = 0;        // negative: the plane falls to the left of the azimuth
  std::string dip_text;  // the number beside the tick
  char dip_letter = 0;   // "N", "S", "E", "W", or none
  bool true_north = false;
  bool has_line = false;  // a lineation beside the plane
  double line_azimuth = 0;
};

// `decl` is the declination at the record in degrees, 0 with `decl_known` false where none can be had: then the strike
// counts as uncorrected unless the record says that it is corrected.
Symbol symbol_of(const Record& record, double decl, bool decl_known);

// Draws at a place in canvas units. `scale` is 1 at the usual size.
void symbol_out(drawing::Surface& surface, drawing::Point at, const Symbol& symbol, double scale, double label_height);

// The farthest that a symbol's lines, or the beginning of its number, lie from the point at scale 1.
inline constexpr double symbol_reach = 55;

}  // namespace observations
