#include "drawing/text_split.h"

#include <gtest/gtest.h>

#include <array>
#include <climits>
#include <string>
#include <vector>

using drawing::len_bytes;
using drawing::mid_bytes;
using drawing::split_blank;
using drawing::split_csv;
using drawing::xml_tag;

namespace {

using Fields = std::vector<std::string>;

struct Split_row {
  const char* line;
  int count;
  Fields fields;  // of an array of 4 that was full before
};

TEST(Text_split_csv, SplitsAtEveryComma) {
  const std::vector<Split_row> rows{
      {"", 1, {"", "", "", ""}},
      {"a", 1, {"a", "", "", ""}},
      {"a,b", 2, {"a", "b", "", ""}},
      {"a,,b", 3, {"a", "", "b", ""}},
      {",", 2, {"", "", "", ""}},
      {"a,b,", 3, {"a", "b", "", ""}},
      {" a , b ", 2, {" a ", " b ", "", ""}},
      {"a b", 1, {"a b", "", "", ""}},
      {"\"a,b\",c", 3, {"\"a", "b\"", "c", ""}},
      {"表,示", 2, {"表", "示", "", ""}},
      {"a、b", 1, {"a、b", "", "", ""}},
      {"1,2,3,4", 4, {"1", "2", "3", "4"}},
      {"1,2,3,4,5,6", 6, {"1", "2", "3", "4"}},
  };
  for (const Split_row& row : rows) {
    Fields fields(4, "old");
    EXPECT_EQ(split_csv(row.line, fields), row.count) << row.line;
    EXPECT_EQ(fields, row.fields) << row.line;
  }
}

TEST(Text_split_csv, CountsThePiecesEvenWithoutAnArray) {
  EXPECT_EQ(split_csv("a,b,c", {}), 3);
  EXPECT_EQ(split_csv("", {}), 1);
}

TEST(Text_split_csv, OfALongLineKeepsTheFirstFifty) {
  std::array<std::string, drawing::settings_fields> fields;
  std::string line = "1";
  for (int i = 2; i <= 1000; ++i) line += "," + std::to_string(i);
  EXPECT_EQ(split_csv(line, fields), 1000);
  EXPECT_EQ(fields.front(), "1");
  EXPECT_EQ(fields.back(), "50");
}

TEST(Text_split_blank, SplitsAtEveryBlank) {
  const std::vector<Split_row> rows{
      {"", 1, {"", "", "", ""}},         {"a b", 2, {"a", "b", "", ""}},         {"a  b", 3, {"a", "", "b", ""}},
      {" a", 2, {"", "a", "", ""}},      {"a,b c", 2, {"a,b", "c", "", ""}},     {"a　b", 1, {"a　b", "", "", ""}},
      {"a\tb", 1, {"a\tb", "", "", ""}}, {"1 2 3 4 5", 5, {"1", "2", "3", "4"}},
  };
  for (const Split_row& row : rows) {
    Fields fields(4, "old");
    EXPECT_EQ(split_blank(row.line, fields), row.count) << row.line;
    EXPECT_EQ(fields, row.fields) << row.line;
  }
}

TEST(Text_split_bytes, CountTwoForADoubleByteCharacter) {
  EXPECT_EQ(len_bytes(""), 0);
  EXPECT_EQ(len_bytes("abc"), 3);
  EXPECT_EQ(len_bytes("表示"), 4);
  EXPECT_EQ(len_bytes("ｱｲｳ"), 3);
  EXPECT_EQ(len_bytes("a表ｱ"), 4);
  EXPECT_EQ(len_bytes("\xF0\x9F\x98\x80"), 1);  // written as "?"
}

struct Mid_row {
  const char* text;
  int start;
  int length;
  const char* cut;
};

TEST(Text_split_bytes, AreCutByPosition) {
  const std::vector<Mid_row> rows{
      {"abcdef", 1, 3, "abc"},
      {"abcdef", 4, 3, "def"},
      {"abcdef", 4, 30, "def"},
      {"abcdef", 7, 1, ""},
      {"abcdef", 2, 0, ""},
      {"abcdef", 2, -1, ""},
      {"abcdef", 0, 2, "ab"},
      {"abcdef", -5, 2, "ab"},
      {"abcdef", 1, INT_MAX, "abcdef"},
      {"abcdef", INT_MAX, INT_MAX, ""},
      {"", 1, 1, ""},
      {"表示a", 1, 2, "表"},
      {"表示a", 3, 2, "示"},
      {"表示a", 5, 1, "a"},
      {"a表示", 2, 4, "表示"},
  };
  for (const Mid_row& row : rows)
    EXPECT_EQ(mid_bytes(row.text, row.start, row.length), row.cut) << row.text << " " << row.start;
}

TEST(Text_split_bytes, HalvesAreDecodedAsTheyCome) {
  // 表 is 95 5C, 示 is 8E A6, ア is 83 41, 一 is 88 EA.
  EXPECT_EQ(mid_bytes("表示", 1, 1), "\xEF\xBF\xBD");    // a lone 95
  EXPECT_EQ(mid_bytes("表示", 2, 1), "\\");              // 5C
  EXPECT_EQ(mid_bytes("表示", 2, 3), "\\示");            // 5C 8E A6
  EXPECT_EQ(mid_bytes("表示", 1, 3), "表\xEF\xBF\xBD");  // 95 5C 8E
  EXPECT_EQ(mid_bytes("表示", 4, 1), "ｦ");               // A6
  EXPECT_EQ(mid_bytes("アb", 2, 2), "Ab");               // 41 62
  EXPECT_EQ(mid_bytes("一ab", 2, 2), "鸞");              // EA 61 pair up
}

TEST(Text_split_xml, FindsTheTextBetweenTheTags) {
  const std::string text = "<a><b>one</b><b> two </b><c></c><b>open";
  std::size_t end = 99;
  EXPECT_EQ(xml_tag(text, "b", 0, &end), "one");
  EXPECT_EQ(end, 13U);
  EXPECT_EQ(xml_tag(text, "b", end, &end), " two ");
  EXPECT_EQ(end, 25U);
  EXPECT_EQ(xml_tag(text, "c", 0, &end), "");
  EXPECT_EQ(end, 32U);
  EXPECT_EQ(xml_tag("<表題>丸山</表題>", "表題", 0), "丸山");
  EXPECT_EQ(xml_tag("<x><x>in</x></x>", "x", 0), "<x>in");
}

TEST(Text_split_xml, IsEmptyWithoutBothTagsAndLeavesTheEndAsItWas) {
  std::size_t end = 99;
  EXPECT_EQ(xml_tag("<b>open", "b", 0, &end), "");
  EXPECT_EQ(xml_tag("closed</b>", "b", 0, &end), "");
  EXPECT_EQ(xml_tag("</b><b>", "b", 0, &end), "");
  EXPECT_EQ(xml_tag("<B>x</B>", "b", 0, &end), "");
  EXPECT_EQ(xml_tag("<b >x</b>", "b", 0, &end), "");
  EXPECT_EQ(xml_tag("<b>x</b>", "b", 1, &end), "");
  EXPECT_EQ(xml_tag("<b>x</b>", "b", 1000, &end), "");
  EXPECT_EQ(xml_tag("", "b", 0, &end), "");
  EXPECT_EQ(end, 99U);
}

}  // namespace
