// The toolkit's picture codecs behind the port.
#pragma once

#include "platform/pictures.h"

class QImage;

namespace platform {

class Qt_pictures : public Pictures {
 public:
  Qt_pictures();
  // Re-entrant: several threads may decode at once.
  Decoded_picture decode(std::string_view bytes) override;
  std::string encode(const Picture& picture, Picture_format format, int quality) override;
  Picture scale(const Picture& picture, int width, int height) override;
  Picture rotate_quarter(const Picture& picture, int quarter_turns_clockwise) override;
};

// A toolkit image over the picture's own memory, which must outlive it; the colours of the palette are copied.
QImage image_over(const Picture& picture);
// A picture with the image's content, in depth 1, 8 or 32.
Picture picture_of(const QImage& image);

}  // namespace platform
