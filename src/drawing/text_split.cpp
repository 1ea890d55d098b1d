#include "drawing/text_split.h"

#include <algorithm>
#include <limits>

#include "platform/code_page_932.h"

namespace drawing {
namespace {

int split(std::string_view line, char separator, std::span<std::string> fields) {
  std::size_t count = 0;
  for (std::size_t at = 0; at <= line.size(); ++count) {
    const std::size_t end = std::min(line.find(separator, at), line.size());
    if (count < fields.size()) fields[count] = line.substr(at, end - at);
    at = end + 1;
  }
  for (std::size_t i = count; i < fields.size(); ++i) fields[i].clear();
  return static_cast<int>(std::min<std::size_t>(count, std::numeric_limits<int>::max()));
}

}  // namespace

int split_csv(std::string_view line, std::span<std::string> fields) {
  return split(line, ',', fields);
}
int split_blank(std::string_view line, std::span<std::string> fields) {
  return split(line, ' ', fields);
}

int len_bytes(std::string_view text) {
  return static_cast<int>(platform::length_932(text));
}

std::string mid_bytes(std::string_view text, int start, int length) {
  const std::string bytes = platform::encode_932(text);
  const std::size_t from = static_cast<std::size_t>(std::max(start, 1)) - 1;
  if (from >= bytes.size() || length <= 0) return {};
  return platform::decode_932(std::string_view(bytes).substr(from, static_cast<std::size_t>(length)));
}

std::string xml_tag(std::string_view text, std::string_view tag, std::size_t start, std::size_t* end) {
  const std::string opening = "<" + std::string(tag) + ">";
  const std::string closing = "</" + std::string(tag) + ">";
  const std::size_t from = text.find(opening, start);
  if (from == std::string_view::npos) return {};
  const std::size_t inside = from + opening.size();
  const std::size_t to = text.find(closing, inside);
  if (to == std::string_view::npos) return {};
  if (end) *end = to + closing.size();
  return std::string(text.substr(inside, to - inside));
}

}  // namespace drawing
