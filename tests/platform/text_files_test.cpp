#include "platform/text_files.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "platform/failures.h"
#include "support/golden.h"
#include "support/temporary_folder.h"

using platform::flag_of;
using platform::input_field;
using platform::Line_reader;
using platform::Line_writer;

namespace {

using Lines = std::vector<std::string>;

class Text_files : public ::testing::Test {
 protected:
  std::string path(const std::string& name) const { return folder_.text() + "\\" + name; }
  Lines lines_of(const std::string& bytes) {
    files_.write_whole(path("text.txt"), bytes);
    return platform::read_lines(files_, path("text.txt"));
  }
  support::Temporary_folder folder_;
  platform::Disk_files files_;
};

struct Split_row {
  std::string bytes;
  Lines lines;
};

TEST_F(Text_files, EndALineAtCrLfCrOrLf) {
  const std::vector<Split_row> rows{
      {"", {}},
      {"a", {"a"}},
      {"a\r\n", {"a"}},
      {"a\r\nb", {"a", "b"}},
      {"a\nb\n", {"a", "b"}},
      {"a\rb\r", {"a", "b"}},
      {"a\r\nb\rc\nd", {"a", "b", "c", "d"}},
      {"\r\n", {""}},
      {"a\r\n\r\n", {"a", ""}},
      {"a\n\rb", {"a", "", "b"}},
      {"a\r\r\nb", {"a", "", "b"}},
      {" a , b \r\n", {" a , b "}},
      {"\"a\",b\r\n", {"\"a\",b"}},
  };
  for (const Split_row& row : rows) EXPECT_EQ(lines_of(row.bytes), row.lines) << row.bytes;
}

TEST_F(Text_files, StopAtTheEndOfTextByte) {
  EXPECT_EQ(lines_of("a\r\nb\x1a"), (Lines{"a", "b"}));
  EXPECT_EQ(lines_of("a\r\n\x1a\r\nb\r\n"), (Lines{"a"}));
  EXPECT_EQ(lines_of("\x1a"), Lines{});
}

TEST_F(Text_files, KeepNulBytes) {
  EXPECT_EQ(lines_of(std::string("a\0b\r\n\0", 6)), (Lines{std::string("a\0b", 3), std::string("\0", 1)}));
}

TEST_F(Text_files, DecodeEachLine) {
  // 95 5C is 表, whose second byte is the backslash; a lead byte before a line end is alone.
  EXPECT_EQ(lines_of("\x95\x5c\x8e\xa6\r\n\x81\r\n\xb1"), (Lines{"表示", "\xEF\xBF\xBD", "ｱ"}));
}

TEST_F(Text_files, HaveNoLinesWhenMissingOrUnreadable) {
  EXPECT_EQ(platform::read_lines(files_, path("missing.txt")), Lines{});
  EXPECT_EQ(platform::read_lines(files_, folder_.text()), Lines{});
  EXPECT_EQ(platform::read_lines(files_, ""), Lines{});
  EXPECT_TRUE(platform::read_text_lines(files_, path("missing.txt")).empty());
}

TEST_F(Text_files, BytesWithoutACharacterAreWrittenBack) {
  const std::string bytes = "\x81\r\na\x85\x40z\r\n\xf7\xfd\xa0\r\n\x95\x5c\x82\r\n";
  files_.write_whole(path("text.txt"), bytes);
  Line_writer writer;
  for (const platform::Text_line& line : platform::read_text_lines(files_, path("text.txt"))) writer.line(line);
  EXPECT_TRUE(support::same_bytes(writer.bytes(), bytes));
}

struct Field_row {
  const char* line;
  const char* field;
};

TEST(Text_files_field, EndsAtACommaOrAQuote) {
  const std::vector<Field_row> rows{
      {"", ""},
      {"a", "a"},
      {"a,b", "a"},
      {",b", ""},
      {"  a", "a"},
      {"a  ", "a"},
      {"  a b  ,c", "a b"},
      {"C:\\data, old\\map", "C:\\data"},
      {"a\"b", "a"},
      {"ab \"c\"", "ab"},
      {"\"a\"", "a"},
      {"  \"a\"", "a"},
      {"\"a,b\",c", "a,b"},
      {"\" a \"", " a "},
      {"\"a\"b,c", "a"},
      {"\"a", "a"},
      {"\"a,b", "a,b"},
      {"\"", ""},
      {"\"\"", ""},
      {"\"\"a", ""},
      {" 0.5 ", "0.5"},
      {"表示 、b", "表示 、b"},
      {"　a", "　a"},
      {"\ta", "\ta"},
  };
  for (const Field_row& row : rows) EXPECT_EQ(input_field(row.line), row.field) << row.line;
}

TEST(Text_files_flag, IsTrueForTheWordAndForNumbers) {
  for (const char* text : {"True", "true", "TRUE", " True ", "#TRUE#", "#True#", "1", "-1", "0.5", " 2 "})
    EXPECT_TRUE(flag_of(text)) << text;
  for (const char* text : {"", "False", "#FALSE#", "0", "0.0", "-0", "Truely", "yes", "真", "nan"})
    EXPECT_FALSE(flag_of(text)) << text;
}

TEST(Text_files_reader, KeepsTheMeaningOfALineItsPosition) {
  Line_reader reader({"a,b", "c,d", "\"e,f\",g", "True,x", "", "last"});
  EXPECT_EQ(reader.field(), "a");
  EXPECT_EQ(reader.whole_line(), "c,d");
  EXPECT_EQ(reader.field(), "e,f");
  EXPECT_TRUE(reader.flag());
  EXPECT_EQ(reader.field(), "");
  EXPECT_FALSE(reader.end());
  EXPECT_EQ(reader.whole_line(), "last");
  EXPECT_TRUE(reader.end());
}

TEST(Text_files_reader, GivesEmptyFieldsPastTheEnd) {
  Line_reader reader({});
  EXPECT_TRUE(reader.end());
  EXPECT_EQ(reader.whole_line(), "");
  EXPECT_EQ(reader.field(), "");
  EXPECT_FALSE(reader.flag());
  EXPECT_TRUE(reader.end());
}

TEST(Text_files_writer, EncodesAndEndsEachLineWithCrLf) {
  Line_writer writer;
  EXPECT_EQ(writer.bytes(), "");
  writer.line("表");
  writer.line("");
  writer.flag(true);
  writer.flag(false);
  writer.line(
      "a\xF0\x9F\x98\x80"
      "b");  // a character outside the code page
  EXPECT_TRUE(support::same_bytes(writer.bytes(), "\x95\x5c\r\n\r\nTrue\r\nFalse\r\na?b\r\n"));
}

}  // namespace
