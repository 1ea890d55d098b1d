// The base data on the map: small grey crosses below the observations, and their names where numbers are shown.
#pragma once

#include "drawing/surface.h"
#include "maps/canvas.h"
#include "observations/chiten_out.h"
#include "observations/reference_points.h"

namespace observations {

inline constexpr drawing::Colour reference_colour = 0x606060;

// Draws before chiten_out, so that nothing lies over an observation, and only while observations are drawn. Where names
// would stand over one another only the first of the table keeps its name; which do depends on the zoom and not on what
// part of the map is painted. A name is cut at its 20th character.
void reference_points_out(drawing::Surface& surface, maps::Canvas& canvas, const Reference_points& points,
                          const Chiten_choice& choice);

}  // namespace observations
