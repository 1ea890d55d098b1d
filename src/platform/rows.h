// A table of fixed capacity, indexed from 1, that checks every index.
#pragma once

#include <string>
#include <vector>

#include "platform/failures.h"

namespace platform {

// The memory for all `Capacity` rows is taken once, at the first use of a row, and kept.
template <typename T, int Capacity>
class Rows {
 public:
  static constexpr int capacity = Capacity;

  // Row 1 to Capacity; any other index raises Subscript_failure.
  T& operator[](int row) {
    check(row);
    if (rows_.empty()) rows_.resize(Capacity);
    return rows_[static_cast<std::size_t>(row - 1)];
  }
  const T& operator[](int row) const {
    check(row);
    static const T untouched{};
    return rows_.empty() ? untouched : rows_[static_cast<std::size_t>(row - 1)];
  }

 private:
  static void check(int row) {
    if (row < 1 || row > Capacity)
      throw Subscript_failure("row " + std::to_string(row) + " of a table of " + std::to_string(Capacity));
  }
  std::vector<T> rows_;
};

}  // namespace platform
