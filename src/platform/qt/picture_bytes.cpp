#include "platform/qt/picture_bytes.h"

#include <cstdint>
#include <cstdlib>

namespace platform {

namespace {

constexpr std::string_view png_signature("\x89PNG\r\n\x1A\n", 8);

std::uint8_t byte_at(std::string_view bytes, std::size_t at) {
  return at < bytes.size() ? static_cast<std::uint8_t>(bytes[at]) : 0;
}

std::int64_t little_endian(std::string_view bytes, std::size_t at, std::size_t count) {
  std::int64_t value = 0;
  for (std::size_t i = count; i-- > 0;) value = value << 8 | byte_at(bytes, at + i);
  return value;
}

std::int64_t big_endian(std::string_view bytes, std::size_t at, std::size_t count) {
  std::int64_t value = 0;
  for (std::size_t i = 0; i < count; ++i) value = value << 8 | byte_at(bytes, at + i);
  return value;
}

// BITMAPFILEHEADER, then BITMAPINFOHEADER or the shorter BITMAPCOREHEADER:
//   0 "BM"   10 bfOffBits   14 biSize   18 biWidth   22 biHeight   28 biBitCount   30 biCompression
//                           14 12       18 bcWidth   20 bcHeight   24 bcBitCount
struct Bmp_header {
  std::int64_t pixels_at = 0, width = 0, height = 0, bits = 0;
  bool run_lengths = false;
};

Bmp_header bmp_header(std::string_view bytes) {
  Bmp_header header;
  header.pixels_at = little_endian(bytes, 10, 4);
  if (little_endian(bytes, 14, 4) == 12) {
    header.width = little_endian(bytes, 18, 2);
    header.height = little_endian(bytes, 20, 2);
    header.bits = little_endian(bytes, 24, 2);
    return header;
  }
  header.width = static_cast<std::int32_t>(little_endian(bytes, 18, 4));
  header.height = std::abs(std::int64_t{static_cast<std::int32_t>(little_endian(bytes, 22, 4))});
  header.bits = little_endian(bytes, 28, 2);
  const std::int64_t compression = little_endian(bytes, 30, 4);
  header.run_lengths = compression == 1 || compression == 2;
  return header;
}

// Pairs of bytes: a count and an index; 0 0 ends a row, 0 1 the picture, 0 2 is followed by a step to the right and
// one up, and 0 with n of 3 or more by n indices, filled up to an even number of bytes.
bool run_lengths_end(std::string_view bytes, const Bmp_header& header) {
  std::int64_t x = 0, y = 0;
  for (auto at = static_cast<std::size_t>(header.pixels_at); at + 1 < bytes.size();) {
    const std::uint8_t count = byte_at(bytes, at), value = byte_at(bytes, at + 1);
    at += 2;
    if (count > 0) {
      x += count;
    } else if (value == 0) {
      x = 0;
      ++y;
    } else if (value == 1) {
      return true;
    } else if (value == 2) {
      x += byte_at(bytes, at);
      y += byte_at(bytes, at + 1);
      at += 2;
    } else {
      const std::size_t stored = header.bits == 4 ? (value + 1U) / 2 : value;
      at += (stored + 1) / 2 * 2;
      x += value;
    }
    if (at > bytes.size()) return false;
    if (y >= header.height || (y == header.height - 1 && x >= header.width)) return true;
  }
  return false;
}

bool is_whole_bmp(std::string_view bytes) {
  const Bmp_header header = bmp_header(bytes);
  if (header.run_lengths) return run_lengths_end(bytes, header);
  const std::int64_t row_bytes = (header.width * header.bits + 31) / 32 * 4;
  return header.pixels_at + row_bytes * header.height <= static_cast<std::int64_t>(bytes.size());
}

// Markers FF xx: segments with a length of two bytes behind most of them; behind a scan's (DA) header its data, in
// which FF 00 is a byte of data and FF D0 to FF D7 are restarts; FF D9 is the end. A picture inside a segment has an
// end of its own.
bool is_whole_jpeg(std::string_view bytes) {
  std::size_t at = 2;
  while (at + 1 < bytes.size()) {
    const std::uint8_t marker = byte_at(bytes, at + 1);
    if (byte_at(bytes, at) != 0xFF || marker == 0x00 || marker == 0xFF || (marker >= 0xD0 && marker <= 0xD7)) {
      ++at;
      continue;
    }
    if (marker == 0xD9) return true;
    at += 2 + static_cast<std::size_t>(big_endian(bytes, at + 2, 2));
  }
  return false;
}

// Chunks: a length of four bytes, a name, so much content, a check sum.
bool is_whole_png(std::string_view bytes) {
  std::size_t at = png_signature.size();
  while (at + 12 <= bytes.size()) {
    const std::string_view name = bytes.substr(at + 4, 4);
    at += 12 + static_cast<std::size_t>(big_endian(bytes, at, 4));
    if (name == "IEND") return at <= bytes.size();
  }
  return false;
}

}  // namespace

std::optional<Measure> bmp_measure(std::string_view bytes) {
  constexpr std::int64_t largest = 0x7FFFFFFF;
  if (!bytes.starts_with("BM")) return std::nullopt;
  const Bmp_header header = bmp_header(bytes);
  if (header.width <= 0 || header.height <= 0 || header.height > largest) return std::nullopt;
  return Measure{static_cast<int>(header.width), static_cast<int>(header.height)};
}

bool is_whole_picture(std::string_view bytes) {
  if (bytes.starts_with("BM")) return is_whole_bmp(bytes);
  if (bytes.starts_with("\xFF\xD8")) return is_whole_jpeg(bytes);
  return bytes.starts_with(png_signature) && is_whole_png(bytes);
}

}  // namespace platform
