// The port to picture files, and the picture in memory. A picture keeps the colour depth that its file had.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// A colour as 0xRRGGBB.
using Colour = std::uint32_t;

// Rows from the top. depth 1: eight pixels a byte, the leftmost in the highest bit; 8: one index into the palette;
// 32: one 0xffRRGGBB word in the machine's byte order. A row takes `stride` bytes, a multiple of 4.
struct Picture {
  int width = 0;
  int height = 0;
  int depth = 0;
  int stride = 0;
  std::vector<Colour> palette;  // depth 1 and 8 only
  std::vector<std::uint8_t> bits;

  bool empty() const { return width <= 0 || height <= 0; }
  const std::uint8_t* row(int y) const { return bits.data() + static_cast<std::size_t>(y) * stride; }
  std::uint8_t* row(int y) { return bits.data() + static_cast<std::size_t>(y) * stride; }
};

// An empty (zeroed) picture of the given measure; File_failure is not raised, an impossible measure gives an empty one.
Picture make_picture(int width, int height, int depth);
// The colour of one pixel; black outside.
Colour pixel(const Picture& picture, int x, int y);

enum class Picture_fault { none, unreadable, too_large };
enum class Picture_format { bmp, jpeg, png };

struct Decoded_picture {
  Picture picture;
  Picture_fault fault = Picture_fault::none;
};

// No picture above this size is taken into memory: a sheet of 200 million pixels.
inline constexpr std::int64_t largest_picture_bytes = 1'000'000'000;

class Pictures {
 public:
  virtual ~Pictures() = default;
  // Decodes a BMP, JPEG or PNG file's content. One that would take more than largest_picture_bytes is too_large; the
  // size is tested before the memory is taken.
  virtual Decoded_picture decode(std::string_view bytes) = 0;
  // The content of a picture file; empty on failure. `quality` 0 to 100 is for JPEG only.
  virtual std::string encode(const Picture& picture, Picture_format format, int quality) = 0;
  virtual Picture scale(const Picture& picture, int width, int height) = 0;
  virtual Picture rotate_quarter(const Picture& picture, int quarter_turns_clockwise) = 0;
};

}  // namespace platform
