// The merge at its full size: 999 measurements with a track of 10,000 points into a registry of 14,001 records, which
// is then full; and with a full one in which all of them stand already.
#include <benchmark/benchmark.h>

#include <filesystem>
#include <string>
#include <vector>

#include "instruments/position_tracks.h"
#include "instruments/registry_writing.h"
#include "observations/registry.h"
#include "platform/failures.h"
#include "platform/file_time.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/prompts.h"

namespace {

namespace fs = std::filesystem;

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
    track.times.push_back(platform::date_time_text(time));
  }
  return track;
}

// 2008/11/15,012030,3541.1234,N,13945.6789,E: UTC, nine hours before.
std::string logger_line(int i) {
  const std::string text =
      platform::date_time_text(instruments::seconds_later(start, i * 30LL - 9 * 60 * 60));  // yyyy/mm/dd hh:mm:ss
  const std::string minutes = platform::format_number(i % 5999 / 100.0, "00.00");
  return text.substr(0, 10) + "," + text.substr(11, 2) + text.substr(14, 2) + text.substr(17, 2) + ",35" + minutes +
         ",N,139" + minutes + ",E\r\n";
}

class Silent_prompts : public platform::Prompts {
 protected:
  platform::Answer show(Kind, const std::string&) override { return platform::Answer::ok; }
};

// Measurements at the end of the walk, so that each is sought through nearly all of it.
std::vector<instruments::Measurement> measurements() {
  std::vector<instruments::Measurement> list;
  for (int i = 0; i < measured; ++i) {
    instruments::Measurement one;
    one.number = number(i + 1);
    one.strike = "N15W";
    one.dip = "30E";
    one.time = platform::date_time_text(instruments::seconds_later(start, (points - measured + i) * 30LL + 14));
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

// The button itself: reads the registry of 15,000 records and a track of 10,000 lines, merges 999 rows that stand there
// but for one, writes the registry whole and copies it into the backup folder.
struct Scratch_project {
  fs::path folder = fs::temp_directory_path() / "terranote_tiltvane_bench";
  platform::Disk_files files;
  Silent_prompts prompts;
  platform::System_clock clock;
  core::Settings settings;
  observations::Registry registry;
  instruments::Measurement_list list;
  instruments::Tiltvane_boxes boxes;

  Scratch_project() {
    fs::create_directories(folder / "chisou_men");
    settings.program_path = settings.project_path = boxes.DirGPS = folder.string();
    settings.registry_name = "tani.csv";
    boxes.FileGPS = "walk.csv";
    boxes.Check8 = true;
    settings.registry_count = 1;
    fill(registry, observations::record_limit - measured);
    for (const instruments::Measurement& one : measurements()) {
      list.rows.push_back({one.number + ",P,N15W,30E,0.1,  ,  ," + one.time + ",m,0,0,,,,,,-7,-,-,-,-,-7", true});
    }
    std::string lines;
    for (int i = 0; i < points; ++i) lines += logger_line(i);
    files.write_whole((folder / "walk.csv").string(), lines);
    files.write_whole(observations::registry_file(settings), observations::registry_bytes(registry));
    press();
  }
  ~Scratch_project() {
    std::error_code ignored;
    fs::remove_all(folder, ignored);
  }
  int press() {
    return instruments::Tiltvane_File_Make({settings, files, clock, prompts}, registry, list, boxes).count;
  }
  // Takes the last record out of the file, so that a press has one to add.
  void take_one_out() {
    registry.N = observations::record_limit - 1;
    files.write_whole(observations::registry_file(settings), observations::registry_bytes(registry));
  }
};

void press_the_button(benchmark::State& state) {
  Scratch_project project;
  int count = 0;
  for (auto _ : state) {
    state.PauseTiming();
    project.take_one_out();
    state.ResumeTiming();
    count = project.press();
  }
  state.counters["added"] = count;
  state.counters["records"] = project.registry.N;
}
BENCHMARK(press_the_button)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
