// The roads of the geodesy floor: the projection, the mesh codes, the parameter file and the conversion by it.
#include <benchmark/benchmark.h>

#include <algorithm>

#include "geodesy/datum.h"
#include "geodesy/mesh_code.h"
#include "geodesy/packed_angle.h"
#include "geodesy/projection.h"
#include "geodesy_table.h"

namespace {

constexpr int point_count = 100'000;

struct Packed_point {
  double latitude = 0, longitude = 0;
};

std::vector<Packed_point> packed_points() {
  std::vector<Packed_point> packed;
  for (const geodesy_bench::Point& point : geodesy_bench::points(point_count))
    packed.push_back({geodesy::degrees_to_packed(point.latitude), geodesy::degrees_to_packed(point.longitude)});
  return packed;
}

void Latlon_to_utm_auto(benchmark::State& state) {
  const auto points = geodesy_bench::points(point_count);
  for (auto _ : state)
    for (const auto& point : points) {
      float easting = 0, northing = 0;
      geodesy::latlon_to_utm_auto(static_cast<float>(point.latitude), static_cast<float>(point.longitude), easting,
                                  northing);
      benchmark::DoNotOptimize(easting);
      benchmark::DoNotOptimize(northing);
    }
  state.SetItemsProcessed(state.iterations() * point_count);
}
BENCHMARK(Latlon_to_utm_auto)->Unit(benchmark::kMillisecond);

void Mesh_code_half(benchmark::State& state) {
  const auto points = geodesy_bench::points(point_count);
  for (auto _ : state)
    for (const auto& point : points)
      benchmark::DoNotOptimize(
          geodesy::mesh_code_half(static_cast<float>(point.latitude), 0, 0, static_cast<float>(point.longitude), 0, 0));
  state.SetItemsProcessed(state.iterations() * point_count);
}
BENCHMARK(Mesh_code_half)->Unit(benchmark::kMillisecond);

void Read_par(benchmark::State& state) {
  const std::string bytes = geodesy_bench::par_bytes();
  for (auto _ : state) {
    geodesy::Shift_table table;
    benchmark::DoNotOptimize(geodesy::read_par(bytes, table));
  }
  state.SetBytesProcessed(static_cast<std::int64_t>(state.iterations()) * static_cast<std::int64_t>(bytes.size()));
}
BENCHMARK(Read_par)->Unit(benchmark::kMillisecond);

void convert_all(const geodesy::Shift_table& table, benchmark::State& state) {
  const auto points = packed_points();
  for (auto _ : state)
    for (const auto& point : points) {
      double latitude = 0, longitude = 0;
      geodesy::tky2jgd(table, point.longitude, point.latitude, longitude, latitude);
      benchmark::DoNotOptimize(latitude);
      benchmark::DoNotOptimize(longitude);
    }
  state.SetItemsProcessed(state.iterations() * point_count);
}

void Tky2jgd_full_table(benchmark::State& state) {
  geodesy::Shift_table table;
  geodesy::read_par(geodesy_bench::par_bytes(), table);
  convert_all(table, state);
}
BENCHMARK(Tky2jgd_full_table)->Unit(benchmark::kMillisecond);

// The same rows in random order: the index must not care.
void Tky2jgd_shuffled_table(benchmark::State& state) {
  geodesy::Shift_table table;
  geodesy::read_par(geodesy_bench::par_bytes(), table);
  std::mt19937 random(3);
  for (int row = table.count; row > 1; --row) {
    const int other = static_cast<int>(1 + random() % static_cast<unsigned>(row));
    std::swap(table.mesh[row], table.mesh[other]);
    std::swap(table.dB[row], table.dB[other]);
    std::swap(table.dL[row], table.dL[other]);
  }
  geodesy::index_rows(table);
  convert_all(table, state);
}
BENCHMARK(Tky2jgd_shuffled_table)->Unit(benchmark::kMillisecond);

void Tky2jgd_three_parameters(benchmark::State& state) {
  convert_all({}, state);
}
BENCHMARK(Tky2jgd_three_parameters)->Unit(benchmark::kMillisecond);

void Sokuchikei_henkan(benchmark::State& state) {
  geodesy::Shift_table table;
  geodesy::read_par(geodesy_bench::par_bytes(), table);
  const auto points = geodesy_bench::points(point_count);
  for (auto _ : state)
    for (const auto& point : points) {
      double latitude = 0, longitude = 0;
      geodesy::SOKUCHIKEI_HENKAN(table, point.latitude, 0, 0, point.longitude, 0, 0, latitude, longitude);
      benchmark::DoNotOptimize(latitude);
      benchmark::DoNotOptimize(longitude);
    }
  state.SetItemsProcessed(state.iterations() * point_count);
}
BENCHMARK(Sokuchikei_henkan)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
