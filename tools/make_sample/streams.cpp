#include "make_sample/streams.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "make_sample/random.h"

namespace ground {

namespace {

constexpr double step = 110;          // metres between the nodes of a stream
constexpr double mouth_height = 146;  // of the river where it leaves the country
constexpr double cell = 300;          // of the table that finds near nodes
constexpr double radians = std::numbers::pi / 180;

// How the streams of one order grow.
struct Growth {
  int order;
  double spacing;   // metres between two mouths along the parent
  double distance;  // metres kept from every other stream
  double longest;   // metres
  double angle;     // degrees between the tributary and its parent's upstream direction
  double wander;    // degrees of turn at a step
};

// Wide first, then ever finer into the room that is left. Orders repeat: each pass starts from all streams before it.
constexpr Growth growths[] = {
    {1, 2600, 1300, 13000, 66, 15}, {1, 1900, 1000, 9000, 60, 15}, {1, 1300, 800, 6000, 58, 14},
    {2, 900, 500, 3200, 60, 13},    {2, 700, 420, 1800, 56, 12},   {2, 500, 390, 1500, 56, 12},
    {3, 440, 265, 620, 54, 12},     {3, 380, 250, 620, 52, 12},
};

struct Taken {
  Point at;
  int stream;
};

// The nodes that exist already, by cells of the country.
struct Taken_table {
  static constexpr int columns = static_cast<int>(2 * (half_width_of_country + 3000) / cell);
  static constexpr int rows = static_cast<int>(2 * (half_height_of_country + 3000) / cell);
  std::vector<std::vector<Taken>> cells = std::vector<std::vector<Taken>>(std::size_t{columns} * rows);
};

int cell_of(double value, double half, int count) {
  return std::clamp(static_cast<int>((value + half + 3000) / cell), 0, count - 1);
}

void take(Taken_table& table, Point at, int stream) {
  const int column = cell_of(at.x, half_width_of_country, Taken_table::columns);
  const int row = cell_of(at.y, half_height_of_country, Taken_table::rows);
  table.cells[static_cast<std::size_t>(row) * Taken_table::columns + column].push_back({at, stream});
}

double distance_between(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

// Distance to the nearest node of the streams that are there already, no more than `reach`. Near the mouth the nodes of
// the parent count only by what was travelled from there.
double free_room(const Taken_table& table, Point at, int parent, Point mouth, double travelled, double reach) {
  double room = reach;
  const int ring = static_cast<int>(std::ceil(reach / cell));
  const int column = cell_of(at.x, half_width_of_country, Taken_table::columns);
  const int row = cell_of(at.y, half_height_of_country, Taken_table::rows);
  for (int r = std::max(0, row - ring); r <= std::min(Taken_table::rows - 1, row + ring); ++r)
    for (int c = std::max(0, column - ring); c <= std::min(Taken_table::columns - 1, column + ring); ++c)
      for (const Taken& taken : table.cells[static_cast<std::size_t>(r) * Taken_table::columns + c]) {
        double distance = distance_between(taken.at, at);
        if (taken.stream == parent && distance_between(taken.at, mouth) < 1.3 * reach)
          distance += std::max(0.0, reach - 0.55 * travelled);
        room = std::min(room, distance);
      }
  return room;
}

bool in_country(Point at) {
  return std::abs(at.x) < half_width_of_country && std::abs(at.y) < half_height_of_country;
}

Point ahead(Point from, double direction) {
  return {from.x + step * std::cos(direction), from.y + step * std::sin(direction)};
}

// Grows one tributary from a node of its parent; `direction` in radians from east, counter-clockwise. Each step tries
// three directions and takes the one with the most room, so that streams keep to the middle of what is free; none turns
// back on itself.
std::vector<Point> grow(const Taken_table& table, const Growth& growth, int parent, Point mouth, double direction,
                        Random& random) {
  std::vector<Point> course{mouth};
  const double longest = growth.longest * next_between(random, 0.65, 1.0);
  const double outset = direction;
  double bend = 0;
  for (double travelled = step; travelled < longest; travelled += step) {
    bend = 0.6 * bend + next_between(random, -1, 1) * growth.wander * radians;
    double best_room = -1;
    double best_direction = direction;
    for (double turn : {0.0, -13.0, 13.0}) {
      const double tried = std::clamp(direction + bend + turn * radians, outset - 1.35, outset + 1.35);
      const double room =
          free_room(table, ahead(course.back(), tried), parent, mouth, travelled, 1.6 * growth.distance);
      if (room > best_room + 8) {
        best_room = room;
        best_direction = tried;
      }
    }
    const Point next = ahead(course.back(), best_direction);
    if (best_room < growth.distance || !in_country(next)) break;
    course.push_back(next);
    direction = best_direction;
  }
  return course;
}

Stream river() {
  Stream stream;
  double x = half_width_of_country + 1500;
  while (x > -half_width_of_country - 1500) {
    stream.nodes.push_back({{x, river_course(x)}, 0, 0, 0});
    const double slope = (river_course(x - 1) - river_course(x + 1)) / 2;
    x -= step / std::hypot(1.0, slope);
  }
  return stream;
}

// Direction upstream at a node, radians.
double upstream_direction(const Stream& stream, std::size_t node) {
  const std::size_t low = node > 1 ? node - 2 : 0;
  const std::size_t high = std::min(node + 2, stream.nodes.size() - 1);
  return std::atan2(stream.nodes[high].at.y - stream.nodes[low].at.y, stream.nodes[high].at.x - stream.nodes[low].at.x);
}

// The tributaries of one order along one parent, left and right in turn.
void branch_out(Stream_net& net, Taken_table& table, const Growth& growth, int parent, Random& random) {
  double since_last = growth.spacing * next_between(random, 0.35, 0.9);
  double side = next_fraction(random) < 0.5 ? -1 : 1;
  for (std::size_t node = 2; node < net[static_cast<std::size_t>(parent)].nodes.size(); ++node) {
    since_last += step;
    if (since_last < growth.spacing) continue;
    const Stream& trunk = net[static_cast<std::size_t>(parent)];
    const Point mouth = trunk.nodes[node].at;
    const double direction =
        upstream_direction(trunk, node) + side * (growth.angle + next_between(random, -10, 10)) * radians;
    const int own = static_cast<int>(net.size());
    side = -side;
    since_last = growth.spacing * next_between(random, 0.3, 0.55);
    const std::vector<Point> course = grow(table, growth, parent, mouth, direction, random);
    if (course.size() < 3) continue;
    Stream stream{parent, growth.order, {}};
    for (Point at : course) stream.nodes.push_back({at, 0, 0, 0});
    for (std::size_t i = 1; i < course.size(); ++i) take(table, course[i], own);
    net.push_back(stream);
  }
}

std::size_t mouth_node(const Stream& parent, Point mouth) {
  for (std::size_t node = 0; node < parent.nodes.size(); ++node)
    if (parent.nodes[node].at.x == mouth.x && parent.nodes[node].at.y == mouth.y) return node;
  return 0;
}

// Adds up the stream lengths from the sources down. Tributaries stand behind their parents, so one walk backwards does.
void measure_flow(Stream_net& net) {
  for (std::size_t s = net.size(); s-- > 0;) {
    Stream& stream = net[s];
    double above = s == 0 ? 60 : 0.1;  // what reaches the highest node: the river comes from beyond the country
    for (std::size_t node = stream.nodes.size(); node-- > 0;) {
      stream.nodes[node].flow += above;
      above = stream.nodes[node].flow + step / 1000;
    }
    if (stream.parent >= 0) {
      Stream& parent = net[static_cast<std::size_t>(stream.parent)];
      parent.nodes[mouth_node(parent, stream.nodes[0].at)].flow += stream.nodes[0].flow;
    }
  }
}

// Slope of a bed: steep at the source, ever gentler as the stream grows (the shape of a graded stream).
double bed_slope(double flow) {
  return std::clamp(0.11 / std::sqrt(flow), 0.0045, 0.28);
}

void raise_beds(Stream_net& net) {
  for (Stream& stream : net) {
    double bed = mouth_height;
    if (stream.parent >= 0) {
      const Stream& parent = net[static_cast<std::size_t>(stream.parent)];
      bed = parent.nodes[mouth_node(parent, stream.nodes[0].at)].bed;
    }
    for (Stream_node& node : stream.nodes) {
      node.bed = bed;
      node.floor = 16 * std::sqrt(node.flow);
      bed += bed_slope(node.flow) * step;
    }
    stream.nodes[0].floor = 16 * std::sqrt(stream.nodes[std::min<std::size_t>(1, stream.nodes.size() - 1)].flow);
  }
}

}  // namespace

double river_course(double x) {
  const double turn = 2 * std::numbers::pi * x;
  return -0.26 * x + 1500 * std::sin(turn / 19000 + 0.5) + 560 * std::sin(turn / 6900 + 1.3) +
         210 * std::sin(turn / 2700 + 0.2);
}

Stream_net make_streams() {
  Random random{16};
  Stream_net net{river()};
  Taken_table table;
  for (const Stream_node& node : net[0].nodes) take(table, node.at, 0);
  for (const Growth& growth : growths) {
    const std::size_t parents = net.size();
    for (std::size_t parent = 0; parent < parents; ++parent)
      branch_out(net, table, growth, static_cast<int>(parent), random);
  }
  measure_flow(net);
  raise_beds(net);
  return net;
}

}  // namespace ground
