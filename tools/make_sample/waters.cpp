#include <algorithm>
#include <cmath>

#include "make_sample/country.h"
#include "make_sample/course.h"

namespace sample {

namespace {

// The river is wide, with banks of gravel; its tributaries keep to narrow beds.
double width_of_water(double flow) {
  const double as_river = std::clamp((flow - 300) / 700, 0.0, 1.0);
  return (1.25 + 0.85 * as_river) * std::sqrt(flow);
}

River river_of(const ground::Stream& stream, const Relief& relief) {
  River river;
  Course nodes;
  for (const ground::Stream_node& node : stream.nodes) nodes.push_back(node.at);
  river.course = smooth(nodes);
  river.order = stream.order;
  // The mouth's own flow is the parent's.
  const std::size_t own = std::min<std::size_t>(1, stream.nodes.size() - 1);
  river.flow = stream.nodes[stream.order == 0 ? 0 : own].flow;
  for (std::size_t i = 0; i < river.course.size(); ++i) {
    const std::size_t node = std::clamp(i * stream.nodes.size() / river.course.size(), own, stream.nodes.size() - 1);
    const ground::Stream_node& at = stream.nodes[node];
    // Where a deeper valley beside it has cut a stream off it is dry.
    const bool dry = relief_at(relief, at.at.x, at.at.y).z < at.bed - 6;
    river.widths.push_back(dry ? 0 : width_of_water(at.flow));
  }
  return river;
}

constexpr double depth_at_dam = 52;
constexpr double dam_length = 330;

// The reservoir stands in the large tributary with the most water that comes from the north, where its valley leaves
// the hills.
int dammed_stream(const ground::Stream_net& net) {
  int best = -1;
  for (std::size_t s = 1; s < net.size(); ++s) {
    const ground::Stream& stream = net[s];
    if (stream.order != 1 || stream.parent != 0 || stream.nodes.size() < 60) continue;
    const Point mouth = stream.nodes[0].at;
    if (std::abs(mouth.x) > 9000 || stream.nodes[30].at.y < mouth.y) continue;
    if (best < 0 || stream.nodes[1].flow > net[static_cast<std::size_t>(best)].nodes[1].flow)
      best = static_cast<int>(s);
  }
  return best;
}

bool upstream_of_dam(const Lake& lake, Point at, Point inside) {
  const auto side = [&](Point p) {
    return (lake.dam_right.x - lake.dam_left.x) * (p.y - lake.dam_left.y) -
           (lake.dam_right.y - lake.dam_left.y) * (p.x - lake.dam_left.x);
  };
  return side(at) * side(inside) > 0;
}

// Spreads from a node of the relief to all that lie below the level and above the dam.
void flood(const Relief& relief, Lake& lake, Point start) {
  lake.covered.assign(relief.heights.size(), 0);
  const auto index = [&](int column, int row) {
    return static_cast<std::size_t>(row) * static_cast<std::size_t>(relief.columns) + static_cast<std::size_t>(column);
  };
  struct Node {
    int column, row;
  };
  std::vector<Node> open{{static_cast<int>((start.x - relief.west) / relief.spacing),
                          static_cast<int>((start.y - relief.south) / relief.spacing)}};
  while (!open.empty()) {
    const Node node = open.back();
    open.pop_back();
    if (node.column < 0 || node.row < 0 || node.column >= relief.columns || node.row >= relief.rows) continue;
    const std::size_t at = index(node.column, node.row);
    const Point where{relief.west + node.column * relief.spacing, relief.south + node.row * relief.spacing};
    if (lake.covered[at] != 0 || !upstream_of_dam(lake, where, start) || distance(where, start) > 4500) continue;
    lake.covered[at] = 1;
    // One node of dry land is kept beside the water, so that a picture finds the shore between two nodes.
    if (relief.heights[at] > lake.level) continue;
    for (const auto& [dc, dr] : {Node{1, 0}, Node{-1, 0}, Node{0, 1}, Node{0, -1}})
      open.push_back({node.column + dc, node.row + dr});
  }
}

}  // namespace

bool under_lake(const Country& country, Point at, double height) {
  const Relief& relief = country.relief;
  if (country.lake.covered.empty() || height >= country.lake.level) return false;
  const int column = static_cast<int>(std::lround((at.x - relief.west) / relief.spacing));
  const int row = static_cast<int>(std::lround((at.y - relief.south) / relief.spacing));
  if (column < 0 || row < 0 || column >= relief.columns || row >= relief.rows) return false;
  return country.lake.covered[static_cast<std::size_t>(row) * static_cast<std::size_t>(relief.columns) +
                              static_cast<std::size_t>(column)] != 0;
}

void add_waters(Country& country) {
  for (const ground::Stream& stream : country.ground.streams)
    country.rivers.push_back(river_of(stream, country.relief));
  const int dammed = dammed_stream(country.ground.streams);
  if (dammed < 0) return;
  const ground::Stream& stream = country.ground.streams[static_cast<std::size_t>(dammed)];
  constexpr std::size_t dam_node = 14;
  const ground::Stream_node& at_dam = stream.nodes[dam_node];
  const double across = angle_of(stream.nodes[dam_node - 1].at, stream.nodes[dam_node + 1].at) + 1.5707963267948966;
  Lake& lake = country.lake;
  lake.level = at_dam.bed + depth_at_dam;
  lake.dam_left = {at_dam.at.x + dam_length / 2 * std::cos(across), at_dam.at.y + dam_length / 2 * std::sin(across)};
  lake.dam_right = {at_dam.at.x - dam_length / 2 * std::cos(across), at_dam.at.y - dam_length / 2 * std::sin(across)};
  lake.middle = stream.nodes[dam_node + 7].at;
  flood(country.relief, lake, stream.nodes[dam_node + 2].at);
}

}  // namespace sample
