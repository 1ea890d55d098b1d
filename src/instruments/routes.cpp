#include "instruments/routes.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "instruments/nmea.h"
#include "platform/code_page_932.h"
#include "platform/content.h"
#include "platform/numbers.h"

namespace instruments {
namespace {

using drawing::Point;

constexpr double units_per_degree = 100'000;
constexpr double seconds_per_degree = 3600;
constexpr double route_pen = 1;      // logical pixels
constexpr double beyond_edge = 20;   // canvas units that a cut line reaches over the edge of the canvas
constexpr double unseen_step = 0.5;  // canvas units; a shorter step adds nothing to a line

// What is beyond every number counts as 0, as what is none.
double units(double seconds) {
  const double value = seconds * units_per_degree / seconds_per_degree;
  return std::isfinite(value) ? value : 0;
}

// A line of a text track:
//   502785.25,128405.5,812.0,2008/11/15 10:20:31,1
//   1         2        3     4                   5
//   longitude and latitude in seconds; 3 and 4 aren't read; 5 other than 0: a line leads here from the point before
std::optional<Route_point> track_point(std::string_view line, Nmea& fields) {
  nmea_split(line, fields);
  if (fields.field(1).empty() || fields.field(2).empty()) return std::nullopt;
  return Route_point{units(platform::val(fields.field(1))), units(platform::val(fields.field(2))),
                     platform::val(fields.field(5)) != 0};
}

// A GGA of a log, whose minute fractions are padded; see nmea.h for its columns.
std::optional<Route_point> log_point(std::string_view line, Nmea& fields) {
  if (!line.starts_with(gga_word)) return std::nullopt;
  nmea_split(line, fields);
  if (fields.field(1) != gga_word || fields.field(3).empty() || fields.field(5).empty()) return std::nullopt;
  return Route_point{units(longitude_seconds(padded_angle(fields.field(5)))),
                     units(latitude_seconds(padded_angle(fields.field(3)))), true};
}

template <typename Point_of>
std::vector<Route_point> points_of(platform::Files& files, const std::string& path, int limit, Point_of point_of) {
  std::vector<Route_point> points;
  Nmea fields;
  const bool read = each_log_line(files, path, [&](std::string_view line) {
    if (points.size() >= static_cast<std::size_t>(limit)) return false;
    if (const std::optional<Route_point> point = point_of(line, fields)) points.push_back(*point);
    return true;
  });
  if (!read) return {};                                // counts as missing: the route isn't drawn
  if (!points.empty()) points.front().joined = false;  // there is no point before it in this file
  return points;
}

// The files that the two lists name, in order, as they are now.
std::vector<Route_file> listed(platform::Files& files, const std::string& project_path) {
  std::vector<Route_file> found;
  const auto add = [&](const std::string& path, bool is_log) {
    found.push_back({path, is_log, files.time_stamp(path), files.length(path)});
  };
  const auto each_name = [&](const std::string& list, const auto& take) {
    int left = listed_file_limit;
    each_log_line(files, list, [&](std::string_view line) {
      if (!line.empty()) take(platform::decode_932(line)), --left;
      return left > 0;
    });
  };
  each_name(keiro_out_path(project_path), [&](const std::string& name) {
    if (platform::stays_inside(name)) add(platform::join_path(gps_folder(project_path), name), false);
  });
  each_name(keiro_out2_path(project_path), [&](const std::string& path) { add(path, true); });
  return found;
}

// The points as they were read before, or as the file has them now. A list may name a file twice.
std::vector<Route_point> kept_or_read(platform::Files& files, const Routes& before, const Route_file& file, int limit) {
  for (const Route& old : before.routes)
    if (old.file == file && old.limit == limit) return old.points;
  return file.is_log ? nmea_log_r(files, file.path, limit) : track_r(files, file.path, limit);
}

// The edges that a line is cut at.
struct Window {
  double left, top, right, bottom;
};

// A canvas without a width shows everything that a painter can take.
Window window_of(const maps::Canvas& canvas) {
  constexpr double far_away = 1e6;
  if (canvas.width <= 0 || canvas.height <= 0) return {-far_away, -far_away, far_away, far_away};
  return {-beyond_edge, -beyond_edge, canvas.width / maps::twips_per_unit + beyond_edge,
          canvas.height / maps::twips_per_unit + beyond_edge};
}

// Liang and Barsky, A New Concept and Method for Line Clipping (ACM Transactions on Graphics 3, 1984): each edge takes
// its part off the range of the line's parameter. False when nothing is left.
bool cut(const Window& window, Point& from, Point& to) {
  const double dx = to.x - from.x, dy = to.y - from.y;
  const std::array<std::array<double, 2>, 4> edges{{{-dx, from.x - window.left},
                                                    {dx, window.right - from.x},
                                                    {-dy, from.y - window.top},
                                                    {dy, window.bottom - from.y}}};
  double enters = 0, leaves = 1;
  for (const auto& [p, q] : edges) {
    if (p == 0 && q < 0) return false;
    if (p < 0) enters = std::max(enters, q / p);
    if (p > 0) leaves = std::min(leaves, q / p);
  }
  if (enters > leaves) return false;
  const Point start = from;
  // Held to the window in any case, since what lies very far away is known coarsely.
  const auto at = [&](Point end, double part, bool is_cut) {
    const Point place = is_cut ? Point{start.x + part * dx, start.y + part * dy} : end;
    return Point{std::clamp(place.x, window.left, window.right), std::clamp(place.y, window.top, window.bottom)};
  };
  to = at(to, leaves, leaves < 1);
  from = at(from, enters, enters > 0);
  return true;
}

// A line that grows from segment to segment, handed to the surface where it ends.
struct Run {
  drawing::Surface& surface;
  std::vector<Point> places;

