#include "make_sample/relief.h"

#include <algorithm>
#include <cmath>

#include "make_sample/in_parallel.h"

namespace sample {

namespace {

constexpr double half_width = 12300, half_height = 10300;

float node(const Relief& relief, int column, int row) {
  column = std::clamp(column, 0, relief.columns - 1);
  row = std::clamp(row, 0, relief.rows - 1);
  return relief.heights[static_cast<std::size_t>(row) * static_cast<std::size_t>(relief.columns) +
                        static_cast<std::size_t>(column)];
}

// Weights of four nodes in a row at the fraction t between the middle two, and the slopes of the weights.
struct Weights {
  double value[4], slope[4];
};

Weights weights(double t) {
  const double t2 = t * t, t3 = t2 * t;
  return {{-0.5 * t3 + t2 - 0.5 * t, 1.5 * t3 - 2.5 * t2 + 1, -1.5 * t3 + 2 * t2 + 0.5 * t, 0.5 * t3 - 0.5 * t2},
          {-1.5 * t2 + 2 * t - 0.5, 4.5 * t2 - 5 * t, -4.5 * t2 + 4 * t + 0.5, 1.5 * t2 - t}};
}

double ring_mean(const Relief& relief, int column, int row, int radius) {
  double sum = 0;
  constexpr int points = 24;
  for (int i = 0; i < points; ++i) {
    const double angle = 2 * 3.14159265358979 * i / points;
    sum += node(relief, column + static_cast<int>(std::lround(radius * std::cos(angle))),
                row + static_cast<int>(std::lround(radius * std::sin(angle))));
  }
  return sum / points;
}

bool highest_within(const Relief& relief, int column, int row, int radius) {
  const float height = node(relief, column, row);
  for (int r = -radius; r <= radius; ++r)
    for (int c = -radius; c <= radius; ++c) {
      if (c * c + r * r > radius * radius || (c == 0 && r == 0)) continue;
      if (node(relief, column + c, row + r) >= height) return false;
    }
  return true;
}

bool higher_than_neighbours(const Relief& relief, int column, int row) {
  const float height = node(relief, column, row);
  for (int r = -1; r <= 1; ++r)
    for (int c = -1; c <= 1; ++c)
      if ((c != 0 || r != 0) && node(relief, column + c, row + r) >= height) return false;
  return true;
}

constexpr int coarse = 4;            // nodes between two nodes of the valley lattice
constexpr double valley_ring = 430;  // metres around a place that tell whether it lies low

void find_valleys(Relief& relief) {
  relief.coarse_columns = (relief.columns - 1) / coarse + 1;
  relief.coarse_rows = (relief.rows - 1) / coarse + 1;
  for (int row = 0; row < relief.coarse_rows; ++row)
    for (int column = 0; column < relief.coarse_columns; ++column) {
      const double below =
          ring_mean(relief, column * coarse, row * coarse, static_cast<int>(valley_ring / relief.spacing)) -
          node(relief, column * coarse, row * coarse);
      relief.valley.push_back(static_cast<float>(std::clamp(below / 30 - 0.25, 0.0, 1.0)));
    }
}

}  // namespace

Relief make_relief(const ground::Ground& ground, double spacing) {
  Relief relief;
  relief.spacing = spacing;
  relief.west = -half_width;
  relief.south = -half_height;
  relief.columns = static_cast<int>(2 * half_width / spacing) + 1;
  relief.rows = static_cast<int>(2 * half_height / spacing) + 1;
  relief.heights.resize(static_cast<std::size_t>(relief.columns) * static_cast<std::size_t>(relief.rows));
  in_parallel(relief.rows, [&](int row) {
    for (int column = 0; column < relief.columns; ++column)
      relief.heights[static_cast<std::size_t>(row) * static_cast<std::size_t>(relief.columns) +
                     static_cast<std::size_t>(column)] =
          static_cast<float>(
              ground::topography(ground, relief.west + column * spacing, relief.south + row * spacing).z);
  });
  find_valleys(relief);
  return relief;
}

double valley_at(const Relief& relief, double x, double y) {
  const double u = (x - relief.west) / (coarse * relief.spacing), v = (y - relief.south) / (coarse * relief.spacing);
  const int column = std::clamp(static_cast<int>(u), 0, relief.coarse_columns - 2);
  const int row = std::clamp(static_cast<int>(v), 0, relief.coarse_rows - 2);
  const double a = std::clamp(u - column, 0.0, 1.0), b = std::clamp(v - row, 0.0, 1.0);
  const float* low =
      relief.valley.data() + static_cast<std::size_t>(row) * static_cast<std::size_t>(relief.coarse_columns) + column;
  const float* high = low + relief.coarse_columns;
  return (1 - b) * ((1 - a) * low[0] + a * low[1]) + b * ((1 - a) * high[0] + a * high[1]);
}

ground::Height relief_at(const Relief& relief, double x, double y) {
  const double u = (x - relief.west) / relief.spacing, v = (y - relief.south) / relief.spacing;
  const double column = std::floor(u), row = std::floor(v);
  const Weights across = weights(u - column), up = weights(v - row);
  const int c = static_cast<int>(column) - 1, r = static_cast<int>(row) - 1;
  ground::Height height;
  for (int j = 0; j < 4; ++j) {
    double value = 0, slope = 0;
    for (int i = 0; i < 4; ++i) {
      const double z = node(relief, c + i, r + j);
      value += across.value[i] * z;
      slope += across.slope[i] * z;
    }
    height.z += up.value[j] * value;
    height.dx += up.value[j] * slope;
    height.dy += up.slope[j] * value;
  }
  height.dx /= relief.spacing;
  height.dy /= relief.spacing;
  return height;
}

Relief_row relief_row(const Relief& relief, double y) {
  const double v = (y - relief.south) / relief.spacing;
  const double row = std::floor(v);
  const Weights up = weights(v - row);
  const int r = static_cast<int>(row) - 1;
  Relief_row line{relief.west, relief.spacing, {}, {}};
  for (int c = 0; c < relief.columns; ++c) {
    double value = 0, slope = 0;
    for (int j = 0; j < 4; ++j) {
      const double z = node(relief, c, r + j);
      value += up.value[j] * z;
      slope += up.slope[j] * z;
    }
    line.heights.push_back(value);
    line.slopes.push_back(slope / relief.spacing);
  }
  return line;
}

ground::Height relief_at(const Relief_row& row, double x) {
  const double u = (x - row.west) / row.spacing;
  const double column = std::clamp(std::floor(u), 1.0, static_cast<double>(row.heights.size()) - 3);
  const Weights across = weights(u - column);
  const auto first = static_cast<std::size_t>(column) - 1;
  ground::Height height;
  for (std::size_t i = 0; i < 4; ++i) {
    height.z += across.value[i] * row.heights[first + i];
    height.dx += across.slope[i] * row.heights[first + i];
    height.dy += across.value[i] * row.slopes[first + i];
  }
  height.dx /= row.spacing;
  return height;
}

std::vector<Summit> summits(const Relief& relief, double radius) {
  const int ring = static_cast<int>(radius / relief.spacing);
  std::vector<Summit> found;
  for (int row = 1; row < relief.rows - 1; ++row)
    for (int column = 1; column < relief.columns - 1; ++column) {
      if (!higher_than_neighbours(relief, column, row) || !highest_within(relief, column, row, ring)) continue;
      const double height = node(relief, column, row);
      found.push_back({{relief.west + column * relief.spacing, relief.south + row * relief.spacing},
                       height,
                       height - ring_mean(relief, column, row, ring)});
    }
  std::stable_sort(found.begin(), found.end(), [](const Summit& a, const Summit& b) { return a.rises > b.rises; });
  return found;
}

}  // namespace sample
