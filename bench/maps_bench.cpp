// The sheet pictures' levels, the loading of nine sheets, a repaint without a window, and a catalogue of 3,000 sheets.
#include <benchmark/benchmark.h>

#include <algorithm>
#include <fstream>
#include <random>
#include <string>

#include "drawing/picture_files.h"
#include "maps/grid_out.h"
#include "maps/mosaic.h"
#include "maps/sheet_index.h"
#include "platform/files.h"
#include "support/bmp_pictures.h"
#include "support/recorder.h"
#include "support/temporary_folder.h"

namespace {

constexpr int sheet_width = 4000, sheet_height = 3000;

// A sheet as a scanner gives it: contour lines in brown, water in blue and a relief of 200 greys with some noise.
platform::Picture scanned_sheet() {
  platform::Picture picture = platform::make_picture(sheet_width, sheet_height, 8);
  for (unsigned i = 0; i < 200; ++i) picture.palette.push_back((55 + i) * 0x010101);
  picture.palette.resize(256, 0x8B4513);
  picture.palette[201] = 0x3060C0;
  std::mt19937 random(1);
  for (int y = 0; y < sheet_height; ++y)
    for (int x = 0; x < sheet_width; ++x) {
      const int height = (x * x / 9000 + y * y / 5000 + x * y / 7000) % 200;
      const int noise = static_cast<int>(random() % 8);
      picture.row(y)[x] = static_cast<std::uint8_t>(height < 6 ? 220 : (x + 2 * y) % 400 < 5 ? 201 : (y / 20 + noise));
    }
  return picture;
}

platform::Picture in_full_colour(const platform::Picture& from) {
  platform::Picture picture = platform::make_picture(from.width, from.height, 32);
  for (int y = 0; y < from.height; ++y)
    for (int x = 0; x < from.width; ++x)
      reinterpret_cast<std::uint32_t*>(picture.row(y))[x] = 0xFF000000 | platform::pixel(from, x, y);
  return picture;
}

void levels(benchmark::State& state, const platform::Picture& picture) {
  for (auto _ : state) {
    state.PauseTiming();
    platform::Picture copy = picture;
    state.ResumeTiming();
    drawing::Sheet_picture sheet = drawing::make_sheet_picture(std::move(copy));
    benchmark::DoNotOptimize(sheet);
    state.PauseTiming();
    sheet = {};
    state.ResumeTiming();
  }
  std::size_t bytes = 0;
  for (const platform::Picture& level : drawing::make_sheet_picture(picture).levels) bytes += level.bits.size();
  state.counters["times_own_bytes"] = static_cast<double>(bytes) / static_cast<double>(picture.bits.size());
}

void levels_of_8_bits(benchmark::State& state) {
  levels(state, scanned_sheet());
}
void levels_of_32_bits(benchmark::State& state) {
  levels(state, in_full_colour(scanned_sheet()));
}

// Nine quarter sheets in a folder of their own.
struct Nine_sheets {
  support::Temporary_folder folder;
  platform::Disk_files files;
  support::Bmp_pictures pictures;
  maps::Catalogue catalogue;
  maps::Canvas canvas;
  maps::Sheet_choice choice{"54381750", folder.text(), maps::folder_25000, 1};

  Nine_sheets() {
    const std::string bytes = drawing::bmp_bytes(scanned_sheet(), 8);
    for (const std::string& name : maps::tile_names(catalogue, choice.stem, choice.option5))
      files.write_whole(platform::join_path(choice.folder, name), bytes);
  }
};

// Bytes of this process in memory, as Linux tells them; 0 elsewhere.
double resident_bytes() {
  std::ifstream in("/proc/self/statm");
  double all = 0, resident = 0;
  in >> all >> resident;
  return resident * 4096;
}

void nine_sheets_load(benchmark::State& state) {
  Nine_sheets sheets;
  const double before = resident_bytes();
  double most = 0;
  for (auto _ : state) {
    maps::Mosaic mosaic;
    maps::chizu_out(sheets.files, sheets.pictures, sheets.catalogue, sheets.choice, sheets.canvas, mosaic);
    state.PauseTiming();
    most = std::max(most, resident_bytes() - before);
    mosaic = {};
    state.ResumeTiming();
  }
  state.counters["times_own_bytes"] = most / (9.0 * sheet_width * sheet_height);
}

void grid_out(benchmark::State& state) {
  Nine_sheets sheets;
  maps::Mosaic mosaic;
  maps::chizu_out(sheets.files, sheets.pictures, sheets.catalogue, sheets.choice, sheets.canvas, mosaic);
  support::Recorder surface;
  for (auto _ : state) {
    surface.calls.clear();
    maps::Grid_out(surface, sheets.canvas, mosaic, {true, maps::folder_25000, sheets.choice.stem});
  }
}

void catalogue_of_3000(benchmark::State& state) {
  support::Temporary_folder folder;
  platform::Disk_files files;
  std::string table;
  for (int i = 0; i < 3000; ++i)
    table += std::to_string(500'000 + i) + ",name,,,,,,360500.0,1390000.0,360511.5,1385948.4,,361000.0,1385230.0,,\r\n";
  files.write_whole(platform::join_path(folder.text(), "ZUMEI.CSV"), table);
  maps::Catalogue catalogue;
  std::string language;
  for (auto _ : state) {
    maps::zumei_read(files, catalogue, folder.text(), maps::folder_25000, 0, language);
    for (int i = 0; i < 3000; ++i)
      benchmark::DoNotOptimize(maps::chikeizu_name_get(catalogue, std::to_string(500'000 + i) + "05.bmp", language));
  }
}

// A fixed count, so that the one run starts with a heap that has held no sheets yet.
BENCHMARK(nine_sheets_load)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(5);
BENCHMARK(levels_of_8_bits)->Unit(benchmark::kMillisecond);
BENCHMARK(levels_of_32_bits)->Unit(benchmark::kMillisecond);
BENCHMARK(grid_out)->Unit(benchmark::kMicrosecond);
BENCHMARK(catalogue_of_3000)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
