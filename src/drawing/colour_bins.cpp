#include "drawing/colour_bins.h"

#include <algorithm>
#include <array>
#include <limits>

namespace drawing {
namespace {

using platform::Colour;

// A run of the list of bins in use that will share one entry.
struct Box {
  std::size_t begin = 0, end = 0;  // in the list
  std::uint64_t count = 0;         // colours counted
  int shift = 0;                   // of the channel with the widest range: 10 red, 5 green, 0 blue
  int range = 0;                   // of that channel, in bins

  // What is gained by parting it: wide boxes of many pixels first.
  double weight() const { return static_cast<double>(count) * range * range; }
};

int channel(std::size_t bin, int shift) {
  return static_cast<int>(bin >> shift & 0x1F);
}

Box measured_box(const std::vector<Colour_bin>& bins, const std::vector<std::size_t>& used, std::size_t begin,
                 std::size_t end) {
  Box box{begin, end};
  for (std::size_t i = begin; i < end; ++i) box.count += bins[used[i]].count;
  for (const int shift : {10, 5, 0}) {
    const auto [low, high] = std::minmax_element(
        used.begin() + static_cast<std::ptrdiff_t>(begin), used.begin() + static_cast<std::ptrdiff_t>(end),
        [=](std::size_t a, std::size_t b) { return channel(a, shift) < channel(b, shift); });
    const int range = channel(*high, shift) - channel(*low, shift);
    if (range > box.range) {
      box.range = range;
      box.shift = shift;
    }
  }
  return box;
}

// Sorts the box's bins along its widest channel and gives the place of the middle pixel, with a bin on either side.
std::size_t middle_of(const std::vector<Colour_bin>& bins, std::vector<std::size_t>& used, const Box& box) {
  std::sort(used.begin() + static_cast<std::ptrdiff_t>(box.begin), used.begin() + static_cast<std::ptrdiff_t>(box.end),
            [&](std::size_t a, std::size_t b) {
              const int channel_a = channel(a, box.shift), channel_b = channel(b, box.shift);
              return channel_a != channel_b ? channel_a < channel_b : a < b;
            });
  std::uint64_t passed = 0;
  std::size_t middle = box.begin;
  while (middle < box.end && passed * 2 < box.count) passed += bins[used[middle++]].count;
  return std::clamp(middle, box.begin + 1, box.end - 1);
}

std::vector<Box> median_cut(const std::vector<Colour_bin>& bins, std::vector<std::size_t>& used) {
  std::vector<Box> boxes;
  if (used.empty()) return boxes;
  boxes.push_back(measured_box(bins, used, 0, used.size()));
  while (boxes.size() < palette_entries) {
    const auto widest = std::max_element(boxes.begin(), boxes.end(),
                                         [](const Box& a, const Box& b) { return a.weight() < b.weight(); });
    if (widest->range == 0) break;  // every box holds one bin
    const Box box = *widest;
    const std::size_t middle = middle_of(bins, used, box);
    *widest = measured_box(bins, used, box.begin, middle);
    boxes.push_back(measured_box(bins, used, middle, box.end));
  }
  return boxes;
}

Colour mean_colour(const std::vector<Colour_bin>& bins, const std::vector<std::size_t>& used, const Box& box) {
  Colour_bin sum;
  for (std::size_t i = box.begin; i < box.end; ++i) {
    sum.red += bins[used[i]].red;
    sum.green += bins[used[i]].green;
    sum.blue += bins[used[i]].blue;
  }
  const auto mean = [&](std::uint64_t total) { return static_cast<Colour>((total + box.count / 2) / box.count); };
  return mean(sum.red) << 16 | mean(sum.green) << 8 | mean(sum.blue);
}

int distance(Colour a, Colour b) {
  int sum = 0;
  for (const int shift : {16, 8, 0}) {
    const int difference = static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF);
    sum += difference * difference;
  }
  return sum;
}

}  // namespace

const std::vector<Colour>& Colour_bins::make_palette() {
  std::vector<std::size_t> used;
  for (std::size_t bin = 0; bin < bins.size(); ++bin)
    if (bins[bin].count > 0) used.push_back(bin);
  entry_of_bin.assign(colour_bins, -1);
  palette.clear();
  for (const Box& box : median_cut(bins, used)) {
    for (std::size_t i = box.begin; i < box.end; ++i) entry_of_bin[used[i]] = static_cast<std::int16_t>(palette.size());
    palette.push_back(mean_colour(bins, used, box));
  }
  return palette;
}

std::uint8_t Colour_bins::find_entry(Colour colour) {
  const auto nearest = std::min_element(palette.begin(), palette.end(),
                                        [=](Colour a, Colour b) { return distance(a, colour) < distance(b, colour); });
  const auto entry = static_cast<std::int16_t>(nearest - palette.begin());
  entry_of_bin[bin_of(colour)] = entry;
  return static_cast<std::uint8_t>(entry);
}

}  // namespace drawing
