#include "soak/registry_rules.h"

#include <algorithm>
#include <iterator>

#include "observations/record_line.h"
#include "observations/registry.h"
#include "platform/code_page_932.h"
#include "platform/failures.h"
#include "platform/numbers.h"

namespace soak {

namespace {

constexpr std::string_view line_end = "\r\n";
constexpr int fixed_columns = 24, count_column = 24, size_column = 12, added_commas = 8;
constexpr std::size_t most_slips = 3;  // of one file; more of the same tell nothing

// The lines without their ends; what stands behind the last end is a line too.
std::vector<std::string_view> lines_of(std::string_view bytes) {
  std::vector<std::string_view> lines;
  while (!bytes.empty()) {
    const std::size_t end = bytes.find(line_end);
    lines.push_back(bytes.substr(0, end));
    bytes.remove_prefix(end == std::string_view::npos ? bytes.size() : end + line_end.size());
  }
  return lines;
}

std::string numbered(std::size_t index, const std::string& what) {
  return "line " + std::to_string(index + 1) + " " + what;
}

// A line in its columns, without what reading changes as documented: a size of 0 is one of 2, and a line or enclosure
// stands at its first vertex, whatever columns 2 and 3 say.
std::vector<std::string> as_compared(const observations::Record& record, std::string_view line) {
  std::vector<std::string> columns;
  for (std::size_t comma = line.find(','); comma != std::string_view::npos; comma = line.find(',')) {
    columns.emplace_back(line.substr(0, comma));
    line.remove_prefix(comma + 1);
  }
  if (columns[size_column - 1] == " 0 ") columns[size_column - 1] = " 2 ";
  if (record.mark == "線" || record.mark == "Line" || record.mark == "囲み") columns[1] = columns[2] = "";
  return columns;
}

// Empty when the line is whole.
std::string line_slip(const platform::Text_line& line) {
  const long columns = std::count(line.text.begin(), line.text.end(), ',');
  if (columns == added_commas && line.text.starts_with("1,")) return {};
  if (line.text.empty() || line.text.back() != ',') return "doesn't end with a comma";
  if (columns < fixed_columns) return "has " + std::to_string(columns) + " columns";
  const double vertices = platform::val(observations::column_of(line.text, count_column));
  if (static_cast<double>(columns) != fixed_columns + 2 * vertices)
    return "has " + std::to_string(columns) + " columns for " + platform::number_text(vertices) + " vertices";
  try {
    const observations::Record record = observations::record_of(line);
    if (as_compared(record, observations::line_of(record).text) != as_compared(record, line.text))
      return "is written otherwise than read";
  } catch (const platform::Failure& failure) {
    return std::string("can't be read: ") + failure.what();
  }
  return {};
}

std::vector<std::string> records_of(std::string_view bytes) {
  std::vector<std::string> records;
  for (const std::string_view line : lines_of(bytes))
    if (line.find(observations::no_data_text) == std::string_view::npos) records.emplace_back(line);
  std::sort(records.begin(), records.end());
  return records;
}

int missing_in(const std::vector<std::string>& some, const std::vector<std::string>& others) {
  std::vector<std::string> missing;
  std::set_difference(some.begin(), some.end(), others.begin(), others.end(), std::back_inserter(missing));
  return static_cast<int>(missing.size());
}

}  // namespace

std::vector<std::string> text_slips(std::string_view bytes, bool all_known) {
  std::vector<std::string> slips;
  if (!bytes.empty() && (bytes.size() < 2 || bytes.substr(bytes.size() - 2) != line_end))
    slips.emplace_back("doesn't end with CR LF");
  const std::vector<std::string_view> lines = lines_of(bytes);
  for (std::size_t i = 0; i < lines.size() && slips.size() < most_slips; ++i) {
    if (lines[i].find_first_of("\r\n") != std::string_view::npos) slips.push_back(numbered(i, "holds half a line end"));
    if (!all_known) continue;
    std::vector<platform::Unmapped_byte> unmapped;
    platform::decode_932(lines[i], &unmapped);
    if (!unmapped.empty()) slips.push_back(numbered(i, "holds a byte without a character"));
  }
  return slips;
}

std::vector<std::string> registry_slips(std::string_view bytes) {
  std::vector<std::string> slips = text_slips(bytes, true);
  const std::vector<std::string_view> lines = lines_of(bytes);
  for (std::size_t i = 0; i < lines.size() && slips.size() < most_slips; ++i) {
    platform::Text_line line;
    line.text = platform::decode_932(lines[i], &line.unmapped);
    const std::string slip = line_slip(line);
    if (!slip.empty()) slips.push_back(numbered(i, slip + ": " + line.text));
  }
  return slips;
}

Registry_change registry_change(std::string_view before, std::string_view after) {
  const std::vector<std::string> old_records = records_of(before), new_records = records_of(after);
  return {missing_in(old_records, new_records), missing_in(new_records, old_records)};
}

}  // namespace soak
