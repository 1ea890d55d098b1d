// The drawn areas of a project, kept in its \chisou_men\Area.dat: one ring of vertices a line. Vertices are in the
// units of the records: geographic units or metres. docs/formats/Area.dat.md tells the file.
#pragma once

#include <string>
#include <vector>

#include "drawing/surface.h"
#include "geodesy/plane.h"
#include "maps/canvas.h"
#include "platform/files.h"

namespace observations {

inline constexpr int area_limit = 1000;        // areas of a file; what stands behind them is not read
inline constexpr int area_vertex_limit = 148;  // vertices of an area

using Area = std::vector<geodesy::Point>;

// Missing file: no areas. A line of fewer than three whole vertices is none.
std::vector<Area> Area_read(platform::Files& files, const std::string& project_path);

// Keeps one more area: the file is written again with it. False, with nothing written, for fewer than three vertices or
// more than the limit, a number that isn't finite, and when the file is full. File_failure when it can't be written, or
// has a length and can't be read.
bool Area_make(platform::Files& files, const std::string& project_path, const Area& area);

// The rings, as an enclosure's: line width 2, see-through where `filled`.
void Area_out(drawing::Surface& surface, maps::Canvas& canvas, const std::vector<Area>& areas, drawing::Colour colour,
              bool filled);

}  // namespace observations
