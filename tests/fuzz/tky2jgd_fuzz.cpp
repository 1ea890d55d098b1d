// Any bytes as a parameter file, and a few conversions by whatever it gave.
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "geodesy/datum.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

// The packed position of every corner of the seeds' cells, the limits, and one far from all rows.
constexpr double positions[][2] = {{1400022.5, 360015},    {1400000, 360000},     {1395959.99, 355959.99},
                                   {1540000, 460000},      {1545959.9, 465959.9}, {1200000, 200000},
                                   {1300730.5, 301112.25}, {1283730, 275115}};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  geodesy::Shift_table table;
  geodesy::read_par({reinterpret_cast<const char*>(data), size}, table);
  require(table.count >= 0 && table.count <= geodesy::largest_shift_rows);
  // Three values take at least two delimiters and a digit or a comma of their own.
  require(static_cast<std::size_t>(table.count) <= size / 3);
  for (const auto& [packed_longitude, packed_latitude] : positions) {
    double longitude = 0, latitude = 0;
    require(geodesy::tky2jgd(table, packed_longitude, packed_latitude, longitude, latitude));
    require(std::isfinite(longitude) && std::isfinite(latitude));
  }
  for (int row = 1; row <= table.count; ++row) {
    const int found = geodesy::find_row(table, table.mesh[row], row);
    require(found == row || found == 0);  // 0: a code that no position has
  }
  return 0;
}
