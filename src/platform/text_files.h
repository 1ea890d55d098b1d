// Text files in code page 932 with CR LF: read line by line, written whole. Lines are UTF-8 here.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/files.h"

namespace platform {

// The lines of a file without their ends (CR LF, a lone CR or a lone LF; 1A ends the text). A missing, empty or
// unreadable file has none.
std::vector<std::string> read_lines(Files& files, const std::string& path);

// Reads a file of fixed line order: the meaning of a line is its position.
class Line_reader {
 public:
  explicit Line_reader(std::vector<std::string> lines) : lines_(std::move(lines)) {}

  bool end() const { return next_ >= lines_.size(); }
  // The next line as it stands, commas and quotes kept; empty past the end.
  std::string whole_line();
  // The first input field of the next line: blanks in front are skipped, quotes around it are taken off, and a comma
  // ends it; the rest of that line is dropped. A field that begins with a quote runs to the next quote. Empty past the
  // end.
  std::string field();
  // field() as a flag: "True", "#TRUE#" and numbers other than 0 are true.
  bool flag();

 private:
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
};

// The first input field of a line, as Line_reader::field tells.
std::string input_field(std::string_view line);

// Collects the lines of a file; bytes() is the file's content.
class Line_writer {
 public:
  void line(std::string_view text);
  void flag(bool value) { line(value ? "True" : "False"); }
  // Encoded, each line ended by CR LF.
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

}  // namespace platform
