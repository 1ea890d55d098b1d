// `<stem>.set`: the frame of a sheet beside its picture, one line of comma-separated fields in one of two layouts.
#pragma once

#include <string>
#include <string_view>

#include "maps/canvas.h"
#include "platform/files.h"

namespace maps {

// The line of a frame file. Letters count in either case; a letter that is missing or none of the four counts as north
// or east. A field that is no number, or beyond any angle, is 0.
Corner_texts frame_of_line(std::string_view line);

// The first line of the file. False, with `corners` as it was, when the file is missing or empty or can't be read.
bool frame_read(platform::Files& files, const std::string& path, Corner_texts& corners);

}  // namespace maps
