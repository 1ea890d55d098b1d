// Runs the geodesy floor over a text file of points, as cs2cs and cct do, for bench/geodesy_peers.sh.
//   geodesy_peer make <folder>                     the inputs of both sides
//   geodesy_peer utm <points>                      "lon lat" lines to "easting northing" lines
//   geodesy_peer tky2jgd <parameter file> <points> packed "lon lat" lines to "lon lat" lines in degrees
// Results go to the standard output, the milliseconds of each step to the standard error.
#include <bit>
#include <charconv>
#include <chrono>
#include <cstdio>
#include <fstream>
#include <stdexcept>

#include "geodesy/packed_angle.h"
#include "geodesy/projection.h"
#include "geodesy_table.h"
#include "platform/files.h"

namespace {

constexpr int point_count = 100'000;

class Stopwatch {
 public:
  double lap() {
    const auto now = std::chrono::steady_clock::now();
    const std::chrono::duration<double, std::milli> passed = now - since_;
    since_ = now;
    return passed.count();
  }

 private:
  std::chrono::steady_clock::time_point since_ = std::chrono::steady_clock::now();
};

// One row of numbers of a text file.
struct Pair {
  double first = 0, second = 0;
};

std::vector<Pair> read_pairs(const char* path) {
  platform::Disk_files files;
  const std::string text = files.read_bytes(path);
  std::vector<Pair> pairs;
  pairs.reserve(text.size() / 20);
  const char* at = text.data();
  const char* const end = at + text.size();
  const auto number = [&](double& value) {
    while (at < end && (*at == ' ' || *at == '\n')) ++at;
    const auto result = std::from_chars(at, end, value);
    at = result.ptr;
    return result.ec == std::errc{};
  };
  for (Pair pair; number(pair.first) && number(pair.second);) pairs.push_back(pair);
  return pairs;
}

std::string text_of(const std::vector<Pair>& pairs, int decimals) {
  std::string text;
  text.reserve(pairs.size() * 40);
  char number[400];
  const auto add = [&](double value, char behind) {
    const auto end = std::to_chars(number, number + sizeof number, value, std::chars_format::fixed, decimals);
    text.append(number, end.ptr);
    text += behind;
  };
  for (const Pair& pair : pairs) {
    add(pair.first, ' ');
    add(pair.second, '\n');
  }
  return text;
}

void print(const std::vector<Pair>& pairs, int decimals) {
  const std::string text = text_of(pairs, decimals);
  std::fwrite(text.data(), 1, text.size(), stdout);
}

void write(const std::string& path, const std::string& bytes) {
  std::ofstream out(path, std::ios::binary);
  out << bytes;
  if (!out.flush()) throw std::runtime_error("can't write " + path);
}

// NTv2 grid files (National Transformation version 2, Geodetic Survey of Canada): records of 16 bytes, a name of 8
// characters and a value of 8 bytes; then four singles a node, from the south-east corner westward and then northward,
// longitudes and their shifts positive to the west.
class Ntv2 {
 public:
  void text(const char* name, const char* value) {
    field(name);
    field(value);
  }
  void number(const char* name, double value) {
    field(name);
    raw(&value, sizeof value);
  }
  void count(const char* name, std::int32_t value) {
    field(name);
    raw(&value, sizeof value);
    const std::int32_t padding = 0;
    raw(&padding, sizeof padding);
  }
  void node(float lat_shift, float lon_shift_west) {
    const float values[] = {lat_shift, lon_shift_west, 0, 0};
    raw(values, sizeof values);
  }
  const std::string& bytes() const { return bytes_; }

