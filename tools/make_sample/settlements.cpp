#include <algorithm>
#include <cmath>

#include "make_sample/country.h"
#include "make_sample/course.h"
#include "make_sample/random.h"

namespace sample {

namespace {

constexpr const char* town_names[] = {"瀬見川", "鳴沢口", "大落合", "柏平", "霧沢口", "下栃原"};
constexpr const char* village_names[] = {"日向",   "日影",   "萱野",   "栃平",   "桑久保", "片瀬",   "樫曽根", "湯ノ平",
                                         "上落合", "小鳴沢", "檜原沢", "芦ノ入", "杉曽",   "小日向", "坂ノ上", "丸山沢",
                                         "釜ノ沢", "大入",   "中ノ沢", "細久保", "笹平",   "葛原",   "川原畑", "滝ノ入",
                                         "峰下",   "藤ノ木", "榎平",   "古屋敷", "赤芝",   "白萩"};

bool buildable(const Country& country, Point at) {
  const ground::Height height = relief_at(country.relief, at.x, at.y);
  if (std::hypot(height.dx, height.dy) > 0.30) return false;
  for (const River& river : country.rivers) {
    if (river.flow < 3) continue;
    const Nearest nearest = nearest_point(river.course, at);
    if (nearest.distance < river.widths[nearest.index] / 2 + 16) return false;
  }
  return true;
}

// Houses on both sides of a course, ever fewer away from the middle.
void line_with_houses(Country& country, const Course& course, Point middle, double radius, double density,
                      ground::Random& random) {
  for (const Stop& stop : stops(course, 17)) {
    const double away = distance(stop.at, middle);
    if (away > radius) continue;
    for (double side : {-1.0, 1.0}) {
      const double chance = density * (1 - 0.75 * away / radius);
      const bool built = ground::next_fraction(random) < chance;
      const double offset = side * ground::next_between(random, 15, 24);
      const double length = ground::next_between(random, 9, 15), breadth = ground::next_between(random, 7, 10);
      if (!built) continue;
      const Point at{stop.at.x - offset * std::sin(stop.angle), stop.at.y + offset * std::cos(stop.angle)};
      if (buildable(country, at)) country.buildings.push_back({at, stop.angle, length, breadth});
    }
  }
}

// Short streets across the town's main road.
void add_streets(Country& country, const Course& main_road, Point middle, double radius, ground::Random& random) {
  for (const Stop& stop : stops(main_road, 95)) {
    const double away = distance(stop.at, middle);
    if (away > radius) continue;
    const double reach = 190 * (1 - 0.6 * away / radius) * ground::next_between(random, 0.7, 1.1);
    for (double side : {-1.0, 1.0}) {
      Course street;
      for (double metres = 0; metres <= reach; metres += 15) {
        const Point at{stop.at.x - side * metres * std::sin(stop.angle),
                       stop.at.y + side * metres * std::cos(stop.angle)};
        if (metres > 15 && !buildable(country, at)) break;
        street.push_back(at);
      }
      if (street.size() < 4) continue;
      country.roads.push_back({Road_kind::town, street});
      line_with_houses(country, street, middle, radius, 0.75, random);
    }
  }
}

bool far_from_all(const std::vector<Settlement>& settlements, Point at, double away) {
  return std::none_of(settlements.begin(), settlements.end(),
                      [&](const Settlement& one) { return distance(one.at, at) < away; });
}

bool on_sheets(Point at) {
  return std::abs(at.x) < 11000 && std::abs(at.y) < 9000;
}

// Towns on the national road where large tributaries come in.
void add_towns(Country& country, ground::Random& random) {
  const Course main_road = country.roads[0].course;
  std::vector<const ground::Stream*> joining;
  for (const ground::Stream& stream : country.ground.streams)
    if (stream.order == 1 && stream.parent == 0 && on_sheets(stream.nodes[0].at)) joining.push_back(&stream);
  std::stable_sort(joining.begin(), joining.end(), [](const ground::Stream* a, const ground::Stream* b) {
    return a->nodes[1].flow > b->nodes[1].flow;
  });
  std::size_t named = 0;
  for (const ground::Stream* stream : joining) {
    if (named == std::size(town_names)) break;
    const Point at = nearest_point(main_road, stream->nodes[0].at).at;
    if (!far_from_all(country.settlements, at, 2400)) continue;
    const double radius = named == 0 ? 950 : 520;
    country.settlements.push_back({town_names[named], at, true});
    line_with_houses(country, main_road, at, radius, 0.9, random);
    add_streets(country, main_road, at, radius * 0.8, random);
    const Nearest halt = nearest_point(country.railway, at);
    const Point next = country.railway[std::min(halt.index + 1, country.railway.size() - 1)];
    country.stations.push_back({town_names[named], halt.at, angle_of(halt.at, next)});
    ++named;
  }
}

void add_villages(Country& country, ground::Random& random) {
  std::size_t named = 0;
  const std::vector<Road> roads = country.roads;
  for (const Road& road : roads) {
    if (road.kind != Road_kind::prefectural && road.kind != Road_kind::town && road.kind != Road_kind::national)
      continue;
    for (const Stop& stop : stops(road.course, 700)) {
      if (named == std::size(village_names)) return;
      if (!on_sheets(stop.at) || !far_from_all(country.settlements, stop.at, 1500) || !buildable(country, stop.at))
        continue;
      const std::size_t before = country.buildings.size();
      for (const Road& near : roads)
        if (near.kind != Road_kind::path)
          line_with_houses(country, near.course, stop.at, ground::next_between(random, 200, 380), 0.8, random);
      if (country.buildings.size() < before + 6) continue;
      country.settlements.push_back({village_names[named++], stop.at, false});
    }
  }
}

}  // namespace

void add_settlements(Country& country) {
  ground::Random random{533856};
  add_towns(country, random);
  add_villages(country, random);
}

}  // namespace sample
