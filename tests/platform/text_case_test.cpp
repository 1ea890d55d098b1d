#include "platform/text_case.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using platform::fold_case;
using platform::same_name;
using platform::upper_case;

namespace {

struct Case_row {
  const char* small;
  const char* capital;
};

TEST(Text_case, PairsTheLettersThatTheCodePageHasInBothCases) {
  const std::vector<Case_row> rows{
      {"", ""},
      {"abcdefghijklmnopqrstuvwxyz", "ABCDEFGHIJKLMNOPQRSTUVWXYZ"},
      {"ａｂｃｄｅｆｇｈｉｊｋｌｍｎｏｐｑｒｓｔｕｖｗｘｙｚ", "ＡＢＣＤＥＦＧＨＩＪＫＬＭＮＯＰＱＲＳＴＵＶＷＸＹＺ"},
      {"αβγδεζηθικλμνξοπρστυφχψω", "ΑΒΓΔΕΖΗΘΙΚΛΜΝΞΟΠΡΣΤΥΦΧΨΩ"},
      {"абвгдеёжзийклмнопрстуфхцчшщъыьэюя", "АБВГДЕЁЖЗИЙКЛМНОПРСТУФХЦЧШЩЪЫЬЭЮЯ"},
      {"ⅰⅱⅲⅳⅴⅵⅶⅷⅸⅹ", "ⅠⅡⅢⅣⅤⅥⅦⅧⅨⅩ"},
      {"map50000.set", "MAP50000.SET"},
      {"表示ｱ_a1", "表示ｱ_A1"},
  };
  for (const Case_row& row : rows) {
    EXPECT_EQ(fold_case(row.capital), row.small);
    EXPECT_EQ(fold_case(row.small), row.small);
    EXPECT_EQ(upper_case(row.small), row.capital);
    EXPECT_EQ(upper_case(row.capital), row.capital);
  }
}

TEST(Text_case, LeavesEverythingElseAlone) {
  for (const char* text : {"@[`{", "＠［｀｛", "０９", "あア漢字", "ς", "ⅪⅫ", "éÉ", "ѐ", "\xF0\x9F\x98\x80", "─│"}) {
    EXPECT_EQ(fold_case(text), text);
    EXPECT_EQ(upper_case(text), text);
  }
}

TEST(Text_case, LeavesBytesThatAreNoUtf8Alone) {
  for (const std::string text :
       {"\xff", "\xce", "\xef\xbc", "\xb1\xb2", "\xce\xce\xb1x", "\xef\xbcz", "\xed\xa0\x80"}) {
    EXPECT_EQ(fold_case(text), text);
  }
  EXPECT_EQ(fold_case("\xce"
                      "A"),
            "\xce"
            "a");
  EXPECT_EQ(fold_case(std::string("A\0B", 3)), std::string("a\0b", 3));
}

TEST(Text_case, ComparesNames) {
  EXPECT_TRUE(same_name("Settei.INI", "settei.ini"));
  EXPECT_TRUE(same_name("Ａα", "ａΑ"));
  EXPECT_FALSE(same_name("A", "Ａ"));
  EXPECT_FALSE(same_name("か", "カ"));
  EXPECT_FALSE(same_name("a", "ab"));
  EXPECT_TRUE(same_name("", ""));
}

}  // namespace
