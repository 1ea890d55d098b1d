// The roads that a person waits for: the start with 3,000 sheets, the opening of a quarter sheet with its eight
// neighbours of 4000 x 3000 pixels, pans, wheel steps and repaints over them in a window of 1600 x 1000.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QImage>
#include <QListView>
#include <QScrollBar>
#include <filesystem>
#include <fstream>
#include <memory>
#include <random>

#include "core/session/sheet.h"
#include "core/session/start_up.h"
#include "geodesy/mesh_code.h"
#include "platform/files.h"
#include "platform/memory.h"
#include "platform/prompts.h"
#include "platform/qt/qt_pictures.h"
#include "platform/qt/qt_processes.h"
#include "platform/text_files.h"
#include "ui/canvas_view.h"
#include "ui/frm_main.h"

namespace {

constexpr int sheet_width = 4000, sheet_height = 3000;

class Silent_prompts : public platform::Prompts {
 protected:
  platform::Answer show(Kind, const std::string& text) override {
    std::fprintf(stderr, "message: %s\n", text.c_str());
    return platform::Answer::ok;
  }
};

struct Folder {
  std::filesystem::path path;
  Folder() {
    path = std::filesystem::temp_directory_path() / ("terranote_bench_" + std::to_string(std::random_device{}()));
    std::filesystem::create_directories(path / "program" / "map");
    std::filesystem::create_directories(path / "project" / "chisou_men");
    std::ofstream(path / "project" / "chisou_men" / "genchi.csv");
    std::ofstream settings(path / "program" / "settei.ini");
    settings << "\r\n\r\n"
             << (path / "project").string() << "\r\n04\r\n9600\r\nTrue\r\nFalse\r\nFalse\r\nTrue\r\nFalse\r\n"
             << "sheet1\r\n\r\n\r\n\r\n\r\nTrue\r\nFalse\r\ngenchi.csv\r\n";
  }
  ~Folder() { std::filesystem::remove_all(path); }
};

// A sheet with fine lines, which a reduction has to work for.
QImage sheet_image(int number) {
  QImage image(sheet_width, sheet_height, QImage::Format_Indexed8);
  QList<QRgb> colours;
  for (int i = 0; i < 256; ++i) colours.append(qRgb(i, (i * 7 + number * 40) % 256, 255 - i));
  image.setColorTable(colours);
  for (int y = 0; y < sheet_height; ++y) {
    uchar* const row = image.scanLine(y);
    for (int x = 0; x < sheet_width; ++x) row[x] = static_cast<uchar>((x * y / 97 + number * 31) & 255);
  }
  return image;
}

// The chosen sheet 53390055 and its neighbours to the east and south.
void write_sheets(const Folder& folder) {
  int number = 0;
  for (const char* stem :
       {"54390000", "54390005", "54390100", "53397050", "53397055", "53397150", "53397000", "53397005", "53397100"})
    sheet_image(number++).save(QString::fromStdString((folder.path / "program/map" / stem).string() + ".bmp"));
}

struct World {
  Folder folder;
  platform::Disk_files files;
  platform::Qt_pictures pictures;
  platform::Qt_processes processes{files};
  Silent_prompts prompts;
  session::Ports ports{files, pictures, prompts, processes};
  session::Session session;
  std::unique_ptr<ui::Frm_main> window;
  ui::Canvas_view* canvas = nullptr;

  void open() {
    session::form_load(session, ports, (folder.path / "program").string());
    window = std::make_unique<ui::Frm_main>(session, ports);
    window->resize(1600 + 520, 1000 + 130);
    window->start();
    canvas = window->findChild<ui::Canvas_view*>("Picture1");
    canvas->setFixedSize(1600, 1000);
    QApplication::processEvents();
  }
};

double resident_megabytes() {
  std::ifstream statm("/proc/self/statm");
  double pages = 0;
  statm >> pages >> pages;
  return pages * 4096 / 1e6;
}

// Made at the first use and ended by main, while the toolkit still stands.
std::unique_ptr<World> shared_world;

World& mosaic_world() {
  if (!shared_world) {
    shared_world = std::make_unique<World>();
    World& made = *shared_world;
    write_sheets(made.folder);
    made.open();
    session::chizu_out(made.session, made.ports, session::row_of(made.session.sheets, "54390000"));
  }
  return *shared_world;
}

void start_with_3000_sheets(benchmark::State& state) {
  World world;
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
  World& world = mosaic_world();
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
  state.counters["memory_of_pixels"] = (after - before) / (9.0 * sheet_width * sheet_height / 1e6);
}
BENCHMARK(open_nine_sheets)->Unit(benchmark::kMillisecond)->Iterations(3);

void pan_step(benchmark::State& state) {
  World& world = mosaic_world();
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
  World& world = mosaic_world();
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
  World& world = mosaic_world();
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
