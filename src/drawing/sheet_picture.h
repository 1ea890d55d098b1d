// A sheet's picture and its reduced copies, so that it can be painted at any zoom without touching every pixel.
#pragma once

#include <vector>

#include "platform/pictures.h"

namespace drawing {

// levels[0] is the picture as its file had it; each further level has half the width and height of the one before
// (rounded up), down to 64 pixels. After a picture of depth 1 the level of half size is left out, since in grey it
// would take twice the picture's own bytes. Levels 1 and 2 of an indexed picture are indexed too, each with a palette
// of its own; what is smaller has depth 32. All levels together take at most 1.45 times the bytes of an 8-bit picture.
struct Sheet_picture {
  std::vector<platform::Picture> levels;

  bool empty() const { return levels.empty() || levels.front().empty(); }
  int width() const { return levels.empty() ? 0 : levels.front().width; }
  int height() const { return levels.empty() ? 0 : levels.front().height; }
};

// Takes the picture over and makes its levels. Each pixel of a level is the mean colour of its four, in a palette of
// the level's own where the picture has one.
Sheet_picture make_sheet_picture(platform::Picture picture);

// The level to paint from when the picture's full width is to take `target_width` device pixels: the smallest that is
// not narrower than the target; 0 where none is wide enough.
int level_for(const Sheet_picture& picture, double target_width);

}  // namespace drawing
