#include "geodesy/shift_table.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <optional>
#include <string_view>

#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/numbers.h"
#include "platform/utf8.h"

namespace geodesy {
namespace {

// The first-level cells of the index: latitude 20 to 47, longitude 120 to 156.
constexpr int lowest_m1 = 30, m1_count = 41;
constexpr int lowest_m2 = 20, m2_count = 36;
constexpr int sheet_count = m1_count * m2_count * 64;  // 8 x 8 second-level cells in each
constexpr int cells_of_a_sheet = 100;

// The place of a code's second-level cell in Shift_index::sheets; -1 for a code outside.
int sheet_of(int code) {
  const int second_level = code / cells_of_a_sheet;
  const int m1 = second_level / 10000 - lowest_m1;
  const int m2 = second_level / 100 % 100 - lowest_m2;
  const int m3 = second_level / 10 % 10;
  const int m4 = second_level % 10;
  if (code < 0 || m1 < 0 || m1 >= m1_count || m2 < 0 || m2 >= m2_count || m3 > 7 || m4 > 7) return -1;
  return ((m1 * m2_count + m2) * 8 + m3) * 8 + m4;
}

// The place of a code's third-level cell in Shift_index::cells, where its second-level cell begins at `sheet_begin`.
std::size_t cell_of(std::int32_t sheet_begin, int code) {
  return static_cast<std::size_t>(sheet_begin) + static_cast<std::size_t>(code % cells_of_a_sheet);
}

void index_row(Shift_index& index, int code, std::int32_t row) {
  const int sheet = sheet_of(code);
  if (sheet < 0) return;
  std::int32_t& place = index.sheets[static_cast<std::size_t>(sheet)];
  if (place == 0) {
    // The first 100 cells stay empty, so that place 0 means "no rows".
    if (index.cells.empty()) index.cells.resize(cells_of_a_sheet);
    place = static_cast<std::int32_t>(index.cells.size());
    index.cells.resize(index.cells.size() + cells_of_a_sheet);
  }
  std::int32_t& cell = index.cells[cell_of(place, code)];
  if (cell == 0) {
    cell = row;
  } else if (cell > 0) {
    index.repeated.push_back({cell, row});
    cell = -static_cast<std::int32_t>(index.repeated.size());
  } else {
    index.repeated[static_cast<std::size_t>(-cell - 1)].push_back(row);
  }
}

bool is_blank(char c) {
  return c == ' ' || c == '\t';
}
bool is_line_end(char c) {
  return c == '\r' || c == '\n';
}

// Takes a line off the front of a text; CR LF, a lone CR or a lone LF ends it.
std::string_view take_line(std::string_view& text) {
  const std::size_t end = std::min(text.find_first_of("\r\n"), text.size());
  const std::string_view line = text.substr(0, end);
  text.remove_prefix(end);
  if (text.starts_with("\r\n")) {
    text.remove_prefix(2);
  } else if (!text.empty()) {
    text.remove_prefix(1);
  }
  return line;
}

// Takes a value of a free-form row off the front: blanks and line ends before it are passed, a comma, a blank or a line
// end closes it, and one comma behind the blanks goes with it. Nothing at the end of the text.
std::optional<std::string_view> take_value(std::string_view& text) {
  std::size_t at = 0;
  while (at < text.size() && (is_blank(text[at]) || is_line_end(text[at]))) ++at;
  const std::size_t begin = at;
  while (at < text.size() && text[at] != ',' && !is_blank(text[at]) && !is_line_end(text[at])) ++at;
  const std::string_view value = text.substr(begin, at - begin);
  while (at < text.size() && is_blank(text[at])) ++at;
  const bool comma = at < text.size() && text[at] == ',';
  text.remove_prefix(comma ? at + 1 : at);
  if (value.empty() && !comma) return std::nullopt;
  return value;
}

struct Row {
  double mesh = 0, dB = 0, dL = 0;
};

// A row cut short by the end of the text is none.
std::optional<Row> take_row(std::string_view& text) {
  const auto mesh = take_value(text);
  const auto dB = take_value(text);
  const auto dL = take_value(text);
  if (!dL) return std::nullopt;
  return Row{platform::round_even(platform::val(*mesh)), platform::val(*dB), platform::val(*dL)};
}

bool fits(const Row& row) {
  constexpr double largest_shift = std::numeric_limits<float>::max();
  return row.mesh >= std::numeric_limits<std::int32_t>::min() && row.mesh <= std::numeric_limits<std::int32_t>::max() &&
         std::abs(row.dB) <= largest_shift && std::abs(row.dL) <= largest_shift;
}

std::string version_of(std::string_view header) {
  constexpr std::size_t first_character = 20;
  return std::string(platform::cut_characters(platform::decode_932(header), first_character));
}

}  // namespace

// JGD2000-TokyoDatum Ver.2.1.2
// MeshCode   dB(sec)   dL(sec)
// 46303582  12.79799  -8.13354
// 1 mesh    2 dB      3 dL
std::string read_par(std::string_view bytes, Shift_table& table) {
  bytes = bytes.substr(0, bytes.find('\x1a'));
  const std::string_view header = take_line(bytes);
  take_line(bytes);
  Shift_table fresh;
  while (fresh.count < largest_shift_rows) {
    const std::optional<Row> row = take_row(bytes);
    if (!row) break;
    if (!fits(*row)) continue;
    ++fresh.count;
    fresh.mesh[fresh.count] = static_cast<std::int32_t>(row->mesh);
    fresh.dB[fresh.count] = static_cast<float>(row->dB);
    fresh.dL[fresh.count] = static_cast<float>(row->dL);
  }
  index_rows(fresh);
  table = std::move(fresh);
  return version_of(header);
}

std::string load_par(platform::Files& files, const std::string& path, Shift_table& table) {
  table = {};
  const std::int64_t length = files.length(path);
  if (length == 0 || length > largest_par_bytes) return {};
  std::string bytes;
  try {
    bytes = files.read_bytes(path);
  } catch (const platform::File_failure&) {
    return {};  // a file that can't be opened is silent: the conversions fall back to the three parameters
  }
  return read_par(bytes, table);
}

void index_rows(Shift_table& table) {
  table.index = {};
  if (table.count == 0) return;
  table.index.sheets.resize(sheet_count);
  for (int row = 1; row <= table.count; ++row) index_row(table.index, table.mesh[row], row);
}

int find_row(const Shift_table& table, int code, int from) {
  const int sheet = sheet_of(code);
  const Shift_index& index = table.index;
  if (sheet < 0 || index.sheets.empty()) return 0;
  const std::int32_t place = index.sheets[static_cast<std::size_t>(sheet)];
  if (place == 0) return 0;
  const std::int32_t cell = index.cells[cell_of(place, code)];
  if (cell >= 0) return cell;
  const std::vector<std::int32_t>& rows = index.repeated[static_cast<std::size_t>(-cell - 1)];
  const auto ahead = std::lower_bound(rows.begin(), rows.end(), from);
  return ahead != rows.end() ? *ahead : rows.front();
}

}  // namespace geodesy
