#include "drawing/sheet_picture.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <utility>

#include "drawing/colour_bins.h"

namespace drawing {
namespace {

using platform::Colour;
using platform::Picture;

constexpr int smallest_level = 64;  // pixels of the longer side
// Levels from this one on have depth 32: small enough by then, and free of a palette's steps.
constexpr std::size_t first_full_colour_level = 3;
// About so many pixels of a level are looked at to make its palette.
constexpr int palette_sample = 400'000;

// A colour with 16 bits for each channel, so that four of them can be added in one word.
using Wide = std::uint64_t;
constexpr Wide wide(Colour colour) {
  return static_cast<Wide>(colour & 0xFF0000) << 16 | static_cast<Wide>(colour & 0xFF00) << 8 | (colour & 0xFF);
}
constexpr Colour mean_of_four(Wide sum) {
  sum = (sum + 0x0002'0002'0002) >> 2;
  return static_cast<Colour>((sum >> 16 & 0xFF0000) | (sum >> 8 & 0xFF00) | (sum & 0xFF));
}

// The palette as sums; an index beyond it is black.
using Wide_palette = std::array<Wide, 256>;
Wide_palette wide_palette(const Picture& picture) {
  Wide_palette table{};
  for (std::size_t i = 0; i < std::min(table.size(), picture.palette.size()); ++i) table[i] = wide(picture.palette[i]);
  return table;
}

// Calls `take(x, mean colour)` for each pixel of row `y` of the half-size picture of an 8-bit one. The last column and
// row of an odd size count twice.
template <typename Take>
void half_row_of_8(const Picture& from, const Wide_palette& colours, int y, Take take) {
  const std::uint8_t* upper = from.row(2 * y);
  const std::uint8_t* lower = from.row(std::min(2 * y + 1, from.height - 1));
  const int pairs = from.width / 2;
  for (int x = 0; x < pairs; ++x)
    take(x, mean_of_four(colours[upper[2 * x]] + colours[upper[2 * x + 1]] + colours[lower[2 * x]] +
                         colours[lower[2 * x + 1]]));
  if (from.width % 2 != 0) {
    const Wide column = colours[upper[2 * pairs]] + colours[lower[2 * pairs]];
    take(pairs, mean_of_four(column * 2));
  }
}

Picture half_picture(const Picture& from, int depth) {
  return platform::make_picture((from.width + 1) / 2, (from.height + 1) / 2, depth);
}

Picture half_of_8_in_8(const Picture& from) {
  Picture level = half_picture(from, 8);
  const Wide_palette colours = wide_palette(from);
  Colour_bins bins;
  const int rows = std::max(1, palette_sample / level.width);
  const int step = std::max(1, level.height / rows);
  for (int y = 0; y < level.height; y += step)
    half_row_of_8(from, colours, y, [&](int, Colour mean) { bins.count(mean); });
  level.palette = bins.make_palette();
  for (int y = 0; y < level.height; ++y) {
    std::uint8_t* row = level.row(y);
    half_row_of_8(from, colours, y, [&](int x, Colour mean) { row[x] = bins.entry(mean); });
  }
  return level;
}

void put_32(std::uint8_t* row, int x, Colour colour) {
  const std::uint32_t word = 0xFF000000 | colour;
  std::memcpy(row + static_cast<std::size_t>(x) * 4, &word, sizeof word);
}

Picture half_of_8_in_32(const Picture& from) {
  Picture level = half_picture(from, 32);
  const Wide_palette colours = wide_palette(from);
  for (int y = 0; y < level.height; ++y) {
    std::uint8_t* row = level.row(y);
    half_row_of_8(from, colours, y, [&](int x, Colour mean) { put_32(row, x, mean); });
  }
  return level;
}

std::uint32_t word_at(const std::uint8_t* row, int x) {
  std::uint32_t word = 0;
  std::memcpy(&word, row + static_cast<std::size_t>(x) * 4, sizeof word);
  return word;
}

// Red and blue in one word, green in the other: four of each add up without touching one another.
std::uint32_t mean_of_words(std::uint32_t a, std::uint32_t b, std::uint32_t c, std::uint32_t d) {
  const std::uint32_t red_blue = (a & 0xFF00FF) + (b & 0xFF00FF) + (c & 0xFF00FF) + (d & 0xFF00FF) + 0x020002;
  const std::uint32_t green = (a & 0xFF00) + (b & 0xFF00) + (c & 0xFF00) + (d & 0xFF00) + 0x0200;
  return (red_blue >> 2 & 0xFF00FF) | (green >> 2 & 0xFF00);
}

Picture half_of_32(const Picture& from) {
  Picture level = half_picture(from, 32);
  const int pairs = from.width / 2;
  for (int y = 0; y < level.height; ++y) {
    const std::uint8_t* upper = from.row(2 * y);
    const std::uint8_t* lower = from.row(std::min(2 * y + 1, from.height - 1));
    std::uint8_t* row = level.row(y);
    for (int x = 0; x < pairs; ++x)
      put_32(row, x,
             mean_of_words(word_at(upper, 2 * x), word_at(upper, 2 * x + 1), word_at(lower, 2 * x),
                           word_at(lower, 2 * x + 1)));
    if (from.width % 2 != 0) {
      const std::uint32_t a = word_at(upper, 2 * pairs), b = word_at(lower, 2 * pairs);
      put_32(row, pairs, mean_of_words(a, a, b, b));
    }
  }
  return level;
}

// Seventeen colours from the picture's first to its second, one for each count of a 4 x 4 block.
std::vector<Colour> steps_between(const Picture& picture) {
  const Colour from = picture.palette.empty() ? 0 : picture.palette[0];
  const Colour to = picture.palette.size() < 2 ? 0 : picture.palette[1];
  std::vector<Colour> steps;
  for (unsigned n = 0; n <= 16; ++n) {
    Colour step = 0;
    for (const int shift : {16, 8, 0})
      step |= (((from >> shift & 0xFF) * (16 - n) + (to >> shift & 0xFF) * n + 8) / 16) << shift;
    steps.push_back(step);
  }
  return steps;
}

Picture quarter_of_1(const Picture& from) {
  Picture level = platform::make_picture((from.width + 3) / 4, (from.height + 3) / 4, 8);
  level.palette = steps_between(from);
  for (int y = 0; y < level.height; ++y) {
    const int rows = std::min(4, from.height - 4 * y);
    for (int x = 0; x < level.width; ++x) {
      const int columns = std::min(4, from.width - 4 * x);
      const unsigned mask = 0xFU << (4 - columns) & 0xF;
      int ones = 0;
      for (int i = 0; i < rows; ++i)
        ones += std::popcount((static_cast<unsigned>(from.row(4 * y + i)[x / 2]) >> (x % 2 == 0 ? 4 : 0)) & mask);
      level.row(y)[x] = static_cast<std::uint8_t>((ones * 16 + rows * columns / 2) / (rows * columns));
    }
  }
  return level;
}

Picture next_level(const Picture& from, std::size_t number) {
  if (from.depth == 1) return quarter_of_1(from);
  if (from.depth == 32) return half_of_32(from);
  return number < first_full_colour_level ? half_of_8_in_8(from) : half_of_8_in_32(from);
}

}  // namespace

Sheet_picture make_sheet_picture(Picture picture) {
  Sheet_picture sheet;
  if (picture.empty()) return sheet;
  sheet.levels.push_back(std::move(picture));
  while (std::max(sheet.levels.back().width, sheet.levels.back().height) > smallest_level)
    sheet.levels.push_back(next_level(sheet.levels.back(), sheet.levels.size()));
  return sheet;
}

int level_for(const Sheet_picture& picture, double target_width) {
  int level = 0;
  for (std::size_t i = 1; i < picture.levels.size() && picture.levels[i].width >= target_width; ++i)
    level = static_cast<int>(i);
  return level;
}

}  // namespace drawing
