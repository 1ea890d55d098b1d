// Any bytes as a text file: its lines, its input fields, and the file written again from the lines.
#include <cstdint>
#include <cstdlib>
#include <string>
#include <vector>

#include "platform/failures.h"
#include "platform/text_files.h"

namespace {

// One file in memory.
class Memory_file : public platform::Files {
 public:
  std::string bytes;
  std::int64_t length(const std::string&) override { return static_cast<std::int64_t>(bytes.size()); }
  std::string read_bytes(const std::string&) override { return bytes; }
  void write_whole(const std::string&, std::string_view content) override { bytes = content; }
  void append(const std::string&, std::string_view content) override { bytes += content; }
  void copy(const std::string&, const std::string&) override {}
  bool remove(const std::string&) override { return false; }
  bool make_folder(const std::string&) override { return false; }
  bool folder_exists(const std::string&) override { return false; }
  std::vector<std::string> list(const std::string&, std::string_view) override { return {}; }
  std::int64_t time_stamp(const std::string&) override { return 0; }
  std::string native_path(const std::string& path) override { return path; }
};

void require(bool holds) {
  if (!holds) std::abort();
}

void check_field(const std::string& line) {
  const std::string field = platform::input_field(line);
  require(line.find(field) != std::string::npos);
  require(field.find('"') == std::string::npos);
  require(platform::flag_of(field) || !platform::flag_of(" " + field + " "));
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  Memory_file file;
  file.bytes.assign(reinterpret_cast<const char*>(data), size);
  const std::vector<platform::Text_line> lines = platform::read_text_lines(file, "a");
  const std::vector<std::string> texts = platform::read_lines(file, "a");
  require(lines.size() == texts.size());

  platform::Line_reader reader(texts);
  platform::Line_writer writer;
  for (std::size_t i = 0; i < lines.size(); ++i) {
    require(lines[i].text == texts[i]);
    require(texts[i].find_first_of("\r\n\x1a") == std::string::npos);
    check_field(texts[i]);
    require(!reader.end());
    require(i % 2 ? reader.whole_line() == texts[i] : reader.field() == platform::input_field(texts[i]));
    writer.line(lines[i]);
  }
  require(reader.end() && reader.field().empty() && reader.whole_line().empty() && !reader.flag());

  file.bytes = writer.bytes();
  require(platform::read_lines(file, "a") == texts);
  return 0;
}
