// A pictures port without the toolkit: reads plain bitmaps of 1, 8 and 24 bits, and writes a picture as one line that
// tells what was asked for.
#pragma once

#include <atomic>
#include <cstdint>
#include <string>
#include <string_view>

#include "platform/pictures.h"

namespace support {

class Bmp_pictures : public platform::Pictures {
 public:
  std::atomic<int> decoded = 0;  // calls of decode, from any thread
  bool can_encode = true;

  platform::Decoded_picture decode(std::string_view bytes) override {
    ++decoded;
    if (bytes.size() < 54 || bytes.substr(0, 2) != "BM") return {{}, platform::Picture_fault::unreadable};
    const std::int64_t width = number(bytes, 18, 4), height = number(bytes, 22, 4);
    const int bits = static_cast<int>(number(bytes, 28, 2));
    if (bits != 1 && bits != 8 && bits != 24) return {{}, platform::Picture_fault::unreadable};
    const int depth = bits == 24 ? 32 : bits;
    if (width * height * depth / 8 > platform::largest_picture_bytes) return {{}, platform::Picture_fault::too_large};
    const std::int64_t row_bytes = (width * bits + 31) / 32 * 4, pixels_at = number(bytes, 10, 4);
    if (width <= 0 || height <= 0 || pixels_at + row_bytes * height > static_cast<std::int64_t>(bytes.size()))
      return {{}, platform::Picture_fault::unreadable};

    platform::Picture picture = platform::make_picture(static_cast<int>(width), static_cast<int>(height), depth);
    if (bits <= 8)
      for (std::size_t i = 0; i < (std::size_t{1} << bits); ++i)
        picture.palette.push_back(static_cast<platform::Colour>(number(bytes, 54 + 4 * i, 4)));
    for (int y = 0; y < picture.height; ++y)
      take_row(picture, y, bytes.substr(static_cast<std::size_t>(pixels_at + row_bytes * (height - 1 - y))), bits);
    return {std::move(picture), platform::Picture_fault::none};
  }

  std::string encode(const platform::Picture& picture, platform::Picture_format format, int quality) override {
    if (!can_encode) return {};
    const char* name = format == platform::Picture_format::jpeg ? "jpeg" : "png";
    return std::string(name) + " " + std::to_string(picture.width) + "x" + std::to_string(picture.height) +
           " quality " + std::to_string(quality);
  }

  platform::Picture scale(const platform::Picture& picture, int, int) override { return picture; }
  platform::Picture rotate_quarter(const platform::Picture& picture, int) override { return picture; }

 private:
  static std::int64_t number(std::string_view bytes, std::size_t at, std::size_t count) {
    std::uint32_t value = 0;
    for (std::size_t i = count; i-- > 0;) value = value << 8 | static_cast<unsigned char>(bytes[at + i]);
    return static_cast<std::int32_t>(value);
  }

  static void take_row(platform::Picture& picture, int y, std::string_view row, int bits) {
    std::uint8_t* to = picture.row(y);
    if (bits <= 8) {
      for (int i = 0; i < (picture.width * bits + 7) / 8; ++i) to[i] = static_cast<std::uint8_t>(row[i]);
      return;
    }
    for (int x = 0; x < picture.width; ++x) {
      for (int i = 0; i < 3; ++i) to[4 * x + i] = static_cast<std::uint8_t>(row[3 * x + i]);
      to[4 * x + 3] = 0xFF;
    }
  }
};

}  // namespace support
