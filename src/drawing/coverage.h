// How much of each pixel a small shape covers, by exact area, and the blending of a colour by it. What the toolkit's
// painter does in some microseconds a shape is done here in a fraction of one, which counts where a map bears 75,000.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

#include "drawing/picture_scaler.h"
#include "drawing/surface.h"

namespace drawing {

// The shapes put together over one rectangle of pixels. Each cell holds the change of the covered area from the cell to
// its left, so that a running sum along a row gives the area. Empty between two uses; the memory is kept.
struct Coverage {
  struct Touched {
    int first = 0, last = -1;  // cells of a row that are not 0
  };
  int left = 0, top = 0, width = 0, height = 0;  // pixels
  std::vector<float> cells;                      // rows of width + 2
  std::vector<Touched> rows;
};

// Begins a shape that lies inside `bounds` (device pixels).
void cover_begin(Coverage& coverage, const Rect& bounds);

// Asks for the memory of the pixels under the bounds, so that it comes while the rings are added.
void cover_fetch(const Coverage& coverage, const Raster& raster, const Pixel_range& clip);

// Adds a closed ring (device pixels, inside the bounds). Rings of the one direction add, those of the other take away:
// a ring within another in the opposite direction is a hole.
void cover_ring(Coverage& coverage, std::span<const Point> ring);

// Blends the colour into the pixels of `clip` by what is covered of each, and empties the coverage.
void cover_blend(Coverage& coverage, const Raster& raster, const Pixel_range& clip, Colour colour);

// A mask of coverage, 0 to 255, row by row, whose first pixel lies (left, top) away from where it is put.
struct Mask {
  int left = 0, top = 0, width = 0, height = 0;
  std::vector<std::uint8_t> alpha;
};

// Blends the colour through a mask put at pixel (x, y).
void mask_blend(const Mask& mask, int x, int y, const Raster& raster, const Pixel_range& clip, Colour colour);

}  // namespace drawing
