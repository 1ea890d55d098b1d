// 15,000 observations with strike symbols and numbers over the nine-sheet mosaic, 1600 x 1000: full repaints and pan
// steps of the window, and beside them a plain loop that draws the same items, one by one, with the toolkit's own calls
// over the same mosaic.
#include <benchmark/benchmark.h>

#include <QPainter>

#include "maps/grid_out.h"
#include "observations/chiten_out.h"
#include "platform/memory.h"
#include "platform/numbers.h"
#include "support/recorder.h"
#include "ui/fonts.h"
#include "ui/painter_surface.h"
#include "ui/toolkit_text.h"
#include "window_world.h"

namespace {

constexpr int canvas_width = 1600, canvas_height = 1000;

// Made at the first use and ended by main, while the toolkit still stands.
std::unique_ptr<bench::World> shared_world;

bench::World& mosaic_world() {
  if (!shared_world) shared_world = bench::mosaic_world();
  return *shared_world;
}

// A record somewhere in view, with a strike on any azimuth and a dip to either side.
observations::Record random_record(std::mt19937& random, maps::Canvas& canvas, int number, int largest_size) {
  const char* marks[] = {"○", "●", "□", "■", "△", "▲", "▽", "▼", "◇", "◆"};
  const auto below = [&](int limit) { return static_cast<int>(random() % static_cast<unsigned>(limit)); };
  const maps::Map_position place =
      maps::henkan_M(canvas, below(canvas_width * 100) * 0.15, below(canvas_height * 100) * 0.15);
  observations::Record record;
  record.X = place.geo_x;
  record.Y = place.geo_y;
  record.soukou = "N" + std::to_string(below(90)) + (below(2) == 0 ? "W" : "E");
  record.keisha = std::to_string(below(90)) + (below(2) == 0 ? "W" : "E");
  record.touroku_no = "081115-" + platform::format_number(number % 1000, "000") + "*" + std::to_string(number);
  record.keisoku_no = std::to_string(number);
  record.mark = marks[below(10)];
  record.size = largest_size == 2 ? 2 : 1 + below(largest_size);
  record.R = below(256);
  record.B = below(256);
  record.henkaku_done = below(2) == 0 ? "0" : "1";
  return record;
}

void fill(session::Session& session, int largest_size) {
  std::mt19937 random(2008);
  observations::Registry& registry = session.registry;
  for (int i = 1; i <= observations::record_limit; ++i)
    registry.rows[i] = random_record(random, session.canvas, i, largest_size);
  registry.N = observations::record_limit;
  session.drawn_records = observations::drawn_records(registry, session.coefficients.field, session.canvas);
  session.view.Check2 = true;
}

bench::World& filled_world(int largest_size) {
  bench::World& world = mosaic_world();
  fill(world.session, largest_size);
  world.canvas->map_changed();
  world.canvas->repaint();
  return world;
}

// The sizes of marks: all 2, as most registries hold them; and 1 to 10.
constexpr int usual_size = 2, all_sizes = 10;

void repaint(benchmark::State& state) {
  bench::World& world = filled_world(static_cast<int>(state.range(0)));
  for (auto _ : state) {
    world.canvas->map_changed();
    world.canvas->repaint();
  }
}
BENCHMARK(repaint)->Unit(benchmark::kMillisecond)->Arg(usual_size)->Arg(all_sizes)->UseRealTime();

void pan_step(benchmark::State& state) {
  bench::World& world = filled_world(static_cast<int>(state.range(0)));
  bool there = false;
  for (auto _ : state) {
    there = !there;
    emit world.canvas->dragged_one_to_one(there ? -600 : 600, there ? -300 : 300);
    world.canvas->repaint();
  }
  if (there) emit world.canvas->dragged_one_to_one(600, 300);
}
BENCHMARK(pan_step)->Unit(benchmark::kMillisecond)->Arg(usual_size)->Arg(all_sizes)->UseRealTime();

// What the plain loop draws, resolved beforehand to the toolkit's own types: device pixels, pens, brushes.
struct Item {
  enum { line, circle, polygon, text } what;
  QPointF from, to;
  double radius = 0;
  QPolygonF corners;
  QPen pen;
  QBrush brush;
  QString words;
};

QPointF to_pixels(drawing::Point point) {
  return {point.x / 2, point.y / 2};
}

Item item_of(const support::Drawn& drawn, double ascent) {
  Item item{};
  item.pen = QPen(QColor::fromRgb(drawn.pen.colour), drawn.pen.width);
  item.brush = drawn.fill.style == drawing::Fill_style::solid ? QBrush(QColor::fromRgb(drawn.fill.colour)) : QBrush();
  item.from = to_pixels(drawn.points.front());
  item.to = to_pixels(drawn.points.back());
  item.radius = drawn.radius / 2;
  item.what = drawn.what == "line" ? Item::line : drawn.what == "circle" ? Item::circle : Item::polygon;
  if (item.what == Item::polygon)
    for (const drawing::Point corner : drawn.points) item.corners.append(to_pixels(corner));
  if (drawn.what == "text") {
    item.what = Item::text;
    item.pen = QColor::fromRgb(drawn.colour);
    item.from += QPointF(0, ascent);
    item.words = ui::to_toolkit(drawn.text);
  }
  return item;
}

void draw_plainly(QPainter& painter, const Item& item) {
  painter.setPen(item.pen);
  switch (item.what) {
    case Item::line:
      painter.drawLine(item.from, item.to);
      break;
    case Item::circle:
      painter.setBrush(item.brush);
      painter.drawEllipse(item.from, item.radius, item.radius);
      break;
    case Item::polygon:
      painter.setBrush(item.brush);
      painter.drawPolygon(item.corners);
      break;
    case Item::text:
      painter.drawText(item.from, item.words);
      break;
  }
}

QFont label_font(const support::Recorder& recorded) {
  const drawing::Font font = recorded.of("text").at(0).font;
  QFont used(ui::to_toolkit(font.name));
  used.setPixelSize(qRound(font.height / 2));
  return used;
}

void plain_loop(benchmark::State& state) {
  bench::World& world = filled_world(static_cast<int>(state.range(0)));
  session::Session& session = world.session;
  support::Recorder recorded;
  observations::chiten_out(recorded, session.canvas, session.registry, session.drawn_records,
                           {true, false, observations::Number_shown::registration});
  const QFont font = label_font(recorded);
  const double ascent = QFontMetricsF(font).ascent();
  std::vector<Item> items;
  for (const support::Drawn& drawn : recorded.calls) items.push_back(item_of(drawn, ascent));
  QImage image(canvas_width, canvas_height, QImage::Format_RGB32);
  for (auto _ : state) {
    {
      ui::Painter_surface surface(image, 1, {}, image.rect());
      maps::Grid_out(surface, session.canvas, session.mosaic, {true, session.option5(), session.current_sheet});
    }
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setFont(font);
    for (const Item& item : items) draw_plainly(painter, item);
  }
  state.SetLabel(std::to_string(items.size()) + " items");
}
BENCHMARK(plain_loop)->Unit(benchmark::kMillisecond)->Arg(usual_size)->Arg(all_sizes)->UseRealTime();

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  platform::give_back_large_blocks();
  QApplication application(argc, argv);
  ui::use_fonts_with_japanese();
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  shared_world.reset();
  return 0;
}
