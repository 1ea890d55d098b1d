#include "make_sample/palette.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <vector>

namespace sample {

namespace {

constexpr int bits = 6;  // of each colour part that are told apart
constexpr int levels = 1 << bits;
constexpr int most_colours = 256;

using Part = std::array<int, 3>;

struct Colour_count {
  Part part{};
  std::uint32_t count = 0;
};

std::size_t cell_of(QRgb colour) {
  return (static_cast<std::size_t>(qRed(colour) >> (8 - bits)) << (2 * bits)) |
         (static_cast<std::size_t>(qGreen(colour) >> (8 - bits)) << bits) |
         static_cast<std::size_t>(qBlue(colour) >> (8 - bits));
}

int middle_of_level(int level) {
  return (level << (8 - bits)) + (1 << (7 - bits));
}

Part part_of_cell(std::size_t cell) {
  return {middle_of_level(static_cast<int>(cell >> (2 * bits))),
          middle_of_level(static_cast<int>(cell >> bits) & (levels - 1)),
          middle_of_level(static_cast<int>(cell) & (levels - 1))};
}

std::vector<Colour_count> count_colours(const QImage& picture) {
  std::vector<std::uint32_t> counts(std::size_t{levels} * levels * levels);
  for (int row = 0; row < picture.height(); ++row) {
    const QRgb* line = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
    for (int column = 0; column < picture.width(); ++column) ++counts[cell_of(line[column])];
  }
  std::vector<Colour_count> colours;
  for (std::size_t cell = 0; cell < counts.size(); ++cell) {
    // The root keeps rare colours, such as a road's, from drowning in the forest's.
    if (counts[cell] > 0)
      colours.push_back({part_of_cell(cell), static_cast<std::uint32_t>(std::lround(16 * std::sqrt(counts[cell])))});
  }
  return colours;
}

// A run of colours that become one, and how badly one fits them.
struct Box {
  std::size_t begin = 0, end = 0;
  double spread = 0;
  int widest = 0;  // part along which it is spread most
  Part mean{};
};

Box box_of(const std::vector<Colour_count>& colours, std::size_t begin, std::size_t end) {
  Box box{begin, end, 0, 0, {}};
  double best = -1;
  for (std::size_t p = 0; p < 3; ++p) {
    double sum = 0, squares = 0, weight = 0;
    for (std::size_t i = begin; i < end; ++i) {
      const double value = colours[i].part[p], count = colours[i].count;
      sum += count * value;
      squares += count * value * value;
      weight += count;
    }
    const double spread = squares - sum * sum / weight;
    box.mean[p] = static_cast<int>(std::lround(sum / weight));
    box.spread += spread;
    if (spread > best) {
      best = spread;
      box.widest = static_cast<int>(p);
    }
  }
  return box;
}

// Sorts a box along its widest part and gives the place where its mean parts it.
std::size_t parting(std::vector<Colour_count>& colours, const Box& box) {
  const auto p = static_cast<std::size_t>(box.widest);
  const auto begin = colours.begin() + static_cast<std::ptrdiff_t>(box.begin);
  const auto end = colours.begin() + static_cast<std::ptrdiff_t>(box.end);
  std::stable_sort(begin, end, [p](const Colour_count& a, const Colour_count& b) { return a.part[p] < b.part[p]; });
  const auto above = std::find_if(begin, end, [&](const Colour_count& c) { return c.part[p] > box.mean[p]; });
  const auto at = static_cast<std::size_t>(above - colours.begin());
  return std::clamp(at, box.begin + 1, box.end - 1);
}

}  // namespace

QList<QRgb> fit_palette(const QImage& picture) {
  std::vector<Colour_count> colours = count_colours(picture);
  std::vector<Box> boxes{box_of(colours, 0, colours.size())};
  while (boxes.size() < most_colours) {
    const auto worst = std::max_element(boxes.begin(), boxes.end(), [](const Box& a, const Box& b) {
      return (a.end - a.begin > 1 ? a.spread : -1) < (b.end - b.begin > 1 ? b.spread : -1);
    });
    if (worst->end - worst->begin < 2) break;
    const Box whole = *worst;
    const std::size_t at = parting(colours, whole);
    *worst = box_of(colours, whole.begin, at);
    boxes.push_back(box_of(colours, at, whole.end));
  }
  QList<QRgb> palette;
  for (const Box& box : boxes) palette << qRgb(box.mean[0], box.mean[1], box.mean[2]);
  return palette;
}

QImage to_palette(const QImage& picture, const QList<QRgb>& palette) {
  // The nearest colour of each cell is sought once, when the first pixel asks for it.
  std::vector<std::int16_t> nearest(std::size_t{levels} * levels * levels, -1);
  const auto seek = [&](std::size_t cell) {
    const Part part = part_of_cell(cell);
    int best = 0, best_distance = 1 << 30;
    for (int i = 0; i < palette.size(); ++i) {
      const int red = part[0] - qRed(palette[i]), green = part[1] - qGreen(palette[i]),
                blue = part[2] - qBlue(palette[i]);
      const int distance = 3 * red * red + 4 * green * green + 2 * blue * blue;
      if (distance < best_distance) {
        best_distance = distance;
        best = i;
      }
    }
    return static_cast<std::int16_t>(best);
  };
  QImage indexed(picture.size(), QImage::Format_Indexed8);
  indexed.setColorTable(palette);
  for (int row = 0; row < picture.height(); ++row) {
    const QRgb* from = reinterpret_cast<const QRgb*>(picture.constScanLine(row));
    uchar* to = indexed.scanLine(row);
    // The bytes that fill up a row go into the file too, and no toolkit call sets them.
    std::fill(to + picture.width(), to + indexed.bytesPerLine(), uchar{0});
    for (int column = 0; column < picture.width(); ++column) {
      std::int16_t& index = nearest[cell_of(from[column])];
      if (index < 0) index = seek(cell_of(from[column]));
      to[column] = static_cast<uchar>(index);
    }
  }
  return indexed;
}

}  // namespace sample
