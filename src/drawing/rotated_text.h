// One rotated text, as the labels of points, routes and sections are written.
#pragma once

#include <string>

#include "drawing/surface.h"

namespace drawing {

// Writes `text` with its top-left corner at `at`, turned counter-clockwise about it by `tenths` of a degree, with
// nothing behind it. Position and font height are canvas units. An empty text or a font of no height draws nothing.
void LK(Surface& surface, const std::string& text, Point at, Colour colour, const Font& font, int tenths);

}  // namespace drawing
