// The merge at its full size: 999 measurements with a track of 10,000 points into a registry of 14,001 records, which
// is then full; and with a full one in which all of them stand already.
#include <benchmark/benchmark.h>

#include <string>
#include <vector>

#include "instruments/position_tracks.h"
#include "instruments/registry_writing.h"
#include "observations/registry.h"
#include "platform/failures.h"
#include "platform/numbers.h"

namespace {

constexpr int points = instruments::track_limit, measured = instruments::measurement_limit;
constexpr platform::Date_time start{2008, 11, 15, 0, 0, 0};

std::string number(int value) {
  return platform::number_text(value);
}

// A point every 30 seconds; three and a half days.
instruments::Track walk() {
  instruments::Track track;
  for (int i = 0; i < points; ++i) {
    const platform::Date_time time = instruments::seconds_later(start, i * 30LL);
    track.keys.push_back(instruments::key_of(time));
    track.positions.push_back({13'900'000 + i * 0.25, 3'500'000 + i * 0.5});
    track.times.push_back(instruments::date_time_text(time));
  }
  return track;
}

// Measurements at the end of the walk, so that each is sought through nearly all of it.
std::vector<instruments::Measurement> measurements() {
  std::vector<instruments::Measurement> list;
  for (int i = 0; i < measured; ++i) {
    instruments::Measurement one;
    one.number = number(i + 1);
    one.strike = "N15W";
    one.dip = "30E";
    one.time = instruments::date_time_text(instruments::seconds_later(start, (points - measured + i) * 30LL + 14));
    one.position = {13'800'000 + i * 0.5, 3'400'000.0};
    list.push_back(one);
  }
  return list;
}

void fill(observations::Registry& registry, int count) {
  for (int i = 1; i <= count; ++i) {
    observations::Record record;
    record.X = 13'800'000;  // all at one X
    record.Y = 3'400'000 + i;
    record.touroku_no = "081115-001*" + number(20'000 + i);
    record.keisoku_no = number(20'000 + i);
    record.keisoku_jikoku = "2008/11/15 10:20:30";
    registry.rows[i] = record;
  }
  registry.N = count;
}

void merge_into_a_registry(benchmark::State& state, bool with_track) {
  const instruments::Track track = walk();
  const auto list = measurements();
  observations::Registry registry;
  fill(registry, observations::record_limit - measured);
  int count = 0;
  for (auto _ : state) {
    registry.N = observations::record_limit - measured;
    count = with_track ? instruments::merge_with_track(registry, list, track, true)
                       : instruments::merge_without_track(registry, list, true);
  }
  state.counters["added"] = count;
}
BENCHMARK_CAPTURE(merge_into_a_registry, with_track, true)->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(merge_into_a_registry, without_track, false)->Unit(benchmark::kMillisecond);

void merge_what_stands_there(benchmark::State& state) {
  const instruments::Track track = walk();
  const auto list = measurements();
  observations::Registry registry;
  fill(registry, observations::record_limit - measured);
  instruments::merge_with_track(registry, list, track, true);
  int count = 0;
  for (auto _ : state) count += instruments::merge_with_track(registry, list, track, true);
  state.counters["added"] = count;
  state.counters["records"] = registry.N;
}
BENCHMARK(merge_what_stands_there)->Unit(benchmark::kMillisecond);

// No measurement has a partner: the whole track is looked through for each.
void seek_without_a_partner(benchmark::State& state) {
  const instruments::Track track = walk();
  const long long key = instruments::key_of({2020, 1, 1, 0, 0, 0});
  for (auto _ : state)
    for (int i = 0; i < measured; ++i) benchmark::DoNotOptimize(instruments::partner_of(track, key + i));
}
BENCHMARK(seek_without_a_partner)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
