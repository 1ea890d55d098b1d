// The parameter table of the datum conversion: the shifts of latitude and longitude at the south-west corners of
// third-level mesh cells, read once from TKY2JGD.par, and an index that finds a row without walking the table.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"
#include "platform/rows.h"

namespace geodesy {

inline constexpr int largest_shift_rows = 500'000;
// A file beyond this size can't be a parameter file (a full one has 16 MB); it counts as one that can't be read.
inline constexpr std::int64_t largest_par_bytes = 256'000'000;

// Where the rows of a code stand. Every second-level cell of the region that a position can lie in has a place in
// `sheets`; one with rows points at its 100 third-level cells in `cells`. A cell holds 0 (no row), the one row, or, for
// a code with several rows, minus the number (from 1) of the ascending list in `repeated`.
struct Shift_index {
  std::vector<std::int32_t> sheets;
  std::vector<std::int32_t> cells;
  std::vector<std::vector<std::int32_t>> repeated;
};

// Rows 1 to `count`, in the order of the file: not necessarily sorted, and a code may come again. After a change by
// hand index_rows must follow.
struct Shift_table {
  platform::Rows<std::int32_t, largest_shift_rows> mesh;  // eight-digit third-level mesh code
  platform::Rows<float, largest_shift_rows> dB;           // latitude shift, arc seconds
  platform::Rows<float, largest_shift_rows> dL;           // longitude shift, arc seconds
  int count = 0;
  Shift_index index;
};

// Fills the table from a parameter file and gives the file's version (its first line from the 20th character on). A
// file that can't be read leaves the table empty and gives an empty text, without a message; rows past the 500,000th
// are left.
std::string load_par(platform::Files& files, const std::string& path, Shift_table& table);

// The same from a file's content: docs/formats/TKY2JGD.par.md tells the reading of odd rows.
std::string read_par(std::string_view bytes, Shift_table& table);

// Makes the index of rows 1 to `count`.
void index_rows(Shift_table& table);

// The row that a walk finds which goes from row `from` to the end and then from row 1 up to `from`; 0 when there is
// none. `from` is 1 or more. For the codes of positions from latitude 20 to 47 and longitude 120 to 156, the only ones
// ever sought; others have no row here.
int find_row(const Shift_table& table, int code, int from);

}  // namespace geodesy
