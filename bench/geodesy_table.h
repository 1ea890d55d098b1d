// A parameter table of the full published size (392,323 rows) over a rectangle of sea and land, with a smooth invented
// shift, and points inside it.
#pragma once

#include <cmath>
#include <cstdint>
#include <random>
#include <string>
#include <vector>

#include "geodesy/datum.h"
#include "platform/numbers.h"

namespace geodesy_bench {

inline constexpr int row_count = 392'323;
// Nodes of third-level cells northward and eastward; the last row of nodes is not filled to its end.
inline constexpr int north_nodes = 600;
inline constexpr int east_nodes = 654;
inline constexpr double south = 34.0, west = 136.0;        // degrees
inline constexpr double lat_step = 30.0, lon_step = 45.0;  // seconds

struct Node {
  int mesh = 0;
  float dB = 0, dL = 0;  // seconds
};

inline Node node(int north, int east) {
  const double latitude = south + north * lat_step / 3600;
  const double longitude = west + east * lon_step / 3600;
  // Five decimals, as the published file has them.
  const double dB = std::round((12 + std::sin(latitude * 3) + std::cos(longitude * 2)) * 1e5) / 1e5;
  const double dL = std::round((-11 + std::cos(latitude * 2) * std::sin(longitude)) * 1e5) / 1e5;
  return {geodesy::LatLon2MeshCode(latitude, longitude).code, static_cast<float>(dB), static_cast<float>(dL)};
}

// The content of the parameter file.
inline std::string par_bytes() {
  std::string bytes = "JGD2000-TokyoDatum Ver.0.0.0\r\nMeshCode   dB(sec)   dL(sec)\r\n";
  int rows = 0;
  for (int north = 0; north < north_nodes; ++north)
    for (int east = 0; east < east_nodes && rows < row_count; ++east, ++rows) {
      const Node at = node(north, east);
      bytes += platform::number_text(at.mesh) + "  " + platform::format_number(at.dB, "0.00000") + " " +
               platform::format_number(at.dL, "0.00000") + "\r\n";
    }
  return bytes;
}

struct Point {
  double latitude = 0, longitude = 0;  // degrees
};

// The same points on every machine; all have their four corners in the table.
inline std::vector<Point> points(int count) {
  std::mt19937_64 random(20080605);
  const auto fraction = [&] { return static_cast<double>(random() >> 11) / 9007199254740992.0; };
  std::vector<Point> points(static_cast<std::size_t>(count));
  for (Point& point : points) {
    point.latitude = south + fraction() * (north_nodes - 3) * lat_step / 3600;
    point.longitude = west + fraction() * (east_nodes - 2) * lon_step / 3600;
  }
  return points;
}

}  // namespace geodesy_bench
