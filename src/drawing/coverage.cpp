#include "drawing/coverage.h"

#include <algorithm>
#include <cmath>
#include <cstring>

namespace drawing {
namespace {

constexpr std::uint32_t opaque = 0xff000000;

float* row_of(Coverage& coverage, int row) {
  return coverage.cells.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(coverage.width + 2);
}

// A piece of an edge within one cell: `height` is what it spans of the row, signed by its direction, and `middle` where
// it stands in the cell on the average. All cells to its right are covered by the height.
void add_piece(float* cell, double height, double middle) {
  cell[0] += static_cast<float>(height * (1 - middle));
  cell[1] += static_cast<float>(height * middle);
}

// The part of an edge within one row, from x = a to x = b.
void add_in_row(Coverage& coverage, int row, double a, double b, double height) {
  if (a > b) std::swap(a, b);
  const int first = static_cast<int>(a), last = static_cast<int>(b);
  Coverage::Touched& touched = coverage.rows[static_cast<std::size_t>(row)];
  touched.first = std::min(touched.first, first);
  touched.last = std::max(touched.last, last + 1);
  float* const cells = row_of(coverage, row);
  if (first == last) {
    add_piece(cells + first, height, (a + b) / 2 - first);
    return;
  }
  const double height_per_x = height / (b - a);
  double from = a;
  for (int cell = first; cell <= last; ++cell) {
    const double to = std::min(cell + 1.0, b);
    add_piece(cells + cell, (to - from) * height_per_x, (from + to) / 2 - cell);
    from = to;
  }
}

// Flatter than this an edge covers nothing that would be seen, and its slope could be infinite.
constexpr double least_height = 1e-9;

void add_edge(Coverage& coverage, Point from, Point to) {
  if (std::abs(from.y - to.y) < least_height) return;
  const double direction = from.y < to.y ? 1 : -1;
  if (direction < 0) std::swap(from, to);
  const double slope = (to.x - from.x) / (to.y - from.y);
  for (int row = static_cast<int>(from.y); row < to.y; ++row) {
    const double top = std::max(from.y, static_cast<double>(row)), bottom = std::min(to.y, row + 1.0);
    add_in_row(coverage, row, from.x + (top - from.y) * slope, from.x + (bottom - from.y) * slope,
               (bottom - top) * direction);
  }
}

// Asks for the memory of a pixel ahead of its use. A map's pixels lie scattered over more memory than the caches hold,
// and waiting for one row after the other is what most of the time would go into.
void fetch_ahead([[maybe_unused]] const std::uint32_t* pixel) {
#ifdef __GNUC__
  __builtin_prefetch(pixel, 1);
#endif
}

constexpr std::uint64_t lanes = 0x00ff00ff00ff00ff;

// The four channels of a pixel in four lanes of 16 bits.
std::uint64_t spread(std::uint32_t pixel) {
  return (pixel & 0x00ff00ffU) | static_cast<std::uint64_t>(pixel & 0xff00ff00U) << 24;
}

// A lane's sum is at most 255 x 255 + 128, and (t + t / 256) / 256 is its 255th part, rounded.
std::uint32_t blended(std::uint32_t pixel, std::uint64_t colour, std::uint64_t alpha) {
  const std::uint64_t t = spread(pixel) * (255 - alpha) + colour * alpha + 0x0080008000800080;
  const std::uint64_t result = ((t + ((t >> 8) & lanes)) >> 8) & lanes;
  return static_cast<std::uint32_t>(result | result >> 24);
}

// Without a branch for pixels that are covered in whole or not at all: guessing wrong costs more than the blend.
void blend_row(std::uint32_t* pixels, const std::uint8_t* alpha, int count, std::uint64_t colour) {
  for (int i = 0; i < count; ++i) pixels[i] = blended(pixels[i], colour, alpha[i]);
}

// Rounded: in halves of a level, one half up, then cut.
std::uint64_t alpha_of(float area) {
  return static_cast<std::uint64_t>(std::min(std::abs(area), 1.0F) * 510 + 1) / 2;
}

constexpr int run = 8;

bool is_run_without_edge(const float* cells) {
  std::uint64_t bits[run / 2];
  std::memcpy(bits, cells, sizeof bits);
  return (bits[0] | bits[1] | bits[2] | bits[3]) == 0;
}

// Pixels of one area: inside a shape or in its hole.
void blend_run(std::uint32_t* pixels, int count, std::uint64_t colour, std::uint64_t alpha) {
  if (alpha == 255) {
    std::fill(pixels, pixels + count, static_cast<std::uint32_t>(colour | colour >> 24));
  } else if (alpha != 0) {
    for (int i = 0; i < count; ++i) pixels[i] = blended(pixels[i], colour, alpha);
  }
}

// Blends the touched cells of a row, cell 0 lying over pixel `left` of `pixels`; only those from clip.x0 to
// clip.x1 are there.
void blend_cells(const float* cells, const Coverage::Touched& touched, std::uint32_t* pixels, int left,
                 const Pixel_range& clip, std::uint64_t colour) {
  const int begin = clip.x0 - left, end = clip.x1 - left;
  float area = 0;
  for (int cell = touched.first; cell <= touched.last && cell < end;) {
    if (cells[cell] == 0 && cell >= begin && cell + run <= end && cell + run <= touched.last &&
        is_run_without_edge(cells + cell)) {
      blend_run(pixels + (left + cell), run, colour, alpha_of(area));
      cell += run;
      continue;
    }
    area += cells[cell];
    if (cell >= begin) pixels[left + cell] = blended(pixels[left + cell], colour, alpha_of(area));
    ++cell;
  }
}

}  // namespace

void cover_begin(Coverage& coverage, const Rect& bounds) {
  coverage.left = static_cast<int>(std::floor(bounds.x));
  coverage.top = static_cast<int>(std::floor(bounds.y));
  coverage.width = static_cast<int>(std::ceil(bounds.x + bounds.width)) - coverage.left;
  coverage.height = static_cast<int>(std::ceil(bounds.y + bounds.height)) - coverage.top;
  const std::size_t rows = static_cast<std::size_t>(coverage.height);
  const std::size_t needed = rows * static_cast<std::size_t>(coverage.width + 2);
  if (coverage.cells.size() < needed) coverage.cells.resize(needed);
  coverage.rows.assign(rows, {coverage.width + 1, -1});
}

void cover_fetch(const Coverage& coverage, const Raster& raster, const Pixel_range& clip) {
  if (clip.x0 >= clip.x1) return;
  const int x = std::clamp(coverage.left, clip.x0, clip.x1 - 1);
  const int last = std::min(coverage.top + coverage.height, clip.y1);
  for (int y = std::max(coverage.top, clip.y0); y < last; ++y)
    fetch_ahead(raster.pixels + static_cast<std::ptrdiff_t>(y) * raster.stride + x);
}

void cover_ring(Coverage& coverage, std::span<const Point> ring) {
  if (ring.empty()) return;
  // Nothing leaves the cells: what isn't a number comes to 0, which clamp would let through.
  const auto within = [](double at, int size) { return std::min(std::max(0.0, at), static_cast<double>(size)); };
  const auto placed = [&](Point point) {
    return Point{within(point.x - coverage.left, coverage.width), within(point.y - coverage.top, coverage.height)};
  };
  Point last = placed(ring.back());
  for (const Point point : ring) {
    const Point next = placed(point);
    add_edge(coverage, last, next);
    last = next;
  }
}

void cover_blend(Coverage& coverage, const Raster& raster, const Pixel_range& clip, Colour colour) {
  const std::uint64_t channels = spread(opaque | colour);
  for (int row = 0; row < coverage.height; ++row) {
    const Coverage::Touched touched = coverage.rows[static_cast<std::size_t>(row)];
    if (touched.first > touched.last) continue;
    float* const cells = row_of(coverage, row);
    const int y = coverage.top + row;
    if (y >= clip.y0 && y < clip.y1)
      blend_cells(cells, touched, raster.pixels + static_cast<std::ptrdiff_t>(y) * raster.stride, coverage.left, clip,
                  channels);
    std::fill(cells + touched.first, cells + touched.last + 1, 0.0F);
  }
}

void mask_blend(const Mask& mask, int x, int y, const Raster& raster, const Pixel_range& clip, Colour colour) {
  const int left = x + mask.left, top = y + mask.top;
  const int first = std::max(clip.x0 - left, 0), end = std::min(clip.x1 - left, mask.width);
  const int last_row = std::min(clip.y1 - top, mask.height);
  if (first >= end) return;
  for (int row = std::max(clip.y0 - top, 0); row < last_row; ++row)
    fetch_ahead(raster.pixels + static_cast<std::ptrdiff_t>(top + row) * raster.stride + (left + first));
  const std::uint64_t channels = spread(opaque | colour);
  for (int row = std::max(clip.y0 - top, 0); row < last_row; ++row) {
    const std::uint8_t* const alpha = mask.alpha.data() + static_cast<std::ptrdiff_t>(row) * mask.width;
    std::uint32_t* const pixels = raster.pixels + static_cast<std::ptrdiff_t>(top + row) * raster.stride;
    blend_row(pixels + (left + first), alpha + first, end - first, channels);
  }
}

}  // namespace drawing
