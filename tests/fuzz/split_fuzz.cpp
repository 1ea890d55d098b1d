// Any bytes as a record line, a fixed-column text, a number and a tagged text.
#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "drawing/text_split.h"
#include "platform/code_page_932.h"
#include "platform/numbers.h"

namespace {

void require(bool holds) {
  if (!holds) std::abort();
}

// The fields that were kept, joined again, begin the line, and are the line when all were kept.
void check_split(const std::string& line, char separator, int count, const std::array<std::string, 8>& fields) {
  require(count == 1 + std::count(line.begin(), line.end(), separator));
  const int kept = std::min<int>(count, static_cast<int>(fields.size()));
  std::string joined = fields[0];
  for (int i = 1; i < kept; ++i) joined += separator + fields[static_cast<std::size_t>(i)];
  require(line.compare(0, joined.size(), joined) == 0);
  if (kept == count) require(joined == line);
  for (std::size_t i = static_cast<std::size_t>(kept); i < fields.size(); ++i) require(fields[i].empty());
}

void check_cuts(const std::string& text) {
  const int length = drawing::len_bytes(text);
  require(drawing::mid_bytes(text, 1, length) == platform::decode_932(platform::encode_932(text)));
  require(drawing::mid_bytes(text, length + 1, 5).empty());
  for (int start = -1; start <= std::min(length, 20); ++start)
    for (const int size : {-1, 0, 1, 2, 3, 2147483647}) {
      const std::string cut = drawing::mid_bytes(text, start, size);
      require(cut.empty() == (size <= 0 || start > length || length == 0));
    }
}

void check_number(const std::string& text) {
  const double value = platform::val(text);
  require(std::isfinite(value));
  require(platform::val(platform::print_number(value)) == value);
  const std::string formatted = platform::format_number(value, "######0.#0");
  const double slack = std::max(0.005, std::abs(value) * 1e-14);
  require(!(std::abs(platform::val(formatted) - value) > slack * 1.0000001));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  std::array<std::string, 8> fields;
  fields.fill("old");
  const int pieces = drawing::split_csv(text, fields);
  check_split(text, ',', pieces, fields);
  const int words = drawing::split_blank(text, fields);
  check_split(text, ' ', words, fields);
  check_cuts(text);
  check_number(text);

  // The first line is the tag that is sought in the whole.
  const std::string tag = text.substr(0, text.find('\n'));
  for (std::size_t at = 0; at <= text.size();) {
    std::size_t end = at;
    const std::string inside = drawing::xml_tag(text, tag, at, &end);
    require(end <= text.size() && inside.size() <= text.size());
    if (end <= at) break;
    at = end;
  }
  require(drawing::xml_tag("<a>" + text, "a", 0).size() <= text.size());
  return 0;
}
