// Lines, vectors and boxes that other subsystems draw with the pen rule of the observations (`ld`, `lc`), and the place
// of the marker of a position. Canvas units unless told otherwise.
#pragma once

#include "drawing/surface.h"
#include "maps/canvas.h"

namespace observations {

// A line between two map points (metres or geographic units), with a circle of radius 5 at its start.
void LINE_out(drawing::Surface& surface, maps::Canvas& canvas, drawing::Point from, drawing::Point to,
              drawing::Colour colour);

// A vector with a head of length 15 at 30 degrees to its shaft. One without length has no head.
void Vec_out(drawing::Surface& surface, drawing::Point from, drawing::Point to, drawing::Colour colour);

// A box 120 wide and 100 high around a point, turned clockwise by so many degrees.
void kaIten_out(drawing::Surface& surface, drawing::Point centre, double degrees, drawing::Colour colour,
                double scale = 1);

// A box by two opposite corners.
void LBOX(drawing::Surface& surface, drawing::Point a, drawing::Point b, drawing::Colour colour);

struct Degrees {
  double d = 0, m = 0, s = 0;
};

struct Marker_place {
  double left = 0, top = 0;  // twips
  bool visible = false;
};

// Where the marker of a position stands: its corner 75 twips left of and above the place. Draws nothing.
Marker_place point_out(maps::Canvas& canvas, const Degrees& longitude, const Degrees& latitude);

}  // namespace observations
