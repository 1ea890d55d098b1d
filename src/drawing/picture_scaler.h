// Scaling of a picture into rows of pixels in memory: what every repaint of a sheet comes down to. Our own because the
// toolkit first turns an 8-bit picture into 32 bits, at several times the cost.
#pragma once

#include <cstdint>

#include "drawing/surface.h"
#include "platform/pictures.h"

namespace drawing {

// Rows of 32-bit pixels, 0xffRRGGBB in the machine's byte order.
struct Raster {
  std::uint32_t* pixels = nullptr;
  int width = 0, height = 0;
  int stride = 0;  // pixels from one row to the next
};

// Pixels x0 <= x < x1, y0 <= y < y1.
struct Pixel_range {
  int x0 = 0, y0 = 0, x1 = 0, y1 = 0;
};

// Paints the picture stretched into `target` (device pixels), with the mean of the four nearest source pixels weighed
// by their distance. Pixels whose centres lie in the target and in `clip` are written, so that pictures that meet at an
// edge leave no gap and don't overlap. A palette index beyond the palette is black.
void paint_scaled(const platform::Picture& picture, const Rect& target, const Raster& raster, const Pixel_range& clip);

}  // namespace drawing
