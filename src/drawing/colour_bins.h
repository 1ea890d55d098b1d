// A palette for the colours that a picture shows, and the way from a colour to its entry.
//
// Colours are counted in 32,768 bins of five bits a channel. Where more bins are in use than a palette has entries,
// they are parted by median cut (Heckbert, Color image quantization for frame buffer display, SIGGRAPH 1982).
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "platform/pictures.h"

namespace drawing {

inline constexpr std::size_t colour_bins = 32'768;
inline constexpr std::size_t palette_entries = 256;

inline std::size_t bin_of(platform::Colour colour) {
  return (colour >> 9 & 0x7C00) | (colour >> 6 & 0x3E0) | (colour >> 3 & 0x1F);
}

struct Colour_bin {
  std::uint32_t count = 0;
  std::uint64_t red = 0, green = 0, blue = 0;  // sums of the colours counted
};

struct Colour_bins {
  std::vector<Colour_bin> bins = std::vector<Colour_bin>(colour_bins);
  std::vector<std::int16_t> entry_of_bin;  // -1: not looked for yet
  std::vector<platform::Colour> palette;

  void count(platform::Colour colour) {
    Colour_bin& bin = bins[bin_of(colour)];
    ++bin.count;
    bin.red += colour >> 16 & 0xFF;
    bin.green += colour >> 8 & 0xFF;
    bin.blue += colour & 0xFF;
  }
  // Makes the palette of at most 256 entries from what was counted; each entry is the mean colour of its bins.
  const std::vector<platform::Colour>& make_palette();
  // The entry of a colour's bin; for a bin that was never counted the nearest entry. After make_palette.
  std::uint8_t entry(platform::Colour colour) {
    const std::int16_t known = entry_of_bin[bin_of(colour)];
    return known >= 0 ? static_cast<std::uint8_t>(known) : find_entry(colour);
  }

 private:
  std::uint8_t find_entry(platform::Colour colour);
};

}  // namespace drawing
