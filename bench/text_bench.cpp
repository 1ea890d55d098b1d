// Reading and writing texts in code page 932, numbers, and names sought in a large folder.
#include <benchmark/benchmark.h>

#include <cstdio>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>

#include "platform/code_page_932.h"
#include "platform/files.h"
#include "platform/numbers.h"
#include "platform/text_files.h"

namespace {

namespace fs = std::filesystem;

// Lines of a point registry: numbers, Japanese words and half-width kana.
std::string registry_text(std::size_t bytes) {
  std::mt19937 random(932);
  const char* words[] = {"砂岩泥岩互層", "走向傾斜", "断層", "凝灰岩 (tuff)", "露頭写真あり", "ｶﾜ", "memo", "礫岩"};
  std::string text;
  while (text.size() < bytes) {
    text += std::to_string(random() % 15000) + ", " + std::to_string(random() % 1000000) + ".25 ,";
    for (int i = 0; i < 4; ++i) text += std::string(words[random() % 8]) + ",";
    text += "\r\n";
  }
  return platform::encode_932(text);
}

const std::string& registry_bytes() {
  static const std::string bytes = registry_text(20'000'000);
  return bytes;
}

void decode(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(platform::decode_932(registry_bytes()));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(registry_bytes().size()));
}
BENCHMARK(decode)->Unit(benchmark::kMillisecond);

void encode(benchmark::State& state) {
  const std::string text = platform::decode_932(registry_bytes());
  for (auto _ : state) benchmark::DoNotOptimize(platform::encode_932(text));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(registry_bytes().size()));
}
BENCHMARK(encode)->Unit(benchmark::kMillisecond);

struct Scratch_folder {
  fs::path path = fs::temp_directory_path() / "terranote_text_bench";
  Scratch_folder() { fs::create_directories(path); }
  ~Scratch_folder() {
    std::error_code ignored;
    fs::remove_all(path, ignored);
  }
};

void read_lines(benchmark::State& state) {
  const Scratch_folder folder;
  platform::Disk_files files;
  const std::string path = (folder.path / "registry.csv").string();
  files.write_whole(path, registry_bytes());
  for (auto _ : state) benchmark::DoNotOptimize(platform::read_lines(files, path));
  state.SetBytesProcessed(state.iterations() * static_cast<std::int64_t>(registry_bytes().size()));
}
BENCHMARK(read_lines)->Unit(benchmark::kMillisecond);

void seek_missing_names_among_3000(benchmark::State& state) {
  const Scratch_folder folder;
  platform::Disk_files files;
  for (int i = 0; i < 3000; ++i) std::ofstream(folder.path / (std::to_string(500000 + i) + ".bmp"));
  for (auto _ : state)
    for (int i = 0; i < 3000; ++i)
      benchmark::DoNotOptimize(files.length((folder.path / (std::to_string(500000 + i) + ".set")).string()));
}
BENCHMARK(seek_missing_names_among_3000)->Unit(benchmark::kMillisecond);

void list_3000_files(benchmark::State& state) {
  const Scratch_folder folder;
  platform::Disk_files files;
  for (int i = 0; i < 3000; ++i) std::ofstream(folder.path / (std::to_string(500000 + i) + ".bmp"));
  for (auto _ : state) benchmark::DoNotOptimize(files.list(folder.path.string(), "*.bmp"));
}
BENCHMARK(list_3000_files)->Unit(benchmark::kMillisecond);

void val_of_a_column(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(platform::val(" 135123.25 "));
}
BENCHMARK(val_of_a_column);

void print_number(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(platform::print_number(135123.25));
}
BENCHMARK(print_number);

void format_number(benchmark::State& state) {
  for (auto _ : state) benchmark::DoNotOptimize(platform::format_number(135123.256, "######0.#0"));
}
BENCHMARK(format_number);

}  // namespace

// "make <file> <megabytes>" writes a registry to be read; "read <file> <file>" decodes the one into the other, as
// `iconv -f CP932 -t UTF-8` does. text_peers.sh runs both side by side.
int main(int argc, char** argv) {
  const std::string action = argc > 2 ? argv[1] : "";
  platform::Disk_files files;
  if (action == "make" && argc == 4) {
    const auto megabytes = static_cast<std::size_t>(platform::val(argv[3]));
    std::ofstream(argv[2], std::ios::binary) << registry_text(megabytes * 1'000'000 * 5 / 4);
    return 0;
  }
  if (action == "read" && argc == 4) {
    std::ofstream(argv[3], std::ios::binary) << platform::decode_932(files.read_bytes(argv[2]));
    return 0;
  }
  if (action == "lines" && argc == 3) {
    std::printf("%zu lines\n", platform::read_lines(files, argv[2]).size());
    return 0;
  }
  benchmark::Initialize(&argc, argv);
  benchmark::RunSpecifiedBenchmarks();
  return 0;
}
