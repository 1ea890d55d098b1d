#include "platform/code_page_932.h"

#include <gtest/gtest.h>

#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

#include "support/golden.h"
#include "support/temporary_folder.h"

using platform::characters_without_code;
using platform::decode_932;
using platform::encode_932;
using platform::length_932;
using platform::Unmapped_byte;

namespace {

const std::string unknown = "\xEF\xBF\xBD";

std::string code_bytes(int code) {
  std::string bytes;
  if (code > 0xFF) bytes += static_cast<char>(code >> 8);
  return bytes + static_cast<char>(code & 0xFF);
}

std::vector<int> offsets_of(const std::vector<Unmapped_byte>& unmapped) {
  std::vector<int> offsets;
  for (const Unmapped_byte& entry : unmapped) offsets.push_back(static_cast<int>(entry.offset));
  return offsets;
}

// Bytes as the decoder parts them: a double-byte code, or one byte.
std::vector<int> codes_of(const std::string& bytes) {
  std::vector<int> codes;
  for (std::size_t i = 0; i < bytes.size(); ++i) {
    const int first = static_cast<unsigned char>(bytes[i]);
    const int second = i + 1 < bytes.size() ? static_cast<unsigned char>(bytes[i + 1]) : 0;
    const bool lead = (first >= 0x81 && first <= 0x9F) || (first >= 0xE0 && first <= 0xFC);
    const bool two = lead && second >= 0x40 && second <= 0xFC && second != 0x7F;
    codes.push_back(two ? first << 8 | second : first);
    if (two) ++i;
  }
  return codes;
}

// Every double-byte code with its character, as iconv decodes it; empty without iconv.
std::map<int, std::string> codes_of_iconv() {
  const support::Temporary_folder folder;
  const std::string in = (folder.path() / "in").string();
  const std::string out = (folder.path() / "out").string();
  {
    std::ofstream file(in, std::ios::binary);
    for (int lead = 0x81; lead <= 0xFC; ++lead)
      for (int trail = 0x40; trail <= 0xFC; ++trail)
        if ((lead <= 0x9F || lead >= 0xE0) && trail != 0x7F) file << code_bytes(lead << 8 | trail) << '\n';
  }
  // -c leaves out what has no character: both bytes of a code, or the first only, and then the second is a character of
  // one byte, which no double-byte code has.
  const std::string command = "iconv -c -f CP932 -t UTF-8 '" + in + "' > '" + out + "' 2>/dev/null";
  const int ended = std::system(command.c_str());
  const std::string text = support::bytes_of(out);
  if (ended == -1 || text.empty()) return {};
  std::map<int, std::string> codes;
  std::size_t at = 0;
  for (int lead = 0x81; lead <= 0xFC; ++lead)
    for (int trail = 0x40; trail <= 0xFC; ++trail) {
      if ((lead > 0x9F && lead < 0xE0) || trail == 0x7F) continue;
      const std::size_t end = text.find('\n', at);
      if (end == std::string::npos) return {};
      const std::string character = text.substr(at, end - at);
      const bool of_one_byte = character.size() == 1 || (character >= "｡" && character <= "ﾟ") || character == "\u0080";
      if (!character.empty() && !of_one_byte) codes[lead << 8 | trail] = character;
      at = end + 1;
    }
  return codes;
}

struct Code_row {
  int code;
  const char* character;
};

TEST(Code_page_932, HasItsFixedPoints) {
  const std::vector<Code_row> rows{
      {0x5C, "\\"},       {0x7E, "~"},        {0x1A, "\x1a"},     {0x1C, "\x1c"},     {0x7F, "\x7f"},
      {0x80, "\u0080"},   {0xA0, "\uF8F0"},   {0xA1, "｡"},        {0xB1, "ｱ"},        {0xDF, "ﾟ"},
      {0xFD, "\uF8F1"},   {0xFE, "\uF8F2"},   {0xFF, "\uF8F3"},   {0x8140, "　"},     {0x815C, "\u2015"},
      {0x8160, "\uFF5E"}, {0x8161, "\u2225"}, {0x817C, "\uFF0D"}, {0x8191, "\uFFE0"}, {0x82A0, "あ"},
      {0x8740, "①"},      {0x878A, "㈱"},     {0x889F, "亜"},     {0x9FFC, "滌"},     {0xE040, "漾"},
      {0xEAA4, "熙"},     {0xFBFC, "髙"},     {0xFAB1, "﨑"},     {0xFC4B, "黑"},     {0xF040, "\uE000"},
      {0xF07E, "\uE03E"}, {0xF080, "\uE03F"}, {0xF0FC, "\uE0BB"}, {0xF140, "\uE0BC"}, {0xF9FC, "\uE757"},
  };
  for (const Code_row& row : rows) {
    EXPECT_EQ(decode_932(code_bytes(row.code)), row.character) << std::hex << row.code;
    EXPECT_EQ(encode_932(row.character), code_bytes(row.code)) << std::hex << row.code;
  }
}

TEST(Code_page_932, HasTheNumberOfCodesAndDuplicatesOfThePlatform) {
  int codes = 0, user_codes = 0;
  std::map<std::string, int> characters;
  for (int code = 0x8140; code <= 0xFCFC; ++code) {
    if (codes_of(code_bytes(code)).size() != 1) continue;
    std::vector<Unmapped_byte> unmapped;
    const std::string character = decode_932(code_bytes(code), &unmapped);
    if (!unmapped.empty()) continue;
    ++codes;
    ++characters[character];
    if (code >= 0xF040 && code <= 0xF9FC) ++user_codes;
  }
  int duplicates = 0;
  for (const auto& [character, count] : characters) duplicates += count > 1 ? 1 : 0;
  EXPECT_EQ(codes, 9604);
  EXPECT_EQ(user_codes, 1880);
  EXPECT_EQ(duplicates, 396);
}

TEST(Code_page_932, IsWhatIconvMakesOfEveryDoubleByteCode) {
  const std::map<int, std::string> expected = codes_of_iconv();
  if (expected.empty()) GTEST_SKIP() << "no iconv that knows CP932 on this machine";
  EXPECT_EQ(expected.size(), 9604U);
  for (int code = 0x8140; code <= 0xFCFC; ++code) {
    if (codes_of(code_bytes(code)).size() != 1) continue;
    const auto entry = expected.find(code);
    EXPECT_EQ(decode_932(code_bytes(code)), entry == expected.end() ? unknown + unknown : entry->second)
        << std::hex << code;
  }
}

TEST(Code_page_932, EncodesToTheSmallestCodeOutsideTheSecondChoiceRows) {
  const std::map<int, std::string> codes = codes_of_iconv();
  if (codes.empty()) GTEST_SKIP() << "no iconv that knows CP932 on this machine";
  std::map<std::string, int> choice;  // the codes come in rising order
  for (const auto& [code, character] : codes)
    if (code < 0xED40 || code > 0xEEFC) choice.try_emplace(character, code);
  for (const auto& [code, character] : codes) choice.try_emplace(character, code);
  for (const auto& [character, code] : choice) EXPECT_EQ(encode_932(character), code_bytes(code)) << character;
}

TEST(Code_page_932, EncodesDuplicatesAsThePlatformDoes) {
  const std::vector<std::pair<const char*, std::vector<int>>> rows{
      {"￢", {0x81CA, 0xEEF9, 0xFA54}}, {"∵", {0x81E6, 0x879A, 0xFA5B}}, {"∪", {0x81BE, 0x879C}},
      {"Ⅰ", {0x8754, 0xFA4A}},          {"ⅰ", {0xFA40, 0xEEEF}},         {"﨑", {0xFAB1, 0xED95}},
      {"髙", {0xFBFC, 0xEEE0}},
  };
  for (const auto& [character, codes] : rows) {
    for (const int code : codes) EXPECT_EQ(decode_932(code_bytes(code)), character) << std::hex << code;
    EXPECT_EQ(encode_932(character), code_bytes(codes.front())) << character;
  }
}

TEST(Code_page_932, TakesWhatOtherInputMethodsType) {
  EXPECT_EQ(encode_932("\u301C"), "\x81\x60");
  EXPECT_EQ(encode_932("\u2212"), "\x81\x7C");
  EXPECT_EQ(encode_932("\u2016"), "\x81\x61");
  EXPECT_EQ(encode_932("\u00A5"), "\x5C");
  EXPECT_EQ(characters_without_code("\u301C\u2212\u2016\u00A5"), "");
}

TEST(Code_page_932, NotesBytesWithoutACharacter) {
  std::vector<Unmapped_byte> unmapped;
  EXPECT_EQ(decode_932("a\x81", &unmapped), "a" + unknown);  // a lead byte at the end
  EXPECT_EQ(offsets_of(unmapped), (std::vector<int>{1}));
  EXPECT_EQ(unmapped[0].byte, 0x81);
  EXPECT_EQ(decode_932("\x81\r\n", &unmapped), unknown + "\r\n");  // a lead byte alone leaves the line end
  EXPECT_EQ(offsets_of(unmapped), (std::vector<int>{0}));
  EXPECT_EQ(decode_932("\x81,\x81\"", &unmapped), unknown + "," + unknown + "\"");
  EXPECT_EQ(offsets_of(unmapped), (std::vector<int>{0, 4}));
  EXPECT_EQ(decode_932("\x85\x40z", &unmapped), unknown + unknown + "z");  // a code that has no character
  EXPECT_EQ(offsets_of(unmapped), (std::vector<int>{0, 3}));
  EXPECT_EQ(unmapped[1].byte, 0x40);
  EXPECT_EQ(decode_932("\x95\x5c", &unmapped), "表");
  EXPECT_TRUE(unmapped.empty());
}

TEST(Code_page_932, GivesUnmappedBytesBack) {
  for (const std::string bytes : {"a\x81", "\x81\r\n", "\x85\x40z", "\x81,\xfc\xfc\x81", "\xef\x81\xa0\x80\xff\x9f"}) {
    std::vector<Unmapped_byte> unmapped;
    const std::string text = decode_932(bytes, &unmapped);
    EXPECT_TRUE(support::same_bytes(encode_932(text, &unmapped), bytes));
  }
  // Without the list, or where it tells of another place, a "?" stands.
  const std::vector<Unmapped_byte> elsewhere{{1, 0x81}, {7, 0x82}};
  EXPECT_EQ(encode_932(unknown), "?");
  EXPECT_EQ(encode_932(unknown, &elsewhere), "?");
  EXPECT_EQ(encode_932("abc", &elsewhere), "abc");
}

TEST(Code_page_932, WritesAQuestionMarkForWhatHasNoCode) {
  EXPECT_EQ(encode_932("a\u00E9b"), "a?b");
  EXPECT_EQ(encode_932("\xF0\x9F\x98\x80"), "?");
  EXPECT_EQ(encode_932("\u9AD9x"), "\xFB\xFCx");
  EXPECT_EQ(encode_932("\uE758"), "?");
  EXPECT_EQ(encode_932(std::string("\0", 1)), std::string("\0", 1));
  // Bytes that are no UTF-8: each is one "?".
  EXPECT_EQ(encode_932("\xff"), "?");
  EXPECT_EQ(encode_932("\xe8\xa1"), "??");
  EXPECT_EQ(encode_932("\xe8\xa1z"), "??z");
  EXPECT_EQ(encode_932("\xc0\xaf"), "??");  // an overlong form
  EXPECT_EQ(encode_932("\xe0\x80\xaf"), "???");
  EXPECT_EQ(encode_932("\xed\xa0\x80"), "???");       // half of a surrogate pair
  EXPECT_EQ(encode_932("\xf4\x90\x80\x80"), "????");  // beyond the last character
}

TEST(Code_page_932, NamesTheCharactersWithoutCodeOnceEach) {
  EXPECT_EQ(characters_without_code(""), "");
  EXPECT_EQ(characters_without_code("表示 abc ｱ ① \\"), "");
  EXPECT_EQ(characters_without_code("aéb表é☃\xF0\x9F\x98\x80é"), "é☃\xF0\x9F\x98\x80");
  EXPECT_EQ(characters_without_code("\xff\xfe"), unknown);
  EXPECT_EQ(characters_without_code(std::string("\0", 1)), "");
}

TEST(Code_page_932, TellsTheLengthInBytes) {
  for (const char* text : {"", "abc", "表示", "ｱｲｳ", "a表ｱ①", "é", "\xF0\x9F\x98\x80", "\xe8\xa1", "\u301C\u00A5"})
    EXPECT_EQ(length_932(text), encode_932(text).size()) << text;
  EXPECT_EQ(length_932("a表ｱ"), 4U);
}

TEST(Code_page_932, DecodesTheSameAtEveryPlaceOfALongText) {
  const std::string unit = "Map 5339-45,表示ｱ①\r\n";
  const std::string bytes = encode_932(unit);
  std::string all, expected;
  for (int i = 0; i < 5000; ++i) {
    all += bytes;
    expected += unit;
    if (i % 7 == 0) all += 'x', expected += 'x';
  }
  EXPECT_TRUE(decode_932(all) == expected);
  EXPECT_TRUE(encode_932(expected) == all);
}

// What holds of any bytes b: their text, written and read again, is the same text with the same unmapped bytes; and
// the bytes written are b itself but that a second or third code of a character becomes its first.
void check_round_trip(const std::string& bytes, const std::map<int, int>& first_codes) {
  std::vector<Unmapped_byte> unmapped, again;
  const std::string text = decode_932(bytes, &unmapped);
  const std::string written = encode_932(text, &unmapped);
  std::string expected;
  for (const int code : codes_of(bytes)) {
    const auto first = first_codes.find(code);
    expected += code_bytes(first == first_codes.end() ? code : first->second);
  }
  ASSERT_TRUE(support::same_bytes(written, expected));
  ASSERT_EQ(decode_932(written, &again), text);
  ASSERT_EQ(offsets_of(again), offsets_of(unmapped));
}

// Every code that isn't the one that its character is encoded to, with that one.
std::map<int, int> first_codes() {
  std::map<int, int> first;
  for (int code = 0x8140; code <= 0xFCFC; ++code) {
    if (codes_of(code_bytes(code)).size() != 1) continue;
    std::vector<Unmapped_byte> unmapped;
    const std::string character = decode_932(code_bytes(code), &unmapped);
    const std::string bytes = encode_932(character, &unmapped);
    if (bytes != code_bytes(code)) first[code] = codes_of(bytes).front();
  }
  return first;
}

TEST(Code_page_932, RestoresEveryOneAndTwoByteSequence) {
  const std::map<int, int> first = first_codes();
  EXPECT_EQ(first.size(), 398U);  // 394 characters with two codes, 2 with three
  for (int a = 0; a < 0x100; ++a) {
    check_round_trip(std::string(1, static_cast<char>(a)), first);
    for (int b = 0; b < 0x100; ++b) check_round_trip({static_cast<char>(a), static_cast<char>(b)}, first);
  }
}

TEST(Code_page_932, RestoresRandomBytes) {
  const std::map<int, int> first = first_codes();
  std::mt19937 random(932);
  for (int i = 0; i < 2000; ++i) {
    std::string bytes(random() % 300, '\0');
    for (char& byte : bytes) byte = static_cast<char>(random() % (i % 2 ? 256 : 128) + (i % 4 == 2 ? 128 : 0));
    check_round_trip(bytes, first);
  }
}

}  // namespace