  void end() {
    if (places.size() > 1) surface.polyline(places, {route_colour, route_pen});
    places.clear();
  }
  void add(Point from, Point to) {
    if (places.empty() || !(places.back() == from)) {
      end();
      places.push_back(from);
    }
    places.push_back(to);
  }
};

bool is_step(Point from, Point to) {
  return std::abs(from.x - to.x) >= unseen_step || std::abs(from.y - to.y) >= unseen_step;
}

void route_out(drawing::Surface& surface, maps::Canvas& canvas, const Window& window, const Route& route) {
  Run run{surface, {}};
  Point before;
  for (std::size_t i = 0; i < route.points.size(); ++i) {
    const Route_point& point = route.points[i];
    const maps::Canvas_point at = maps::henkan_px(canvas, point.x, point.y);
    const Point place{at.x, at.y};
    const bool goes_on = i + 1 < route.points.size() && route.points[i + 1].joined;
    if (point.joined && goes_on && !is_step(before, place)) continue;  // the next line begins where this one would
    if (Point from = before, to = place; point.joined && cut(window, from, to)) run.add(from, to);
    before = place;
  }
  run.end();
}

}  // namespace

std::string keiro_out_path(const std::string& project_path) {
  return platform::join_path(project_path, "chisou_men\\keiro_out.dat");
}
std::string keiro_out2_path(const std::string& project_path) {
  return platform::join_path(project_path, "chisou_men\\keiro_out2.dat");
}
std::string gps_folder(const std::string& project_path) {
  return platform::join_path(project_path, "chisou_men\\gps");
}

std::vector<Route_point> track_r(platform::Files& files, const std::string& path, int limit) {
  return points_of(files, path, limit, track_point);
}
std::vector<Route_point> nmea_log_r(platform::Files& files, const std::string& path, int limit) {
  return points_of(files, path, limit, log_point);
}

bool routes_r(platform::Files& files, const std::string& project_path, Routes& routes) {
  Routes now;
  now.files = listed(files, project_path);
  if (now.files == routes.files) return false;
  int track_room = track_point_limit, log_room = log_point_limit;
  for (const Route_file& file : now.files) {
    int& room = file.is_log ? log_room : track_room;
    if (room == 0) continue;
    now.routes.push_back({file, room, kept_or_read(files, routes, file, room)});
    room -= static_cast<int>(now.routes.back().points.size());
  }
  routes = std::move(now);
  return true;
}

void routes_out(drawing::Surface& surface, maps::Canvas& canvas, const Routes& routes) {
  const Window window = window_of(canvas);
  for (const Route& route : routes.routes) route_out(surface, canvas, window, route);
}

}  // namespace instruments
