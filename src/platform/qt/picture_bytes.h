// What a picture file's own bytes say about it, before a decoder sees them: whether its end is there. Decoders fill
// what a cut file lacks with grey, with black or with whatever lay in memory, and call it a picture.
#pragma once

#include <optional>
#include <string_view>

namespace platform {

struct Measure {
  int width = 0, height = 0;
};

// The measure in a bitmap's header; nothing when it is no bitmap or the measure is none. A negative height, of rows
// that run from the top, comes out positive.
std::optional<Measure> bmp_measure(std::string_view bytes);

// Every row of a bitmap lies in the file, its run lengths come to their end, a JPEG has its end marker and a PNG its
// last chunk. False for any other format.
bool is_whole_picture(std::string_view bytes);

}  // namespace platform
