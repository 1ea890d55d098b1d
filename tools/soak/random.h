// Chance with a seed: the same numbers from the same seed with every compiler.
#pragma once

#include <cstddef>
#include <cstdint>
#include <random>
#include <vector>

namespace soak {

struct Random {
  std::mt19937_64 engine;
  explicit Random(std::uint64_t seed) : engine(seed) {}

  // 0 to n - 1; 0 where n is less than 2.
  int below(int n) { return n < 2 ? 0 : static_cast<int>(engine() % static_cast<std::uint64_t>(n)); }
  int between(int least, int most) { return least + below(most - least + 1); }
  bool one_in(int n) { return below(n) == 0; }
  template <typename Row>
  const Row& of(const std::vector<Row>& rows) {
    return rows[static_cast<std::size_t>(below(static_cast<int>(rows.size())))];
  }
};

}  // namespace soak
