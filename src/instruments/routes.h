// The routes walked in the field: text tracks and NMEA logs as lines on the map. Two files of \chisou_men name them,
// and they are kept in memory while neither the lists nor the logs change.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "drawing/surface.h"
#include "maps/canvas.h"
#include "platform/files.h"

namespace instruments {

inline constexpr int track_point_limit = 10'000;   // of all text tracks together; what comes behind isn't drawn
inline constexpr int log_point_limit = 1'000'000;  // of all NMEA logs together
inline constexpr int listed_file_limit = 1'000;    // of each list; every one is looked at before a redraw
inline constexpr drawing::Colour route_colour = 0xff00ff;

// The lists of \chisou_men and the folder of the text tracks.
std::string keiro_out_path(const std::string& project_path);   // keiro_out.dat
std::string keiro_out2_path(const std::string& project_path);  // keiro_out2.dat
std::string gps_folder(const std::string& project_path);       // \chisou_men\gps

// A point in geographic units.
struct Route_point {
  double x = 0, y = 0;
  bool joined = false;  // a line leads here from the point before, which is of the same file
  bool operator==(const Route_point&) const = default;
};

// A file that a list names, as it was when it was read.
struct Route_file {
  std::string path;
  bool is_log = false;  // an NMEA log; otherwise a text track
  std::int64_t changed = 0, length = 0;
  bool operator==(const Route_file&) const = default;
};

struct Route {
  Route_file file;
  int limit = 0;  // how many points there was room for
  std::vector<Route_point> points;
};

struct Routes {
  std::vector<Route_file> files;  // all that the lists name
  std::vector<Route> routes;      // those of them that there was room for
};

// The points of a text track and of an NMEA log, at most so many. A file that can't be read has none.
std::vector<Route_point> track_r(platform::Files& files, const std::string& path, int limit = track_point_limit);
std::vector<Route_point> nmea_log_r(platform::Files& files, const std::string& path, int limit = log_point_limit);

// Reads what the two lists of a project name, but for files that are unchanged since they were last read. A name of
// keiro_out.dat that leads out of \chisou_men\gps is passed over; keiro_out2.dat holds full paths. True when anything
// is drawn differently now.
bool routes_r(platform::Files& files, const std::string& project_path, Routes& routes);

// Draws the lines of all routes in magenta, cut at the edges of the canvas. Touches no file.
void routes_out(drawing::Surface& surface, maps::Canvas& canvas, const Routes& routes);

}  // namespace instruments
