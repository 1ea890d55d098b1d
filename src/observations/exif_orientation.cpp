#include "observations/exif_orientation.h"

#include <array>
#include <cstddef>
#include <cstdint>

namespace observations {
namespace {

constexpr std::string_view exif_name("Exif\0\0", 6);
constexpr unsigned start_of_scan = 0xDA;
constexpr unsigned exif_segment = 0xE1;
constexpr unsigned orientation_tag = 0x0112;
constexpr unsigned short_type = 3;

// Values 1 to 8; the even ones are mirrored.
constexpr std::array<int, 9> turns_of{0, 0, 0, 2, 2, 1, 1, 3, 3};

// Whole numbers in one of the two byte orders. What lies behind the end reads as 0.
struct Bytes {
  std::string_view text;
  bool little = false;

  unsigned byte(std::size_t at) const { return at < text.size() ? static_cast<std::uint8_t>(text[at]) : 0u; }
  unsigned word(std::size_t at) const { return little ? byte(at) | byte(at + 1) << 8 : byte(at) << 8 | byte(at + 1); }
  std::size_t double_word(std::size_t at) const {
    return little ? word(at) | std::size_t{word(at + 2)} << 16 : std::size_t{word(at)} << 16 | word(at + 2);
  }
};

// "II" or "MM", 42, offset of the first directory; a directory: its number of entries, then entries of 12 bytes:
//   0 tag   2 type   4 count   8 value
int turns_in(std::string_view tiff) {
  const Bytes bytes{tiff, tiff.starts_with("II")};
  const std::size_t directory = bytes.double_word(4);
  const unsigned entries = bytes.word(directory);
  for (std::size_t i = 0; i < entries; ++i) {
    const std::size_t entry = directory + 2 + 12 * i;
    if (entry + 12 > tiff.size()) return 0;
    if (bytes.word(entry) != orientation_tag || bytes.word(entry + 2) != short_type) continue;
    const unsigned value = bytes.word(entry + 8);
    return value < turns_of.size() ? turns_of[value] : 0;
  }
  return 0;
}

}  // namespace

// FF D8, then segments up to the picture's data: FF, a marker, a length of two bytes that counts itself, content.
int exif_quarter_turns(std::string_view text) {
  const Bytes bytes{text};
  if (!text.starts_with("\xFF\xD8")) return 0;
  for (std::size_t at = 2; at + 4 <= text.size() && bytes.byte(at) == 0xFF;) {
    const unsigned marker = bytes.byte(at + 1);
    const std::size_t length = bytes.word(at + 2);
    if (marker == start_of_scan || length < 2) return 0;
    const std::string_view content = text.substr(at + 4, length - 2);
    if (marker == exif_segment && content.starts_with(exif_name)) return turns_in(content.substr(exif_name.size()));
    at += 2 + length;
  }
  return 0;
}

}  // namespace observations
