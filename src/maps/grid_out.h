// Painting of the sheet: the mosaic's pictures and the sheet grid. Everything else on the map is drawn by its owner.
#pragma once

#include <string>

#include "drawing/surface.h"
#include "maps/canvas.h"
#include "maps/mosaic.h"

namespace maps {

struct Grid_choice {
  bool Check3 = false;  // "グリッド表示"
  int option5 = 0;      // the sheet folder in force
  std::string stem;     // of the shown sheet
};

// Divisions of the sheet grid each way: 20 in the 1:50,000 folder; else 5 for a stem of eight characters or more, a
// quarter sheet's; else 10.
int grid_divisions(const std::string& stem, int option5);

// The rectangle of the main sheet in canvas units.
drawing::Rect sheet_rectangle(Canvas& canvas);

// Clears the surface to white and sets zoom_factor to 0.5. Paints the main picture into the sheet's rectangle and each
// loaded neighbour into one of the same size, displaced by whole rectangles to the east and south; what lies outside
// Picture1 is left out. Then the grid in black, its outer lines in width 2, where Check3 is set.
void Grid_out(drawing::Surface& surface, Canvas& canvas, const Mosaic& mosaic, const Grid_choice& choice);

}  // namespace maps
