// Rows of white pixels to draw on in black, and how much ink lies on them.
#pragma once

#include <cstdint>
#include <vector>

#include "drawing/picture_scaler.h"

namespace support {

struct Pixel_target {
  int width, height;
  std::vector<std::uint32_t> pixels;
  Pixel_target(int w, int h) : width(w), height(h), pixels(static_cast<std::size_t>(w * h), 0xffffffff) {}
  drawing::Raster raster() { return {pixels.data(), width, height, width}; }
  drawing::Pixel_range whole() const { return {0, 0, width, height}; }
  // 0 for white, 255 for black.
  int ink(int x, int y) const { return 255 - static_cast<int>(pixels[static_cast<std::size_t>(y * width + x)] & 0xff); }
  // In pixels.
  double all_ink() const {
    double sum = 0;
    for (int y = 0; y < height; ++y)
      for (int x = 0; x < width; ++x) sum += ink(x, y) / 255.0;
    return sum;
  }
};

}  // namespace support
