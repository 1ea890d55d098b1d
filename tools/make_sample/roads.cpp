#include <algorithm>
#include <cmath>

#include "make_sample/country.h"
#include "make_sample/course.h"

namespace sample {

namespace {

constexpr double road_beside_river = 200;  // metres from the river to the national road on its left bank
constexpr double rail_beside_river = 235;  // and to the railway on its right bank

// Where the flow of a tributary falls below these, its road changes kind or ends.
constexpr double prefectural_above = 9, town_above = 3.2, track_above = 0.9;

constexpr double farthest_joint = 500;  // metres from a valley's mouth to the road that its own begins at

Course nodes_of(const ground::Stream& stream, std::size_t from, std::size_t to) {
  Course course;
  for (std::size_t i = from; i < to; ++i) course.push_back(stream.nodes[i].at);
  return course;
}

std::size_t first_node_below(const ground::Stream& stream, double flow) {
  std::size_t node = 1;
  while (node < stream.nodes.size() && stream.nodes[node].flow > flow) ++node;
  return node;
}

// The nearest point of all roads to a place.
Point nearest_road(const std::vector<Road>& roads, Point to) {
  Nearest best;
  for (const Road& road : roads) {
    if (road.kind == Road_kind::path) continue;
    const Nearest nearest = nearest_point(road.course, to);
    if (nearest.distance < best.distance) best = nearest;
  }
  return best.at;
}

bool drowned(const Country& country, Point at) {
  return under_lake(country, at, relief_at(country.relief, at.x, at.y).z - 5);
}

// A valley road in pieces, each of the kind that its stream's flow allows, joined end to end.
void add_valley_road(Country& country, const ground::Stream& stream, double side) {
  struct Piece {
    Road_kind kind;
    double above;
  };
  constexpr Piece pieces[] = {
      {Road_kind::prefectural, prefectural_above}, {Road_kind::town, town_above}, {Road_kind::track, track_above}};
  const std::size_t end = first_node_below(stream, track_above);
  if (end < 6) return;
  Course way = beside(even_out(nodes_of(stream, 1, end), 2), side * 58);
  // A road ends where a reservoir begins.
  std::size_t dry = 0;
  while (dry < way.size() && !drowned(country, way[dry])) ++dry;
  way.resize(dry);
  if (way.size() < 4) return;
  // A valley that no road comes near, such as one above a reservoir, has none of its own.
  Course start{nearest_road(country.roads, way[0])};
  if (distance(start[0], way[0]) > farthest_joint) return;
  std::size_t from = 0;
  for (const Piece& piece : pieces) {
    const std::size_t to = std::min(first_node_below(stream, piece.above), way.size());
    if (to <= from + 1) continue;
    Course course = start;
    course.insert(course.end(), way.begin() + static_cast<std::ptrdiff_t>(from),
                  way.begin() + static_cast<std::ptrdiff_t>(to));
    start = {course.back()};
    country.roads.push_back({piece.kind, smooth(course)});
    from = to;
  }
}

// From the head of a valley up the steepest way to a summit.
Course path_to_summit(const Country& country, Point from) {
  Course course{from};
  for (int i = 0; i < 120; ++i) {
    const ground::Height height = relief_at(country.relief, course.back().x, course.back().y);
    const double slope = std::hypot(height.dx, height.dy);
    if (slope < 0.03) break;
    const Point next{course.back().x + 24 * height.dx / slope, course.back().y + 24 * height.dy / slope};
    if (relief_at(country.relief, next.x, next.y).z < height.z) break;
    course.push_back(next);
  }
  // On a ridge the steepest way swings from side to side.
  return even_out(even_out(course, 3), 3);
}

}  // namespace

void add_roads(Country& country) {
  const ground::Stream& river = country.ground.streams[0];
  const Course along = even_out(nodes_of(river, 0, river.nodes.size()), 7);
  country.roads.push_back({Road_kind::national, smooth(beside(along, road_beside_river))});
  country.railway = smooth(even_out(beside(along, -rail_beside_river), 6));

  double side = 1;
  for (const ground::Stream& stream : country.ground.streams) {
    const bool large = stream.order == 1 && stream.nodes[1].flow > 12;
    const bool brook = stream.order == 2 && stream.nodes[1].flow > 3.2;
    if (!large && !brook) continue;
    add_valley_road(country, stream, side);
    side = -side;
  }
  const std::size_t drivable = country.roads.size();
  for (std::size_t i = 0; i < drivable; ++i) {
    if (country.roads[i].kind != Road_kind::track) continue;
    const Course path = path_to_summit(country, country.roads[i].course.back());
    if (length_of(path) > 250) country.roads.push_back({Road_kind::path, path});
  }
}

}  // namespace sample
