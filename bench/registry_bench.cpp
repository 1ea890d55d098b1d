// The registration file at its full size: 15,000 records with 20,000 vertices in all, read and saved; and the pick of a
// record on the map. registry_peers.sh runs the same file through a well-known tool.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <random>
#include <string>

#include "observations/link.h"
#include "observations/record_line.h"
#include "observations/registry.h"
#include "observations/registry_edit.h"
#include "platform/numbers.h"

namespace {

namespace fs = std::filesystem;

constexpr int lines_with_vertices = 1000, vertices_each = 20;

observations::Record random_record(std::mt19937& random, int number) {
  const char* strata[] = {"霧沢頁岩層", "鳴沢砂岩層", "柏平凝灰岩層", "石楠礫岩層"};
  const char* marks[] = {"○", "●", "■", "◇"};
  const auto below = [&](unsigned limit) { return static_cast<int>(random() % limit); };
  observations::Record record;
  record.X = 13'850'000 + below(10'000'000) / 100.0;
  record.Y = 3'550'000 + below(10'000'000) / 100.0;
  record.Z = platform::number_text(below(20000) / 10.0);
  record.taishou = "地層境界面";
  record.chisou = strata[below(4)];
  record.soukou = "N" + std::to_string(below(90)) + "W";
  record.keisha = std::to_string(below(90)) + "E";
  record.touroku_no = "0811" + platform::format_number(1 + number / 600, "00") + "-" +
                      platform::format_number(1 + number % 600, "000") + "*" + std::to_string(number);
  record.mark = marks[below(4)];
  record.size = 1 + below(10);
  record.R = below(256);
  record.henkaku_done = "0";
  return record;
}

// The first record has vertices, so that a reader that takes the number of columns from the first line sees them all.
void fill(observations::Registry& registry) {
  std::mt19937 random(2008);
  for (int i = 1; i <= observations::record_limit; ++i) {
    observations::Record record = random_record(random, i);
    if (i % (observations::record_limit / lines_with_vertices) == 1) {
      record.mark = "範囲";
      for (int k = 0; k < vertices_each; ++k)
        record.vertices.push_back({record.X + static_cast<double>(random() % 1'000'000) / 1024,
                                   record.Y + static_cast<double>(random() % 1'000'000) / 1024});
    }
    registry.rows[i] = std::move(record);
  }
  registry.N = observations::record_limit;
}

struct Scratch_file {
  fs::path folder = fs::temp_directory_path() / "terranote_registry_bench";
  std::string path = (folder / "tani.csv").string();
  platform::Disk_files files;
  observations::Registry registry;

  Scratch_file() {
    fs::create_directories(folder);
    fill(registry);
    files.write_whole(path, observations::registry_bytes(registry));
  }
  ~Scratch_file() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
};

void read_registry(benchmark::State& state) {
  Scratch_file scratch;
  for (auto _ : state) observations::chisoumen_read(scratch.registry, scratch.files, 1, {scratch.path});
  state.counters["bytes"] = static_cast<double>(scratch.files.length(scratch.path));
}
BENCHMARK(read_registry)->Unit(benchmark::kMillisecond);

void save_registry(benchmark::State& state) {
  Scratch_file scratch;
  for (auto _ : state) scratch.files.write_whole(scratch.path, observations::registry_bytes(scratch.registry));
}
BENCHMARK(save_registry)->Unit(benchmark::kMillisecond);

void find_the_record_under_the_mouse(benchmark::State& state) {
  Scratch_file scratch;
  maps::Map_position mouse{100, 100, 13'900'000, 3'600'000};
  for (auto _ : state) {
    mouse.geo_x += 1;
    benchmark::DoNotOptimize(observations::nearest_record(scratch.registry, mouse));
  }
}
BENCHMARK(find_the_record_under_the_mouse)->Unit(benchmark::kMillisecond);

// On a sheet of 25 m to the second of longitude and 30 m to that of latitude.
void find_the_linked_record_under_the_mouse(benchmark::State& state) {
  Scratch_file scratch;
  maps::Canvas canvas;
  canvas.is_geographic = true;
  canvas.canvas_scale = 0.1;
  canvas.geo_x0 = 13'850'000;
  canvas.geo_y1 = 3'550'000;
  canvas.sec_m_x = 25;
  canvas.sec_m_y = 30;
  maps::Map_position mouse{20'000, 20'000, 0, 0};
  for (auto _ : state) {
    mouse.x += 1;
    benchmark::DoNotOptimize(observations::linked_record_at(scratch.registry, canvas, mouse, 15'000, 9'000));
  }
}
BENCHMARK(find_the_linked_record_under_the_mouse)->Unit(benchmark::kMillisecond);

}  // namespace

// "make <file>" writes the registry; "read <file>" reads one; "copy <file> <file>" reads one and saves it as the other.
int main(int argc, char** argv) {
  const std::string action = argc > 2 ? argv[1] : "";
  platform::Disk_files files;
  observations::Registry registry;
  if (action == "make") {
    fill(registry);
    files.write_whole(argv[2], observations::registry_bytes(registry));
    return 0;
  }
  if (action == "read" || action == "copy") {
    observations::chisoumen_read(registry, files, 1, {argv[2]});
    if (action == "copy" && argc > 3) files.write_whole(argv[3], observations::registry_bytes(registry));
    std::printf("%d records\n", registry.N);
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
