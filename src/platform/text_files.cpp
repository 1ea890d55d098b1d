#include "platform/text_files.h"

#include <algorithm>

#include "platform/content.h"
#include "platform/numbers.h"
#include "platform/text_case.h"

namespace platform {
namespace {

constexpr char end_of_text = '\x1a';

// Where the next `byte` stands from `at` on; keeps the place it found last, so that a text is gone through once.
struct Next_byte {
  std::string_view text;
  char byte;
  std::size_t found = 0;

  std::size_t from(std::size_t at) {
    if (found < at || at == 0) found = std::min(text.find(byte, at), text.size());
    return found;
  }
};

// Hands each line of an encoded text to `take`. The bytes that end a line or a text are no second byte of any code.
template <typename Take>
void each_line(std::string_view text, Take take) {
  text = text.substr(0, text.find(end_of_text));
  Next_byte feed{text, '\n'};
  Next_byte carriage_return{text, '\r'};
  for (std::size_t at = 0; at < text.size();) {
    const std::size_t end = std::min(feed.from(at), carriage_return.from(at));
    take(text.substr(at, end - at));
    at = end + (text.substr(end, 2) == "\r\n" ? 2 : 1);
  }
}

}  // namespace

std::vector<std::string> read_lines(Files& files, const std::string& path) {
  const std::string content = content_or_nothing(files, path);
  std::vector<std::string> lines;
  lines.reserve(static_cast<std::size_t>(std::count(content.begin(), content.end(), '\n')) + 1);
  each_line(content, [&](std::string_view line) { lines.push_back(decode_932(line)); });
  return lines;
}

std::vector<Text_line> read_text_lines(Files& files, const std::string& path) {
  return text_lines_of(content_or_nothing(files, path));
}

std::vector<Text_line> text_lines_of(std::string_view bytes) {
  std::vector<Text_line> lines;
  each_line(bytes, [&](std::string_view encoded) {
    Text_line line;
    line.text = decode_932(encoded, &line.unmapped);
    lines.push_back(std::move(line));
  });
  return lines;
}

std::string Line_reader::whole_line() {
  return end() ? std::string{} : lines_[next_++];
}
std::string Line_reader::field() {
  return end() ? std::string{} : input_field(lines_[next_++]);
}
bool Line_reader::flag() {
  return flag_of(field());
}

std::string input_field(std::string_view line) {
  line.remove_prefix(std::min(line.find_first_not_of(' '), line.size()));
  if (!line.empty() && line.front() == '"') {
    line.remove_prefix(1);
    return std::string(line.substr(0, line.find('"')));
  }
  return trim_text(line.substr(0, line.find_first_of(",\"")));
}

bool flag_of(std::string_view field) {
  const std::string word = fold_case(trim_text(field));
  return word == "true" || word == "#true#" || val(word) != 0;
}

void Line_writer::line(std::string_view text) {
  bytes_ += encode_932(text) + "\r\n";
}
void Line_writer::line(const Text_line& line) {
  bytes_ += encode_932(line.text, &line.unmapped) + "\r\n";
}

}  // namespace platform
