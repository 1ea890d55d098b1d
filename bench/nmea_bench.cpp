// A log of 1,000,000 sentences read as a route and drawn, and text tracks at their bound. nmea_peers.sh runs the same
// log through a well-known tool.
#include <benchmark/benchmark.h>

#include <cmath>
#include <cstdio>
#include <filesystem>
#include <string>

#include "instruments/routes.h"
#include "platform/numbers.h"

namespace {

namespace fs = std::filesystem;

constexpr int sentences = 1'000'000;

std::string with_checksum(const std::string& body) {
  unsigned sum = 0;
  for (const char c : body) sum ^= static_cast<unsigned char>(c);
  char digits[8];
  std::snprintf(digits, sizeof digits, "*%02X\r\n", sum);
  return "$" + body + digits;
}

// Days of walking at a point a second, in loops around 35°30' north and 139°15' east: a GGA and an RMC for each point.
std::string walk(int count) {
  std::string log = "@Sonygps/ver1.0/wgs-84\r\n";
  log.reserve(static_cast<std::size_t>(count) * 76);
  char body[128];
  for (int i = 0; i < count / 2; ++i) {
    const double turn = i / 5000.0;
    const double latitude = 30 + 6 * std::sin(turn), longitude = 15 + 6 * std::cos(turn * 1.37);
    const int second = i % 86'400, day = 1 + i / 86'400;
    std::snprintf(body, sizeof body, "GPGGA,%02d%02d%02d.00,35%08.5f,N,139%08.5f,E,1,08,1.1,120.4,M,36.2,M,,",
                  second / 3600, second / 60 % 60, second % 60, latitude, longitude);
    log += with_checksum(body);
    std::snprintf(body, sizeof body, "GPRMC,%02d%02d%02d.00,A,35%08.5f,N,139%08.5f,E,2.60,45.0,%02d1108,,",
                  second / 3600, second / 60 % 60, second % 60, latitude, longitude, day);
    log += with_checksum(body);
  }
  return log;
}

std::string track(int count) {
  std::string text;
  for (int i = 0; i < count; ++i)
    text += platform::number_text(501'000 + i / 8.0) + "," + platform::number_text(127'000 + i / 16.0) +
            ",812.0,2008/11/15 10:20:31,1\r\n";
  return text;
}

// A project whose lists name the log or the track.
struct Project {
  fs::path folder = fs::temp_directory_path() / "terranote_nmea_bench";
  platform::Disk_files files;

  Project(const std::string& name, const std::string& bytes, bool is_log) {
    fs::create_directories(folder / "chisou_men" / "gps");
    const std::string path = (folder / "chisou_men" / "gps" / name).string();
    files.write_whole(path, bytes);
    if (is_log)
      files.write_whole(instruments::keiro_out2_path(folder.string()), path + "\r\n");
    else
      files.write_whole(instruments::keiro_out_path(folder.string()), name + "\r\n");
  }
  ~Project() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
};

// A sheet that the whole walk lies on, filling a window of 1600 by 1200 units.
maps::Canvas canvas_of_walk() {
  maps::Canvas canvas;
  canvas.is_geographic = true;
  canvas.geo_x0 = 13'914'000;
  canvas.geo_y1 = 3'539'000;
  canvas.sec_m_x = 25;
  canvas.sec_m_y = 31;
  canvas.map_x1 = 20'000;
  canvas.map_y1 = 24'000;
  canvas.canvas_scale = 0.05;
  canvas.width = 1600 * maps::twips_per_unit;
  canvas.height = 1200 * maps::twips_per_unit;
  return canvas;
}

class Counting_surface : public drawing::Surface {
 public:
  std::size_t points = 0;
  void clear(drawing::Colour) override {}
  void line(drawing::Point, drawing::Point, const drawing::Pen&) override {}
  void polyline(std::span<const drawing::Point> places, const drawing::Pen&) override { points += places.size(); }
  void polygon(std::span<const drawing::Point>, const drawing::Pen&, const drawing::Fill&) override {}
  void circle(drawing::Point, double, const drawing::Pen&, const drawing::Fill&) override {}
  void text(drawing::Point, const std::string&, const drawing::Font&, drawing::Colour, int) override {}
  void picture(const drawing::Sheet_picture&, const drawing::Rect&) override {}
};

void read_log(benchmark::State& state) {
  Project project("walk.NME", walk(sentences), true);
  for (auto _ : state) {
    instruments::Routes routes;
    instruments::routes_r(project.files, project.folder.string(), routes);
    state.counters["points"] = static_cast<double>(routes.routes[0].points.size());
  }
}
BENCHMARK(read_log)->Unit(benchmark::kMillisecond);

void look_whether_it_changed(benchmark::State& state) {
  Project project("walk.NME", walk(sentences), true);
  instruments::Routes routes;
  instruments::routes_r(project.files, project.folder.string(), routes);
  for (auto _ : state) benchmark::DoNotOptimize(instruments::routes_r(project.files, project.folder.string(), routes));
}
BENCHMARK(look_whether_it_changed)->Unit(benchmark::kMillisecond);

void draw_log(benchmark::State& state) {
  Project project("walk.NME", walk(sentences), true);
  instruments::Routes routes;
  instruments::routes_r(project.files, project.folder.string(), routes);
  maps::Canvas canvas = canvas_of_walk();
  for (auto _ : state) {
    Counting_surface surface;
    instruments::routes_out(surface, canvas, routes);
    state.counters["drawn"] = static_cast<double>(surface.points);
  }
}
BENCHMARK(draw_log)->Unit(benchmark::kMillisecond);

void read_track(benchmark::State& state) {
  Project project("walk.txt", track(instruments::track_point_limit), false);
  for (auto _ : state) {
    instruments::Routes routes;
    instruments::routes_r(project.files, project.folder.string(), routes);
    benchmark::DoNotOptimize(routes);
  }
}
BENCHMARK(read_track)->Unit(benchmark::kMillisecond);

}  // namespace

// "make <file>" writes the log; "read <file>" reads one as a route.
int main(int argc, char** argv) {
  const std::string action = argc > 2 ? argv[1] : "";
  platform::Disk_files files;
  if (action == "make") {
    files.write_whole(argv[2], walk(sentences));
    return 0;
  }
  if (action == "read") {
    std::printf("%zu points\n", instruments::nmea_log_r(files, argv[2]).size());
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
