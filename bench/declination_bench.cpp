// The declination at 10,000 points, by the coefficients in memory and with the file looked at before each, and the
// strike notation over a registry's 15,000 records.
#include <benchmark/benchmark.h>

#include <random>

#include "observations/declination.h"
#include "observations/strike_dip.h"
#include "observations/strike_dip_text.h"

namespace {

constexpr int point_count = 10'000;
constexpr int record_count = 15'000;

struct Place {
  double latitude, longitude;
};

std::vector<Place> places() {
  std::mt19937 random(1);
  std::uniform_real_distribution<double> latitude(24, 46), longitude(123, 146);
  std::vector<Place> found(point_count);
  for (Place& place : found) place = {latitude(random), longitude(random)};
  return found;
}

// Stops the bench where the coefficients are missing.
bool take(platform::Files& files, observations::Coefficients& kept, benchmark::State& state) {
  const bool taken = observations::take_coefficients(files, TERRANOTE_COEFFICIENT_FOLDER, kept) ==
                     observations::Coefficient_fault::none;
  if (!taken) state.SkipWithError("no igrf10.coef");
  return taken;
}

void Declination_at(benchmark::State& state) {
  platform::Disk_files files;
  observations::Coefficients kept;
  if (!take(files, kept, state)) return;
  const auto all = places();
  for (auto _ : state)
    for (const Place& place : all)
      benchmark::DoNotOptimize(observations::declination_at(kept.field, place.latitude, place.longitude));
  state.SetItemsProcessed(state.iterations() * point_count);
}
BENCHMARK(Declination_at)->Unit(benchmark::kMillisecond);

void Declination_with_the_file_looked_at(benchmark::State& state) {
  platform::Disk_files files;
  observations::Coefficients kept;
  if (!take(files, kept, state)) return;
  const auto all = places();
  for (auto _ : state)
    for (const Place& place : all)
      benchmark::DoNotOptimize(
          observations::declination(files, TERRANOTE_COEFFICIENT_FOLDER, kept, place.latitude, place.longitude));
  state.SetItemsProcessed(state.iterations() * point_count);
}
BENCHMARK(Declination_with_the_file_looked_at)->Unit(benchmark::kMillisecond);

void Reading_the_coefficients(benchmark::State& state) {
  platform::Disk_files files;
  for (auto _ : state) {
    observations::Coefficients kept;
    if (!take(files, kept, state)) return;
    benchmark::DoNotOptimize(kept.field.order);
  }
}
BENCHMARK(Reading_the_coefficients)->Unit(benchmark::kMillisecond);

struct Texts {
  std::vector<std::string> strikes, dips, henkaku_done;
};

Texts texts() {
  Texts found;
  std::mt19937 random(2);
  for (int record = 0; record < record_count; ++record) {
    found.strikes.push_back("N" + std::to_string(random() % 90) + (random() % 2 ? "E" : "W"));
    found.dips.push_back(std::to_string(random() % 90) + "EWSN"[random() % 4]);
    found.henkaku_done.push_back(random() % 2 ? "1" : "");
  }
  return found;
}

void Dip_strike_trance(benchmark::State& state) {
  Texts records = texts();
  std::vector<double> a(record_count), d(record_count);
  for (auto _ : state) {
    observations::Dip_Strike_Trance(records.strikes, records.dips, records.henkaku_done, a, d, -7.25);
    benchmark::DoNotOptimize(a.data());
  }
  state.SetItemsProcessed(state.iterations() * record_count);
}
BENCHMARK(Dip_strike_trance)->Unit(benchmark::kMillisecond);

void Display_of_the_strike(benchmark::State& state) {
  const Texts records = texts();
  std::string strike, dip;
  for (auto _ : state)
    for (std::size_t i = 0; i < record_count; ++i) {
      observations::偏角表示変換(records.strikes[i], records.dips[i], -7.25, strike, dip);
      benchmark::DoNotOptimize(strike.data());
    }
  state.SetItemsProcessed(state.iterations() * record_count);
}
BENCHMARK(Display_of_the_strike)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
