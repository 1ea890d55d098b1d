#include "platform/pictures.h"

#include <cstring>

namespace platform {

Picture make_picture(int width, int height, int depth) {
  if (width <= 0 || height <= 0 || (depth != 1 && depth != 8 && depth != 32)) return {};
  const std::int64_t stride = (static_cast<std::int64_t>(width) * depth + 31) / 32 * 4;
  if (stride > largest_picture_bytes || stride * height > largest_picture_bytes) return {};
  Picture picture;
  picture.width = width;
  picture.height = height;
  picture.depth = depth;
  picture.stride = static_cast<int>(stride);
  picture.bits.resize(static_cast<std::size_t>(stride * height));
  return picture;
}

Colour pixel(const Picture& picture, int x, int y) {
  if (x < 0 || y < 0 || x >= picture.width || y >= picture.height) return 0;
  const std::uint8_t* row = picture.row(y);
  if (picture.depth == 32) {
    std::uint32_t word = 0;
    std::memcpy(&word, row + static_cast<std::size_t>(x) * 4, sizeof word);
    return word & 0xFFFFFF;
  }
  const std::size_t index = picture.depth == 8 ? row[x] : static_cast<std::size_t>(row[x / 8] >> (7 - x % 8) & 1);
  return index < picture.palette.size() ? picture.palette[index] & 0xFFFFFF : 0;
}

}  // namespace platform
