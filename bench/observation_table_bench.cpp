// The table of the registered observations with 15,000 of them: opening, each key of the filter, sorting, a new read
// and the selection from the map, until the window has painted.
#include <benchmark/benchmark.h>

#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <memory>

#include "core/session/session.h"
#include "observations/record_line.h"
#include "platform/numbers.h"
#include "ui/observation_list.h"
#include "ui/observation_table.h"

namespace {

constexpr int records = 15'000;

// Field notes of ten days: five strata, strikes in both directions, a lineation here and there.
std::string line(int i) {
  const char* const strata[] = {"砂岩", "泥岩", "礫岩", "凝灰岩", "砂岩泥岩互層"};
  const char* const sides[] = {"E", "W", "N", "S"};
  const auto text = [](int value) { return platform::number_text(value); };
  return " 0 ," + text(13'886'000 + i % 1200) + ".25," + text(3'578'000 + i / 12) + ".5," + text(i % 700) + ",断層," +
         strata[i % 5] + ",N" + text(i * 7 % 90) + (i % 2 ? "W" : "E") + "," + text(i % 90) + sides[i % 4] + ",08111" +
         text(i % 10) + "-" + text(i) + "*" + text(i) + ",,○, 2 , 255 , 0 , 0 , 0 , 0 , 0 ," + (i % 9 ? "0" : "1") +
         ",,2008/11/1" + text(i % 10) + " 09:30:00,,, 0 ,";
}

session::Session& full_session() {
  static const auto made = [] {
    auto session = std::make_unique<session::Session>();
    session->settings.language = "Japanese";
    for (int i = 1; i <= records; ++i) session->registry.rows[i] = observations::record_of({line(i), {}});
    session->registry.N = records;
    session->drawn_records.symbols.resize(records);
    session->drawn_records.declinations.assign(records, -7.04);
    return session;
  }();
  return *made;
}

void settle(ui::Observation_table& window) {
  QApplication::processEvents();
  window.repaint();
}

std::unique_ptr<ui::Observation_table> opened() {
  auto window = std::make_unique<ui::Observation_table>(full_session());
  window->resize(1600, 1000);
  window->show();
  settle(*window);
  return window;
}

void open_the_table(benchmark::State& state) {
  full_session();
  for (auto _ : state) {
    auto window = opened();
    if (window->findChild<QTableView*>("observations")->model()->rowCount() != records) state.SkipWithError("no rows");
    state.PauseTiming();
    window.reset();
    state.ResumeTiming();
  }
}
BENCHMARK(open_the_table)->Unit(benchmark::kMillisecond);

// Types and deletes a word; one step is one key.
void filter_by_a_key(benchmark::State& state) {
  auto window = opened();
  auto* filter = window->findChild<QLineEdit*>("filter");
  const QString word = QString::fromUtf8("砂岩 n4");
  qsizetype length = 0;
  bool longer = true;
  for (auto _ : state) {
    length += longer ? 1 : -1;
    if (length == word.size() || length == 0) longer = !longer;
    filter->setText(word.left(length));
    settle(*window);
  }
}
BENCHMARK(filter_by_a_key)->Unit(benchmark::kMillisecond);

void sort_by(benchmark::State& state) {
  auto window = opened();
  auto* table = window->findChild<QTableView*>("observations");
  table->selectAll();
  const auto column = static_cast<int>(state.range(0));
  bool ascending = false;
  for (auto _ : state) {
    ascending = !ascending;
    table->horizontalHeader()->setSortIndicator(column, ascending ? Qt::AscendingOrder : Qt::DescendingOrder);
    settle(*window);
  }
}
BENCHMARK(sort_by)
    ->Unit(benchmark::kMillisecond)
    ->Arg(ui::column_registration)
    ->Arg(ui::column_X)
    ->Arg(ui::column_soukou)
    ->Arg(ui::column_true_strike);

void read_the_registry_again(benchmark::State& state) {
  auto window = opened();
  for (auto _ : state) {
    window->registry_read();
    settle(*window);
  }
}
BENCHMARK(read_the_registry_again)->Unit(benchmark::kMillisecond);

void select_from_the_map(benchmark::State& state) {
  auto window = opened();
  int touroku = 1;
  for (auto _ : state) {
    touroku = (touroku + 7) % records + 1;
    window->select(touroku);
    settle(*window);
  }
}
BENCHMARK(select_from_the_map)->Unit(benchmark::kMillisecond);

}  // namespace

int main(int argc, char** argv) {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
