#include "platform/utf8.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

using platform::append_character;
using platform::character_at;
using platform::replacement_character;

namespace {

struct Character_row {
  const char* text;
  char32_t code;
  std::size_t length;
};

TEST(Utf8, ReadsAndWritesCharactersOfEachLength) {
  // The first and the last of each length, from the table of the encoding's standard.
  const std::vector<Character_row> rows{
      {"a", 0x61, 1},
      {"\x7f", 0x7F, 1},
      {"\xc2\x80", 0x80, 2},
      {"\xdf\xbf", 0x7FF, 2},
      {"\xe0\xa0\x80", 0x800, 3},
      {"\xe8\xa1\xa8", 0x8868, 3},
      {"\xed\x9f\xbf", 0xD7FF, 3},
      {"\xee\x80\x80", 0xE000, 3},
      {"\xef\xbf\xbf", 0xFFFF, 3},
      {"\xf0\x90\x80\x80", 0x10000, 4},
      {"\xf0\x9f\x98\x80", 0x1F600, 4},
      {"\xf4\x8f\xbf\xbf", 0x10FFFF, 4},
  };
  for (const Character_row& row : rows) {
    const auto character = character_at(std::string(row.text) + "\x80z", 0);
    EXPECT_EQ(character.code, row.code);
    EXPECT_EQ(character.length, row.length);
    std::string written = "x";
    append_character(written, row.code);
    EXPECT_EQ(written, std::string("x") + row.text);
  }
  EXPECT_EQ(character_at(std::string(1, '\0'), 0).code, 0U);
}

TEST(Utf8, CountsABrokenByteAsOne) {
  for (const char* text : {"\x80", "\xbf", "\xc0\x80", "\xc1\xbf", "\xc2", "\xc2z", "\xe0\x80\x80", "\xe0\x9f\xbf",
                           "\xe8\xa1", "\xe8z\xa8", "\xed\xa0\x80", "\xed\xbf\xbf", "\xf0\x80\x80\x80", "\xf0\x9f\x98",
                           "\xf4\x90\x80\x80", "\xf5\x80\x80\x80", "\xff"}) {
    EXPECT_EQ(character_at(text, 0).code, replacement_character);
    EXPECT_EQ(character_at(text, 0).length, 1U);
  }
}

TEST(Utf8, CountsCharacters) {
  EXPECT_EQ(platform::character_count(""), 0U);
  EXPECT_EQ(platform::character_count("a地図😀"), 4U);
  EXPECT_EQ(platform::character_count("\xE5\x9C"), 2U);  // a cut character: each byte for itself
}

TEST(Utf8, CutsByCharactersCountedFromOne) {
  EXPECT_EQ(platform::cut_characters("a地図b", 2, 2), "地図");
  EXPECT_EQ(platform::cut_characters("a地図b", 1, 1), "a");
  EXPECT_EQ(platform::cut_characters("a地図b", 3), "図b");
  EXPECT_EQ(platform::cut_characters("a地図b", 4, 99), "b");
  EXPECT_EQ(platform::cut_characters("a地図b", 5, 1), "");
  EXPECT_EQ(platform::cut_characters("a地図b", 99), "");
  EXPECT_EQ(platform::cut_characters("", 1), "");
  EXPECT_EQ(platform::cut_characters("a地図b", 2, 0), "");
}

}  // namespace
