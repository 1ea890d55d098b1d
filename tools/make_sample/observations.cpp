#include "make_sample/observations.h"

#include <algorithm>
#include <cmath>
#include <numbers>

#include "make_sample/course.h"
#include "make_sample/place.h"
#include "make_sample/random.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace sample {

namespace {

constexpr double radians = std::numbers::pi / 180;

constexpr const char* boundary_target = "地層境界面";
constexpr const char* bedding_target = "地層面";
constexpr const char* lineation_target = "線構造";
constexpr const char* fault_target = "断層";
constexpr const char* height_target = "標高点";
constexpr const char* other_target = "その他";

constexpr unsigned fault_colour = 0xC80000;
constexpr const char* stratum_marks[ground::strata] = {"○", "□", "△", "◇"};

bool on_sheets(Point at) {
  return std::abs(at.x) < 11200 && std::abs(at.y) < 9150;
}

double land_height(const Country& country, Point at) {
  return ground::topography(country.ground, at.x, at.y).z;
}

// True north to what a compass shows: the needle stands off by the declination, so that is taken away again.
double compass(double azimuth, Point at, bool corrected) {
  return corrected ? azimuth : azimuth - declination(position_of(at));
}

Observation at_outcrop(const Country& country, Point at, const char* target) {
  Observation observation;
  observation.at = at;
  observation.height = platform::format_number(land_height(country, at), "0.#");
  observation.target = target;
  return observation;
}

void read_plane(Observation& observation, const ground::Attitude& plane) {
  const Notation read = notation(compass(plane.strike, observation.at, observation.corrected), plane.dip);
  observation.strike = read.strike;
  observation.dip = read.dip;
}

void mark_stratum(Observation& observation, int stratum) {
  const auto i = static_cast<std::size_t>(stratum - 1);
  observation.stratum = stratum_names[i];
  observation.mark = stratum_marks[i];
  observation.colour = stratum_colours[i];
}

Observation bedding_reading(const Country& country, Point at, bool corrected) {
  Observation observation = at_outcrop(country, at, bedding_target);
  observation.corrected = corrected;
  const double z = land_height(country, at);
  mark_stratum(observation, ground::stratum_at(at.x, at.y, z));
  read_plane(observation, ground::bedding(at.x, at.y, z));
  return observation;
}

// Boundary k is the top of stratum k, and is registered under that stratum's name.
Observation boundary_reading(const Country& country, Point at, int k, bool corrected) {
  Observation observation = at_outcrop(country, at, boundary_target);
  observation.boundary = true;
  observation.corrected = corrected;
  mark_stratum(observation, k);
  constexpr const char* filled[ground::strata] = {"●", "■", "▲", "◆"};
  observation.mark = filled[k - 1];
  read_plane(observation, ground::strike_dip(k, at.x, at.y));
  return observation;
}

Observation fault_reading(const Country& country, Point at, bool corrected) {
  Observation observation = at_outcrop(country, at, fault_target);
  observation.boundary = true;
  observation.corrected = corrected;
  observation.stratum = fault_name;
  observation.mark = "▼";
  observation.colour = fault_colour;
  read_plane(observation, ground::fault_strike_dip());
  const ground::Lineation scratches = ground::fault_striation();
  const Notation line = notation(compass(scratches.trend, at, corrected), scratches.plunge);
  observation.trend = line.strike;
  observation.plunge = line.dip;
  return observation;
}

Observation axis_reading(const Country& country, Point at) {
  Observation observation = at_outcrop(country, at, lineation_target);
  mark_stratum(observation, ground::stratum_at(at.x, at.y, land_height(country, at)));
  const ground::Lineation axis = ground::fold_axis();
  const Notation line = notation(compass(axis.trend, at, false), axis.plunge);
  observation.strike = line.strike;
  observation.dip = line.dip;
  return observation;
}

// What changes between two points of the land: 0 nothing, 1 to 3 that boundary, 4 the fault.
int change_between(const Country& country, Point a, Point b) {
  const double za = land_height(country, a), zb = land_height(country, b);
  if (ground::above_fault(a.x, a.y, za) != ground::above_fault(b.x, b.y, zb)) return 4;
  const int low = std::min(ground::stratum_at(a.x, a.y, za), ground::stratum_at(b.x, b.y, zb));
  const int high = std::max(ground::stratum_at(a.x, a.y, za), ground::stratum_at(b.x, b.y, zb));
  return high == low + 1 ? low : 0;
}

// The place between two points where the change lies, by halving.
Point place_of_change(const Country& country, Point a, Point b, int change) {
  for (int i = 0; i < 40; ++i) {
    const Point middle{(a.x + b.x) / 2, (a.y + b.y) / 2};
    (change_between(country, a, middle) == change ? b : a) = middle;
  }
  return {(a.x + b.x) / 2, (a.y + b.y) / 2};
}

constexpr std::size_t most_beddings = 96, most_boundaries = 58, most_faults = 12;

struct Tally {
  std::size_t beddings = 0, boundaries = 0, faults = 0;
};

bool near_one(const std::vector<Observation>& all, Point at, double away) {
  return std::any_of(all.begin(), all.end(), [&](const Observation& one) { return distance(one.at, at) < away; });
}

// A day's walk along one course: boundaries and the fault where it crosses them, bedding now and then between. Every
// fifth walk is done with the instrument that reads from true north.
void walk(const Country& country, const Course& course, bool corrected, std::vector<Observation>& all, Tally& tally) {
  Point last = course.front();
  double since_bedding = 300;
  for (const Stop& stop : stops(course, 40)) {
    const Point from = last;
    last = stop.at;
    if (!on_sheets(stop.at) || !on_sheets(from)) continue;
    since_bedding += 40;
    const int change = change_between(country, from, stop.at);
    if (change != 0) {
      const Point at = place_of_change(country, from, stop.at, change);
      if (change == 4 && tally.faults < most_faults && !near_one(all, at, 150)) {
        all.push_back(fault_reading(country, at, corrected));
        ++tally.faults;
      }
      if (change < 4 && tally.boundaries < most_boundaries && !near_one(all, at, 200)) {
        all.push_back(boundary_reading(country, at, change, corrected));
        ++tally.boundaries;
      }
    }
    if (since_bedding < 650 || tally.beddings >= most_beddings || near_one(all, stop.at, 420)) continue;
    all.push_back(bedding_reading(country, stop.at, corrected));
    ++tally.beddings;
    since_bedding = 0;
  }
}

// Outcrops stand along streams and roads: the large tributaries first, then the roads.
std::vector<Course> walks(const Country& country) {
  std::vector<Course> courses;
  for (const River_name& one : country.river_names)
    if (one.river != 0) courses.push_back(country.rivers[static_cast<std::size_t>(one.river)].course);
  for (const Road& road : country.roads)
    if (road.kind == Road_kind::prefectural || road.kind == Road_kind::national) courses.push_back(road.course);
  // Taken from both ends by turns, so that the whole country is seen before the day's numbers run out.
  std::vector<Course> turned;
  for (std::size_t i = 0; i < courses.size(); ++i)
    turned.push_back(i % 2 == 0 ? courses[i / 2] : courses[courses.size() - 1 - i / 2]);
  return turned;
}

void add_lineations(const Country& country, std::vector<Observation>& all) {
  std::size_t added = 0;
  for (const Settlement& one : country.settlements) {
    if (added == 8) return;
    const Point at{one.at.x + 310, one.at.y + 240};
    if (!on_sheets(at) || near_one(all, at, 200)) continue;
    all.push_back(axis_reading(country, at));
    ++added;
  }
}

void add_heights(const Country& country, std::vector<Observation>& all) {
  std::size_t added = 0;
  for (const Named_summit& summit : country.summits) {
    if (summit.name.empty() || added == 14) continue;
    Observation observation = at_outcrop(country, summit.at, height_target);
    observation.mark = "▲";
    observation.size = 1;
    observation.colour = 0x404040;
    all.push_back(observation);
    ++added;
  }
}

// The fault's trace in pieces, since a record holds no more than 138 vertices.
void add_fault_lines(const Country& country, std::vector<Observation>& all) {
  Course course;
  for (double along = -11000; along <= 11000; along += 90) {
    const Point at = fault_trace(country, along);
    if (on_sheets(at)) course.push_back(at);
  }
  constexpr std::size_t piece = 80;
  for (std::size_t from = 0; from + 1 < course.size(); from += piece - 1) {
    Observation line;
    line.target = fault_target;
    line.stratum = fault_name;
    line.mark = "線";
    line.colour = line.line_colour = fault_colour;
    for (std::size_t i = from; i < std::min(from + piece, course.size()); ++i) line.vertices.push_back(course[i]);
    line.at = line.vertices.front();
    all.push_back(line);
  }
}

// A landslip: a rounded outline below a summit, longer down the slope than across it.
Observation landslip(const Country& country, Point summit, ground::Random& random) {
  const ground::Height height = relief_at(country.relief, summit.x + 150, summit.y - 130);
  const double down = std::atan2(-height.dy, -height.dx);
  const double length = ground::next_between(random, 210, 330), breadth = ground::next_between(random, 110, 170);
  Observation area;
  area.target = other_target;
  area.mark = "範囲";
  area.colour = area.line_colour = 0x965A1E;
  area.at = {summit.x + 150 + length * std::cos(down), summit.y - 130 + length * std::sin(down)};
  constexpr int corners = 24;
  for (int i = 0; i < corners; ++i) {
    const double angle = 2 * std::numbers::pi * i / corners;
    const double wobble = ground::next_between(random, 0.9, 1.1);
    const double along = length * wobble * std::cos(angle), across = breadth * wobble * std::sin(angle);
    area.vertices.push_back({area.at.x + along * std::cos(down) - across * std::sin(down),
                             area.at.y + along * std::sin(down) + across * std::cos(down)});
  }
  return area;
}

void add_areas_and_words(const Country& country, std::vector<Observation>& all) {
  ground::Random random{404};
  std::size_t areas = 0;
  for (const Named_summit& summit : country.summits) {
    if (summit.name.empty() || ++areas > 5) continue;
    const Observation area = landslip(country, summit.at, random);
    all.push_back(area);
    Observation word;
    word.at = area.at;
    word.target = other_target;
    word.mark = "文字";
    word.strike = "地すべり";  // a word's text stands where a plane has its strike
    word.colour = 0x965A1E;
    all.push_back(word);
  }
}

std::string two_digits(int value) {
  return platform::format_number(value, "00");
}

// Numbers by day, with some twenty records a day, and the count of strike and dip measurements over all days.
void number_records(std::vector<Observation>& all) {
  int measurement = 0;
  for (std::size_t i = 0; i < all.size(); ++i) {
    const int day = 3 + static_cast<int>(i / 20), of_day = static_cast<int>(i % 20);
    Observation& one = all[i];
    one.number = "0510" + two_digits(day) + "-" + platform::format_number(of_day + 1, "000");
    if (one.strike.empty() || one.mark == "文字") continue;
    one.number += "*" + platform::number_text(++measurement);
    if (one.corrected)
      one.measured_at = "2005/10/" + two_digits(day) + " " + two_digits(8 + of_day * 24 / 60) + ":" +
                        two_digits(of_day * 24 % 60) + ":" + two_digits((of_day * 37) % 60);
  }
}

std::string number(double value) {
  return platform::print_number(value) + ",";
}

std::string colour_columns(unsigned colour) {
  return number(colour >> 16) + number((colour >> 8) & 255) + number(colour & 255);
}

// Positions are written to the hundredth of a geographic unit, about a centimetre.
double geographic(double degrees) {
  return std::round(degrees * 1e7) / 100;
}

//  1 ,13886245.41,3578126.9,388.6,地層境界面,鳴沢砂岩層,N17E,21W,051003-004*3,,■, 2 , 200 , 150 , 0 , 0 , 0 , 0 ,0,,,,,
//  0 , 1  2           3         4     5          6          7    8   9           10 11 12  13    14    15  16  17
//  18 19..23 24
std::string record_line(const Observation& one) {
  const Position place = position_of(one.at);
  std::string line = number(one.boundary ? 1 : 0) + platform::format_number(geographic(place.longitude), "######0.#0") +
                     "," + platform::format_number(geographic(place.latitude), "######0.#0") + ",";
  for (const std::string& text : {one.height, one.target, one.stratum, one.strike, one.dip, one.number})
    line += text + ",";
  line += "," + one.mark + "," + number(one.size) + colour_columns(one.colour) + colour_columns(one.line_colour);
  line += one.corrected ? "1,1," : "0,,";
  line += one.measured_at + "," + one.plunge + "," + one.trend + ",";
  line += number(static_cast<double>(one.vertices.size()));
  for (Point vertex : one.vertices) {
    const Position corner = position_of(vertex);
    line += number(geographic(corner.longitude)) + number(geographic(corner.latitude));
  }
  return line;
}

}  // namespace

