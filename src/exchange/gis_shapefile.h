// The second set: one shape as the published "ESRI Shapefile Technical Description" (July 1998) asks for it, for the
// programs that refuse the program's own .shx. Rings are closed and run clockwise, lengths and boxes are exact.
//
// A shape is geographic when all its points are in geographic units, which both magnitudes above 1,000,000 tell; it is
// then written in degrees, with a .prj. Any other shape is in metres of its sheet, which no .prj can name.
#pragma once

#include <optional>
#include <string>

#include "exchange/shape_list.h"
#include "platform/clock.h"

namespace exchange {

// The content of the files; no .prj for a shape in metres.
struct Gis_shapefile {
  std::string shp, shx, dbf, cpg;
  std::optional<std::string> prj;
};

// False for what the format has no place for: a line of fewer than two points, a polygon without an area, or more
// points than a file of two gigabytes holds.
bool gis_takes(const Shape& shape);

// The set of a shape that gis_takes. `datum_mode` as in core::Settings; `name` goes into the column NAME of the table.
Gis_shapefile gis_shapefile(const Shape& shape, int datum_mode, const std::string& name,
                            const platform::Date_time& today);

}  // namespace exchange
