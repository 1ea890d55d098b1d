// Drives a fuzz target without the compiler's fuzzer: every seed of the folders given, then a fixed number of mutations
// of them from a fixed seed, so that a run can be repeated.
#include <algorithm>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace {

using Bytes = std::vector<std::uint8_t>;

std::vector<Bytes> seeds_of(int count, char** folders) {
  std::vector<Bytes> seeds{{}};
  for (int i = 1; i < count; ++i) {
    std::vector<std::filesystem::path> paths;
    for (const auto& entry : std::filesystem::directory_iterator(folders[i]))
      if (entry.is_regular_file()) paths.push_back(entry.path());
    std::sort(paths.begin(), paths.end());
    for (const auto& path : paths) {
      std::ifstream in(path, std::ios::binary);
      seeds.emplace_back(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
    }
  }
  return seeds;
}

Bytes mutated(const std::vector<Bytes>& seeds, std::mt19937& random) {
  Bytes bytes = seeds[random() % seeds.size()];
  const int steps = 1 + static_cast<int>(random() % 8);
  for (int step = 0; step < steps; ++step) {
    const std::size_t at = bytes.empty() ? 0 : random() % bytes.size();
    switch (random() % 6) {
      case 0:
        if (!bytes.empty()) bytes[at] = static_cast<std::uint8_t>(random());
        break;
      case 1:
        bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), static_cast<std::uint8_t>(random()));
        break;
      case 2:
        bytes.resize(at);
        break;
      case 3:
        if (!bytes.empty()) bytes.erase(bytes.begin() + static_cast<std::ptrdiff_t>(at));
        break;
      case 4: {
        static constexpr char letters[] = ",\r\n\"-+.0123456789eE \\\x1a";
        bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at),
                     static_cast<std::uint8_t>(letters[random() % (sizeof letters - 1)]));
        break;
      }
      default: {
        const Bytes& other = seeds[random() % seeds.size()];
        const std::size_t from = other.empty() ? 0 : random() % other.size();
        bytes.insert(bytes.begin() + static_cast<std::ptrdiff_t>(at), other.begin() + static_cast<std::ptrdiff_t>(from),
                     other.end());
      }
    }
    if (bytes.size() > 65536) bytes.resize(65536);
  }
  return bytes;
}

}  // namespace

int main(int argc, char** argv) {
  const std::vector<Bytes> seeds = seeds_of(argc, argv);
  for (const Bytes& seed : seeds) LLVMFuzzerTestOneInput(seed.data(), seed.size());
  constexpr int mutations = 4000;
  std::mt19937 random(20080605);
  for (int i = 0; i < mutations; ++i) {
    const Bytes bytes = mutated(seeds, random);
    LLVMFuzzerTestOneInput(bytes.data(), bytes.size());
  }
  std::printf("%zu seeds and %d mutations passed\n", seeds.size(), mutations);
  return 0;
}
