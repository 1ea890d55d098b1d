// What the undo journal costs: a save of a registry of 5 MB that changes one record, with and without it, an undo, and
// the start of a program whose journal holds 300 saves. Flushes to the disk count: real time.
#include <benchmark/benchmark.h>

#include <string>

#include "platform/journal.h"
#include "support/temporary_folder.h"

using namespace platform;

namespace {

constexpr int records = 15'000;
constexpr int saves = 300;

// About 5 MB: 15,000 lines of 340 bytes.
std::string registry() {
  std::string bytes;
  for (int i = 0; i < records; ++i) {
    std::string line = " " + std::to_string(i) + " ,A," + std::to_string(i * 7919 % 100003) + ",";
    line.resize(338, static_cast<char>('a' + i % 26));
    bytes += line + "\r\n";
  }
  return bytes;
}

// The registry with one record in its middle changed.
void change(std::string& bytes, int n) {
  bytes.replace(bytes.size() / 2, 6, std::to_string(100'000 + n % 900'000));
}

struct Place {
  support::Temporary_folder folder;
  Disk_files disk;
  Journal journal{disk};
  Journal_files files{disk, journal};
  std::string project = folder.text() + "/project", state = folder.text() + "/state";
  std::string path = project + "/registry.csv";
  std::string bytes = registry();
  Place() {
    disk.make_folder(project);
    disk.write_whole(path, bytes);
    journal.open(state, project, "");
  }
  void save(int n) {
    change(bytes, n);
    const Journal_operation operation(journal, "保存", "Save");
    files.write_whole(path, bytes);
  }
};

void save_without_journal(benchmark::State& state) {
  Place place;
  int n = 0;
  for (auto _ : state) {
    change(place.bytes, ++n);
    place.disk.write_whole(place.path, place.bytes);
  }
}

void save_with_journal(benchmark::State& state) {
  Place place;
  int n = 0;
  for (auto _ : state) place.save(++n);
}

void undo_one_save(benchmark::State& state) {
  Place place;
  for (int n = 0; n < saves; ++n) place.save(n);
  for (auto _ : state)
    if (place.journal.undo().outcome != Undo_outcome::done) state.SkipWithError("not undone");
}

void open_with_300_saves(benchmark::State& state) {
  Place place;
  for (int n = 0; n < saves; ++n) place.save(n);
  place.journal.close();
  for (auto _ : state) {
    Journal journal(place.disk);
    benchmark::DoNotOptimize(journal.open(place.state, place.project, ""));
  }
  std::uint64_t total = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(place.state))
    if (entry.is_regular_file()) total += entry.file_size();
  state.counters["journal_bytes"] = static_cast<double>(total);
}

// What the journal adds in processor time alone: reading the old content, comparing, hashing both.
void difference_of_one_record(benchmark::State& state) {
  const std::string before = registry();
  std::string after = before;
  change(after, 1);
  const Contents old = before;
  for (auto _ : state) benchmark::DoNotOptimize(difference("registry.csv", old, after, Keep::before));
}

BENCHMARK(save_without_journal)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(saves);
BENCHMARK(save_with_journal)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(saves);
BENCHMARK(undo_one_save)->Unit(benchmark::kMillisecond)->UseRealTime()->Iterations(saves / 2);
BENCHMARK(open_with_300_saves)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(difference_of_one_record)->Unit(benchmark::kMillisecond);

}  // namespace

BENCHMARK_MAIN();
