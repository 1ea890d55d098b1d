#include <cmath>
#include <queue>

#include "make_sample/country.h"
#include "make_sample/course.h"

namespace sample {

namespace {

// A coarse lattice over the country; the border takes the cheapest way through it, and high ground is cheap.
constexpr double spacing = 120;
constexpr int columns = 205, rows = 171;

Point node_at(int index) {
  return {(index % columns - columns / 2) * spacing, (index / columns - rows / 2) * spacing};
}

int index_of(Point at) {
  return (static_cast<int>(std::lround(at.y / spacing)) + rows / 2) * columns +
         static_cast<int>(std::lround(at.x / spacing)) + columns / 2;
}

std::vector<double> costs(const Relief& relief) {
  std::vector<double> cost;
  for (int i = 0; i < columns * rows; ++i) {
    const Point at = node_at(i);
    cost.push_back(std::exp(-relief_at(relief, at.x, at.y).z / 75));
  }
  return cost;
}

// Dijkstra's shortest way; each node's forerunner, -1 where there is none.
std::vector<int> ways_from(int start, const std::vector<double>& cost) {
  using Reached = std::pair<double, int>;
  std::vector<double> total(cost.size(), 1e300);
  std::vector<int> before(cost.size(), -1);
  std::priority_queue<Reached, std::vector<Reached>, std::greater<>> open;
  total[static_cast<std::size_t>(start)] = 0;
  open.push({0, start});
  while (!open.empty()) {
    const auto [so_far, node] = open.top();
    open.pop();
    if (so_far > total[static_cast<std::size_t>(node)]) continue;
    for (int dr = -1; dr <= 1; ++dr)
      for (int dc = -1; dc <= 1; ++dc) {
        const int column = node % columns + dc, row = node / columns + dr;
        if ((dc == 0 && dr == 0) || column < 0 || row < 0 || column >= columns || row >= rows) continue;
        const int next = row * columns + column;
        const double longer = so_far + cost[static_cast<std::size_t>(next)] * std::hypot(dc, dr);
        if (longer >= total[static_cast<std::size_t>(next)]) continue;
        total[static_cast<std::size_t>(next)] = longer;
        before[static_cast<std::size_t>(next)] = node;
        open.push({longer, next});
      }
  }
  return before;
}

}  // namespace

void add_border(Country& country) {
  const int start = index_of({-12000, 4000}), end = index_of({12000, 1500});
  const std::vector<int> before = ways_from(end, costs(country.relief));
  Course way;
  for (int node = start; node >= 0; node = before[static_cast<std::size_t>(node)]) way.push_back(node_at(node));
  country.border = smooth(way);
}

}  // namespace sample
