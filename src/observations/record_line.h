// One record as a line of the registration file, both ways. Reader and writer share one table of columns.
#pragma once

#include <string_view>

#include "observations/registry.h"
#include "platform/text_files.h"

namespace observations {

// A line to a record. Missing columns are empty texts and zeros, a mark without a size has size 2, and columns 7, 8, 9,
// 22 and 23 lose the blanks around them. A line ("線", "囲み") stands at its first vertex. Subscript_failure when the
// line tells of more vertices than vertex_limit.
Record record_of(const platform::Text_line& line);

// A record to a line, each column followed by a comma. Bytes that the code page has no character for come back where
// they stood.
platform::Text_line line_of(const Record& record);

struct Number_parts {
  std::string registration;  // before the first "*", the whole text without one
  std::string measurement;   // behind it
};
// Column 9 in its two parts, each without the blanks around it.
Number_parts number_parts(std::string_view touroku_no);
// The two parts to column 9; no "*" without a measurement number.
std::string number_of(const Number_parts& parts);

// A column of a line, counted from 1; empty past the last one.
std::string_view column_of(std::string_view line, int column);

}  // namespace observations