 private:
  void field(const char* words) {
    std::string eight = words;
    eight.resize(8, ' ');
    bytes_ += eight;
  }
  void raw(const void* from, std::size_t size) { bytes_.append(static_cast<const char*>(from), size); }
  std::string bytes_;
};

std::string ntv2_bytes() {
  using namespace geodesy_bench;
  static_assert(std::endian::native == std::endian::little, "the grid is written in this machine's byte order");
  Ntv2 grid;
  grid.count("NUM_OREC", 11);
  grid.count("NUM_SREC", 11);
  grid.count("NUM_FILE", 1);
  grid.text("GS_TYPE", "SECONDS");
  grid.text("VERSION", "BENCH");
  grid.text("SYSTEM_F", "TOKYO");
  grid.text("SYSTEM_T", "JGD2000");
  grid.number("MAJOR_F", 6377397.155);
  grid.number("MINOR_F", 6356078.963);
  grid.number("MAJOR_T", 6378137.0);
  grid.number("MINOR_T", 6356752.314);
  grid.text("SUB_NAME", "BENCH");
  grid.text("PARENT", "NONE");
  grid.text("CREATED", "20080605");
  grid.text("UPDATED", "20080605");
  grid.number("S_LAT", south * 3600);
  grid.number("N_LAT", south * 3600 + (north_nodes - 1) * lat_step);
  grid.number("E_LONG", -(west * 3600 + (east_nodes - 1) * lon_step));
  grid.number("W_LONG", -west * 3600);
  grid.number("LAT_INC", lat_step);
  grid.number("LONG_INC", lon_step);
  grid.count("GS_COUNT", north_nodes * east_nodes);
  for (int north = 0; north < north_nodes; ++north)
    for (int east = east_nodes - 1; east >= 0; --east) {
      const Node at = node(north, east);
      grid.node(at.dB, -at.dL);
    }
  grid.number("END", 0);
  return grid.bytes();
}

void make(const std::string& folder) {
  std::vector<Pair> degrees, packed, zone_54;
  for (const geodesy_bench::Point& point : geodesy_bench::points(point_count)) {
    degrees.push_back({point.longitude, point.latitude});
    packed.push_back({geodesy::degrees_to_packed(point.longitude), geodesy::degrees_to_packed(point.latitude)});
    // The same points spread over one zone, which is all that cs2cs takes in one run.
    zone_54.push_back({138 + (point.longitude - geodesy_bench::west) * 0.7, point.latitude});
  }
  write(folder + "/degrees.txt", text_of(degrees, 12));
  write(folder + "/packed.txt", text_of(packed, 9));
  write(folder + "/zone_54.txt", text_of(zone_54, 9));
  write(folder + "/TKY2JGD.par", geodesy_bench::par_bytes());
  write(folder + "/shift.gsb", ntv2_bytes());
}

void utm(const char* points) {
  Stopwatch watch;
  std::vector<Pair> pairs = read_pairs(points);
  const double reading = watch.lap();
  for (Pair& pair : pairs) {
    float easting = 0, northing = 0;
    geodesy::latlon_to_utm_auto(static_cast<float>(pair.second), static_cast<float>(pair.first), easting, northing);
    pair = {easting, northing};
  }
  const double converting = watch.lap();
  print(pairs, 3);
  std::fprintf(stderr, "reading %.2f converting %.2f\n", reading, converting);
}

void tky2jgd(const char* par, const char* points) {
  Stopwatch watch;
  platform::Disk_files files;
  geodesy::Shift_table table;
  geodesy::load_par(files, par, table);
  const double loading = watch.lap();
  std::vector<Pair> pairs = read_pairs(points);
  const double reading = watch.lap();
  for (Pair& pair : pairs) geodesy::tky2jgd(table, pair.first, pair.second, pair.first, pair.second);
  const double converting = watch.lap();
  print(pairs, 12);
  std::fprintf(stderr, "rows %d loading %.2f reading %.2f converting %.2f\n", table.count, loading, reading,
               converting);
}

}  // namespace

int main(int count, char** words) try {
  const std::string what = count > 1 ? words[1] : "";
  if (what == "make" && count == 3) {
    make(words[2]);
  } else if (what == "utm" && count == 3) {
    utm(words[2]);
  } else if (what == "tky2jgd" && count == 4) {
    tky2jgd(words[2], words[3]);
  } else {
    std::fprintf(stderr, "geodesy_peer make <folder> | utm <points> | tky2jgd <parameter file> <points>\n");
    return 2;
  }
  return 0;
} catch (const std::exception& failure) {
  std::fprintf(stderr, "%s\n", failure.what());
  return 1;
}
