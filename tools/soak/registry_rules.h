// What must hold of a point registration file at any moment, and what one write of it may change.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace soak {

// What is wrong with the content of a text file: a line that doesn't end with CR LF, and, with `all_known`, a byte that
// code page 932 has no character for. Empty when all is well.
std::vector<std::string> text_slips(std::string_view bytes, bool all_known);

// The same of a registration file, and its lines: 24 columns and two for each vertex, every one followed by a comma, or
// the nine columns that "add to another surface" writes; no more vertices than a record has room for; a line of the
// first kind is what the program's writer makes of what its reader reads.
std::vector<std::string> registry_slips(std::string_view bytes);

// Lines that count as records in one content and not in the other, a line that stands twice counted twice.
struct Registry_change {
  int gone = 0, come = 0;
};
Registry_change registry_change(std::string_view before, std::string_view after);

}  // namespace soak
