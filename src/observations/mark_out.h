// The marks of observations, and the two primitives that all drawing of observations uses.
#pragma once

#include <string_view>

#include "drawing/surface.h"

namespace observations {

// A record's colour from its three columns, each brought into 0 to 255.
drawing::Colour colour_of(double red, double green, double blue);

// A line with the pen rule of all observation drawing: of width Int(width x 1.2), at least 1. Canvas units.
void ld(drawing::Surface& surface, drawing::Point from, drawing::Point to, drawing::Colour colour, double width = 1);
// A circle with the same pen rule.
void lc(drawing::Surface& surface, drawing::Point centre, double radius, drawing::Colour colour, double width = 1);

// Half the size of a point's mark: size / 2 x 10 canvas units, a size of 0 counting as 2.
double mark_half(double size);

// Paints a point's mark at that half size. The names of both languages are recognised; a text that is no mark paints
// nothing. A filled mark is one filled shape with its outline.
void mark_out(drawing::Surface& surface, drawing::Point at, drawing::Colour colour, double size, std::string_view mark);

// The farthest that a mark of this size reaches from its point.
double mark_reach(double size);

}  // namespace observations