Notation notation(double azimuth, double dip) {
  const int a = (static_cast<int>(std::lround(azimuth)) % 360 + 360) % 360;
  const std::string angle = platform::number_text(static_cast<int>(std::lround(dip)));
  const bool west = a % 180 > 90;
  const int line = west ? 180 - a % 180 : a % 180;
  const std::string strike = line == 0 ? "NS" : "N" + platform::number_text(line) + (west ? "W" : "E");
  // The side on the right of the azimuth.
  const bool near_east = line > 80;
  if (near_east) return {strike, angle + (a > 0 && a < 180 ? "S" : "N")};
  return {strike, angle + (a < 90 || a >= 270 ? "E" : "W")};
}

Point fault_trace(const Country& country, double along) {
  const ground::Attitude fault = ground::fault_strike_dip();
  const double strike = fault.strike * radians;
  const Point own = ground::fault_point();
  const auto at = [&](double across) {
    return Point{own.x + along * std::sin(strike) + across * std::cos(strike),
                 own.y + along * std::cos(strike) - across * std::sin(strike)};
  };
  // Across the strike the plane falls faster than any hillside, so it cuts the land once.
  double low = -2500, high = 2500;
  for (int i = 0; i < 50; ++i) {
    const double middle = (low + high) / 2;
    const Point p = at(middle);
    (ground::fault_plane(p.x, p.y).z > land_height(country, p) ? low : high) = middle;
  }
  return at(low);
}

std::vector<Observation> observations(const Country& country) {
  std::vector<Observation> all;
  Tally tally;
  const std::vector<Course> courses = walks(country);
  for (std::size_t i = 0; i < courses.size(); ++i) walk(country, courses[i], i % 5 == 4, all, tally);
  add_lineations(country, all);
  add_heights(country, all);
  add_fault_lines(country, all);
  add_areas_and_words(country, all);
  number_records(all);
  return all;
}

std::string registry_bytes(const std::vector<Observation>& observations) {
  platform::Line_writer lines;
  for (const Observation& one : observations) lines.line(record_line(one));
  return lines.bytes();
}

}  // namespace sample
