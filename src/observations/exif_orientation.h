// How a camera was held, as a JPEG file tells it: Exif 2.3 (CIPA DC-008), tag 0x0112 of the first directory.
#pragma once

#include <string_view>

namespace observations {

// The quarter turns clockwise, 0 to 3, that bring a picture upright. 0 for any other file, and for one that doesn't
// tell. Of the orientations that mirror the picture only the turn is taken.
int exif_quarter_turns(std::string_view bytes);

}  // namespace observations
