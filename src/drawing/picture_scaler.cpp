#include "drawing/picture_scaler.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstring>
#include <vector>

namespace drawing {
namespace {

// A colour with its three channels in 16-bit lanes of one word, so that one multiplication weighs them all.
using Lanes = std::uint64_t;
constexpr Lanes lane_mask = 0x000000ff00ff00ff;
constexpr std::uint32_t opaque = 0xff000000;

Lanes to_lanes(std::uint32_t colour) {
  return (static_cast<Lanes>(colour & 0x0000ff00) << 24) | (colour & 0x00ff00ff);
}

std::uint32_t to_pixel(Lanes lanes) {
  return opaque | static_cast<std::uint32_t>(lanes & 0x00ff00ff) |
         static_cast<std::uint32_t>((lanes >> 24) & 0x0000ff00);
}

// Weights are 0 to 256.
Lanes mix(Lanes a, Lanes b, unsigned weight) {
  return ((a * (256 - weight) + b * weight) >> 8) & lane_mask;
}

// Where a row or column of the target reads the source: two neighbours and the weight of the second.
struct Sample {
  int first = 0, second = 0;
  unsigned weight = 0;
};

// The samples for the target's pixels from `begin` on, along one axis.
std::vector<Sample> samples(int begin, int end, double target_start, double target_length, int source_length) {
  std::vector<Sample> result;
  result.reserve(static_cast<std::size_t>(end - begin));
  const double step = source_length / target_length;
  for (int at = begin; at < end; ++at) {
    const double source = std::clamp((at + 0.5 - target_start) * step - 0.5, 0.0, source_length - 1.0);
    Sample sample;
    sample.first = static_cast<int>(source);
    sample.second = std::min(sample.first + 1, source_length - 1);
    sample.weight = static_cast<unsigned>((source - sample.first) * 256);
    result.push_back(sample);
  }
  return result;
}

// The first pixel whose centre lies at or behind a position.
int first_pixel(double position, int low, int high) {
  return static_cast<int>(std::clamp(std::ceil(position - 0.5), static_cast<double>(low), static_cast<double>(high)));
}

// `colour_at(row, x)` gives the lanes of a source pixel.
template <typename Colour_at>
void paint_rows(const platform::Picture& picture, const std::vector<Sample>& columns, const std::vector<Sample>& rows,
                const Raster& raster, int x0, int y0, Colour_at colour_at) {
  for (std::size_t i = 0; i < rows.size(); ++i) {
    const std::uint8_t* const upper = picture.row(rows[i].first);
    const std::uint8_t* const lower = picture.row(rows[i].second);
    const unsigned down = rows[i].weight;
    std::uint32_t* out = raster.pixels + static_cast<std::ptrdiff_t>(y0 + static_cast<int>(i)) * raster.stride + x0;
    for (const Sample& column : columns) {
      const Lanes top = mix(colour_at(upper, column.first), colour_at(upper, column.second), column.weight);
      const Lanes bottom = mix(colour_at(lower, column.first), colour_at(lower, column.second), column.weight);
      *out++ = to_pixel(mix(top, bottom, down));
    }
  }
}

std::array<Lanes, 256> lanes_of(const std::vector<platform::Colour>& palette) {
  std::array<Lanes, 256> lanes{};
  for (std::size_t i = 0; i < std::min(palette.size(), lanes.size()); ++i) lanes[i] = to_lanes(palette[i]);
  return lanes;
}

}  // namespace

void paint_scaled(const platform::Picture& picture, const Rect& target, const Raster& raster, const Pixel_range& clip) {
  if (picture.empty() || !(target.width > 0) || !(target.height > 0)) return;
  const int low_x = std::max(clip.x0, 0), high_x = std::min(clip.x1, raster.width);
  const int low_y = std::max(clip.y0, 0), high_y = std::min(clip.y1, raster.height);
  if (low_x >= high_x || low_y >= high_y) return;
  const int x0 = first_pixel(target.x, low_x, high_x), x1 = first_pixel(target.x + target.width, low_x, high_x);
  const int y0 = first_pixel(target.y, low_y, high_y), y1 = first_pixel(target.y + target.height, low_y, high_y);
  if (x0 >= x1 || y0 >= y1) return;
  const std::vector<Sample> columns = samples(x0, x1, target.x, target.width, picture.width);
  const std::vector<Sample> rows = samples(y0, y1, target.y, target.height, picture.height);
  if (picture.depth == 8) {
    const std::array<Lanes, 256> palette = lanes_of(picture.palette);
    paint_rows(picture, columns, rows, raster, x0, y0, [&](const std::uint8_t* row, int x) { return palette[row[x]]; });
  } else if (picture.depth == 1) {
    const std::array<Lanes, 256> palette = lanes_of(picture.palette);
    paint_rows(picture, columns, rows, raster, x0, y0,
               [&](const std::uint8_t* row, int x) { return palette[(row[x / 8] >> (7 - x % 8)) & 1]; });
  } else {
    paint_rows(picture, columns, rows, raster, x0, y0, [](const std::uint8_t* row, int x) {
      std::uint32_t colour;
      std::memcpy(&colour, row + 4 * static_cast<std::ptrdiff_t>(x), sizeof colour);
      return to_lanes(colour);
    });
  }
}

}  // namespace drawing
