// What stands on the ground of the sample's place: waters, roads, a railway, settlements, a border of two
// municipalities, and the names. All in metres of the place's plane, so that each picture shows its part of one whole.
#pragma once

#include <string>
#include <vector>

#include "make_sample/ground.h"
#include "make_sample/relief.h"

namespace sample {

using ground::Point;
using Course = std::vector<Point>;

struct River {
  Course course;               // from the mouth upwards
  std::vector<double> widths;  // of the water at each point, metres
  double flow = 0;             // at the mouth, see ground::Stream_node
  int order = 0;
};

// A reservoir: what lies below its level on the nodes of the relief that it covers.
struct Lake {
  double level = 0;
  Point dam_left, dam_right;
  Point middle;
  std::vector<char> covered;  // for each node of the relief
};

enum class Road_kind { national, prefectural, town, track, path };

struct Road {
  Road_kind kind = Road_kind::town;
  Course course;
};

struct Building {
  Point at;
  double angle = 0;  // radians, of the long side from east
  double length = 0, breadth = 0;
};

struct Settlement {
  std::string name;
  Point at;
  bool town = false;
};

struct Station {
  std::string name;
  Point at;
  double angle = 0;
};

struct Named_summit {
  std::string name;  // empty for a mere height
  Point at;
  double height = 0;
  bool triangulated = false;
};

struct River_name {
  std::string name;
  int river = 0;
};

struct Country {
  ground::Ground ground;
  Relief relief;
  std::vector<River> rivers;  // in the order of the ground's streams
  Lake lake;
  std::vector<Road> roads;
  Course railway;
  std::vector<Station> stations;
  std::vector<Settlement> settlements;
  std::vector<Building> buildings;
  Course border;  // from west to east; north of it one municipality, south of it the other
  std::vector<Named_summit> summits;
  std::vector<River_name> river_names;
};

inline constexpr const char* northern_municipality = "霧沢村";
inline constexpr const char* southern_municipality = "瀬見川町";
inline constexpr const char* lake_name = "瀬見湖";

// Everything, made from the model by rule; the same at each call. `relief_spacing` in metres.
Country make_country(double relief_spacing);

// Whether a place lies under the reservoir's water.
bool under_lake(const Country& country, Point at, double height);

// Parts of make_country, each filling its own members from those above it in the struct.
void add_waters(Country& country);
void add_roads(Country& country);
void add_settlements(Country& country);
void add_border(Country& country);
void add_names(Country& country);

}  // namespace sample
