// The roads that a person waits for: the start with 3,000 sheets, the opening of a quarter sheet with its eight
// neighbours of 4000 x 3000 pixels, pans, wheel steps and repaints over them in a window of 1600 x 1000.
#include <benchmark/benchmark.h>

#include <QListView>
#include <QScrollBar>

#include "platform/memory.h"
#include "window_world.h"

namespace {

double resident_megabytes() {
  std::ifstream statm("/proc/self/statm");
  double pages = 0;
  statm >> pages >> pages;
  return pages * 4096 / 1e6;
}

// Made at the first use and ended by main, while the toolkit still stands.
std::unique_ptr<bench::World> shared_world;

bench::World& mosaic_world() {
  if (!shared_world) shared_world = bench::mosaic_world();
  return *shared_world;
}

void start_with_3000_sheets(benchmark::State& state) {
  bench::World world;
  for (int i = 0; i < 3000; ++i)
    std::ofstream(world.folder.path / "program/map" / (std::to_string(300000 + i * 37) + ".bmp")) << "BM";
  for (auto _ : state) {
    world.session = session::Session();
    world.open();
    if (world.window->findChild<QListView*>("List1")->model()->rowCount() != 3000) state.SkipWithError("no list");
    world.window.reset();
  }
}
BENCHMARK(start_with_3000_sheets)->Unit(benchmark::kMillisecond)->Iterations(5);

void open_nine_sheets(benchmark::State& state) {
  bench::World& world = mosaic_world();
  const int row = session::row_of(world.session.sheets, "54390000");
  world.session.mosaic = {};
  const double before = resident_megabytes();
  double after = before;
  for (auto _ : state) {
    world.session.mosaic = {};
    session::chizu_out(world.session, world.ports, row);
    world.canvas->map_changed();
    benchmark::DoNotOptimize(world.canvas->map_image());
    after = resident_megabytes();
  }
  int loaded = 1;
  for (const int tile : world.session.mosaic.tile_state) loaded += tile;
  if (loaded != 9) state.SkipWithError("not all nine sheets are there");
  state.counters["memory_of_pixels"] = (after - before) / (9.0 * bench::sheet_width * bench::sheet_height / 1e6);
}
BENCHMARK(open_nine_sheets)->Unit(benchmark::kMillisecond)->Iterations(3);

void pan_step(benchmark::State& state) {
  bench::World& world = mosaic_world();
  for (int i = 0; i < state.range(0); ++i) emit world.canvas->wheel_turned(1, 0, 0);
  world.canvas->map_changed();
  int at = 0;
  for (auto _ : state) {
    at = at == 0 ? 1 : 0;
    emit world.canvas->dragged_one_to_one(at ? -600 : 600, at ? -300 : 300);
    world.canvas->repaint();
  }
  for (int i = 0; i < state.range(0); ++i) emit world.canvas->wheel_turned(-1, 0, 0);
}
BENCHMARK(pan_step)->Unit(benchmark::kMillisecond)->Arg(0)->Arg(4)->Arg(8)->Arg(12);

void wheel_step(benchmark::State& state) {
  bench::World& world = mosaic_world();
  for (int i = 0; i < state.range(0); ++i) emit world.canvas->wheel_turned(1, 3000, 2000);
  bool in = false;
  for (auto _ : state) {
    in = !in;
    emit world.canvas->wheel_turned(in ? 1 : -1, 12000, 7000);
    world.canvas->repaint();
  }
  if (in) emit world.canvas->wheel_turned(-1, 12000, 7000);
  for (int i = 0; i < state.range(0); ++i) emit world.canvas->wheel_turned(-1, 3000, 2000);
}
BENCHMARK(wheel_step)->Unit(benchmark::kMillisecond)->Arg(0)->Arg(4)->Arg(8)->Arg(12);

void full_repaint(benchmark::State& state) {
  bench::World& world = mosaic_world();
  for (int i = 0; i < state.range(0); ++i) emit world.canvas->wheel_turned(1, 0, 0);
  for (auto _ : state) {
    world.canvas->map_changed();  // smooth
    world.canvas->repaint();
  }
  for (int i = 0; i < state.range(0); ++i) emit world.canvas->wheel_turned(-1, 0, 0);
}
BENCHMARK(full_repaint)->Unit(benchmark::kMillisecond)->Arg(0)->Arg(4)->Arg(8)->Arg(12);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  platform::give_back_large_blocks();
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  shared_world.reset();
  return 0;
}
