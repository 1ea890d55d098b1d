// Administrative boundaries: the polylines of the *.mps files, read once and drawn over the sheet.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "drawing/surface.h"
#include "maps/canvas.h"
#include "platform/files.h"

namespace maps {

// A pair as its file has it: longitude and latitude in degrees, or a position as the canvas takes it.
struct Boundary_point {
  double x = 0, y = 0;
  bool operator==(const Boundary_point&) const = default;
};
using Boundary = std::vector<Boundary_point>;

struct Boundaries {
  std::vector<Boundary> lines;
};

// The points of one line of a file; none where the line has no "pos" or no quotation mark behind it.
Boundary boundary_of_line(std::string_view line);

// Reads all *.mps of the folder \mps in the program folder in the place of what was there. Nothing is reported.
void gyousei_read(platform::Files& files, const std::string& program_path, Boundaries& boundaries);

// Draws the lines in the map's frame. A pair that can be degrees is taken as geographic; any other goes to the canvas
// as it stands, by the test of henkan_px. What lies outside Picture1 is left out.
void gyousei_out(drawing::Surface& surface, Canvas& canvas, const Boundaries& boundaries);

}  // namespace maps
