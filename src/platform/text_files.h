// Text files in code page 932 with CR LF: read line by line, written whole. Lines are UTF-8 here.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "platform/code_page_932.h"
#include "platform/files.h"

namespace platform {

// A line with the bytes of it that the code page has no character for, so that the line can be written back unchanged.
struct Text_line {
  std::string text;
  std::vector<Unmapped_byte> unmapped;
};

// The lines of a file without their ends (CR LF, a lone CR or a lone LF; 1A ends the text). A missing, empty or
// unreadable file has none.
std::vector<std::string> read_lines(Files& files, const std::string& path);
// The same with the bytes that have no character; for a file that is changed and saved again.
std::vector<Text_line> read_text_lines(Files& files, const std::string& path);
// The lines of bytes that were read already.
std::vector<Text_line> text_lines_of(std::string_view bytes);

// Reads a file of fixed line order: the meaning of a line is its position.
class Line_reader {
 public:
  explicit Line_reader(std::vector<std::string> lines) : lines_(std::move(lines)) {}

  bool end() const { return next_ >= lines_.size(); }
  // The next line as it stands, commas and quotes kept; empty past the end.
  std::string whole_line();
  // input_field of the next line, the rest of which is dropped; empty past the end.
  std::string field();
  // flag_of the next line's input field.
  bool flag();

 private:
  std::vector<std::string> lines_;
  std::size_t next_ = 0;
};

// The first input field of a line. Blanks in front are skipped. A field that begins with a quote runs to the next quote
// (or the line's end), and both quotes are taken off; any other ends before a comma or a quote, and blanks at its end
// are taken off. Blanks inside stay.
std::string input_field(std::string_view line);
// "True" and "#TRUE#" in any case, and numbers other than 0, are true; everything else is false.
bool flag_of(std::string_view field);

// Collects the lines of a file; bytes() is the file's content.
class Line_writer {
 public:
  void line(std::string_view text);
  void line(const Text_line& line);
  void flag(bool value) { line(value ? "True" : "False"); }
  // Encoded, each line ended by CR LF.
  const std::string& bytes() const { return bytes_; }

 private:
  std::string bytes_;
};

}  // namespace platform
