#include "platform/code_page_932.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <memory>

#include "platform/utf8.h"

namespace platform {
namespace {

constexpr int trails = 188;  // trail bytes 40-7E and 80-FC

struct Lead_row {
  std::uint8_t lead;
  std::array<char16_t, trails> units;
};

// The double-byte codes outside the user area.
constexpr Lead_row lead_rows[] = {
#include "code_page_932_table.inc"
};

// The user area F040-F9FC is U+E000-U+E757, in order.
constexpr int first_user_lead = 0xF0;
constexpr int last_user_lead = 0xF9;
constexpr char16_t first_user_character = 0xE000;

// What the input methods of other systems type in the place of the code page's own characters.
struct Accepted {
  char16_t character;
  std::uint16_t code;
};
constexpr Accepted accepted[] = {
    {0x301C, 0x8160},  // wave dash
    {0x2212, 0x817C},  // minus sign
    {0x2016, 0x8161},  // double vertical line
    {0x00A5, 0x005C},  // yen sign
};

constexpr int trail_byte(int index) {
  return index < 63 ? 0x40 + index : 0x41 + index;
}
constexpr bool is_lead(unsigned byte) {
  return (byte >= 0x81 && byte <= 0x9F) || (byte >= 0xE0 && byte <= 0xFC);
}
constexpr bool is_trail(unsigned byte) {
  return byte >= 0x40 && byte <= 0xFC && byte != 0x7F;
}

// The character of a byte that is a code by itself; 0 for lead bytes (and for the byte 0).
constexpr char16_t single(unsigned byte) {
  if (byte <= 0x80) return static_cast<char16_t>(byte);
  if (byte == 0xA0) return 0xF8F0;
  if (byte >= 0xA1 && byte <= 0xDF) return static_cast<char16_t>(0xFF61 + (byte - 0xA1));
  if (byte >= 0xFD) return static_cast<char16_t>(0xF8F1 + (byte - 0xFD));
  return 0;
}

// A character's UTF-8, ready to be copied as four bytes of which `length` count. length 0: no character.
struct Utf8 {
  std::array<char, 3> bytes{};
  std::uint8_t length = 0;
};

Utf8 utf8_of(char16_t c) {
  const auto byte = [](int value) { return static_cast<char>(value); };
  if (c < 0x80) return {{byte(c)}, 1};
  if (c < 0x800) return {{byte(0xC0 | c >> 6), byte(0x80 | (c & 0x3F))}, 2};
  return {{byte(0xE0 | c >> 12), byte(0x80 | (c >> 6 & 0x3F)), byte(0x80 | (c & 0x3F))}, 3};
}

// Both directions, indexed for speed. Decoding: a row of 256 trail bytes for each lead byte from 80 on; row 0 holds
// the single bytes.
struct Tables {
  std::array<std::array<Utf8, 256>, 128> decode{};
  std::array<std::uint16_t, 65536> encode{};  // 0: no code (the byte 0 is told apart by its character)
};

// Of a character's several codes the smallest outside ED40-EEFC counts.
void add_code(Tables& tables, char16_t character, int code) {
  if (character == 0) return;
  const Utf8 utf8 = utf8_of(character);
  if (code > 0xFF)
    tables.decode[static_cast<std::size_t>((code >> 8) - 0x80)][static_cast<std::size_t>(code & 0xFF)] = utf8;
  else
    tables.decode[0][static_cast<std::size_t>(code)] = utf8;
  std::uint16_t& known = tables.encode[character];
  const bool second_choice = code >= 0xED40 && code <= 0xEEFC;
  if (known == 0 || (!second_choice && (code < known || (known >= 0xED40 && known <= 0xEEFC))))
    known = static_cast<std::uint16_t>(code);
}

std::unique_ptr<const Tables> make_tables() {
  auto tables = std::make_unique<Tables>();
  for (int byte = 0; byte < 0x100; ++byte) add_code(*tables, single(static_cast<unsigned>(byte)), byte);
  tables->decode[0][0] = utf8_of(0);
  for (const Lead_row& row : lead_rows)
    for (int i = 0; i < trails; ++i)
      add_code(*tables, row.units[static_cast<std::size_t>(i)], row.lead << 8 | trail_byte(i));
  for (int lead = first_user_lead; lead <= last_user_lead; ++lead)
    for (int i = 0; i < trails; ++i)
      add_code(*tables, static_cast<char16_t>(first_user_character + (lead - first_user_lead) * trails + i),
               lead << 8 | trail_byte(i));
  for (const Accepted& entry : accepted) tables->encode[entry.character] = entry.code;
  return tables;
}

const Tables& tables() {
  static const std::unique_ptr<const Tables> made = make_tables();
  return *made;
}

// The bytes are decoded piece by piece into a block on the stack that has room for whatever a piece can become, so the
// inner loops test no bounds. A byte becomes three at most, and copies are made four or eight bytes wide.
constexpr std::size_t piece_size = 4096;
constexpr std::size_t widest_copy = 8;
using Block = std::array<char, 3 * piece_size + widest_copy>;

// Copies the ASCII in front, up to `end`, and moves both places behind it.
void put_ascii(const char*& from, const char* end, char*& to) {
  if constexpr (std::endian::native == std::endian::little) {
    while (end - from >= 8) {
      std::uint64_t word = 0;
      std::memcpy(&word, from, 8);
      std::memcpy(to, &word, 8);
      const int ascii = std::countr_zero(word & 0x8080808080808080U) / 8;
      from += ascii;
      to += ascii;
      if (ascii < 8) return;
    }
  }
  while (from < end && static_cast<unsigned char>(*from) < 0x80) *to++ = *from++;
}

void put_unmapped(char byte, std::size_t offset, char*& to, std::vector<Unmapped_byte>* unmapped) {
  if (unmapped) unmapped->push_back({offset, static_cast<std::uint8_t>(byte)});
  std::memcpy(to, "\xEF\xBF\xBD", 3);
  to += 3;
}

// Decodes the bytes from `at` on until a piece is full, and moves `at` behind them. `offset` is where the block will
// stand in the text. Returns the block's length.
std::size_t decode_piece(const Tables& table, std::string_view bytes, std::size_t& at, Block& block, std::size_t offset,
                         std::vector<Unmapped_byte>* unmapped) {
  const char* from = bytes.data() + at;
  const char* const all_end = bytes.data() + bytes.size();
  const char* const end = from + std::min(piece_size - 1, bytes.size() - at);  // a pair may reach one byte beyond
  char* to = block.data();
  while (from < end) {
    const auto first = static_cast<unsigned char>(*from);
    if (first < 0x80) {
      put_ascii(from, end, to);
      continue;
    }
    const bool two = is_lead(first) && from + 1 < all_end && is_trail(static_cast<unsigned char>(from[1]));
    const Utf8& utf8 = two ? table.decode[first - 0x80U][static_cast<unsigned char>(from[1])] : table.decode[0][first];
    std::memcpy(to, &utf8, 4);
    to += utf8.length;
    if (utf8.length == 0)
      for (int i = 0; i <= (two ? 1 : 0); ++i)
        put_unmapped(from[i], offset + static_cast<std::size_t>(to - block.data()), to, unmapped);
    from += two ? 2 : 1;
  }
  at = static_cast<std::size_t>(from - bytes.data());
  return static_cast<std::size_t>(to - block.data());
}

// The code of a character; -1 when there is none.
int code_of(const Tables& table, char32_t character) {
  if (character < 0x80) return static_cast<int>(character);
  if (character > 0xFFFF || table.encode[character] == 0) return -1;
  return table.encode[character];
}

}  // namespace

std::string decode_932(std::string_view bytes, std::vector<Unmapped_byte>* unmapped) {
  const Tables& table = tables();
  if (unmapped) unmapped->clear();
  std::string text;
  if (bytes.size() >= piece_size) text.reserve(bytes.size() + bytes.size() / 2);
  Block block;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t length = decode_piece(table, bytes, at, block, text.size(), unmapped);
    text.append(block.data(), length);
  }
  return text;
}

std::string encode_932(std::string_view text, const std::vector<Unmapped_byte>* unmapped) {
  const Tables& table = tables();
  std::string bytes;
  bytes.reserve(text.size());
  std::size_t next = 0;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8_character character = character_at(text, at);
    while (unmapped && next < unmapped->size() && (*unmapped)[next].offset < at) ++next;
    const bool restored = unmapped && next < unmapped->size() && (*unmapped)[next].offset == at &&
                          character.code == replacement_character && character.length == 3;
    const int code = restored ? (*unmapped)[next].byte : code_of(table, character.code);
    if (code > 0xFF) bytes += static_cast<char>(code >> 8);
    bytes += code < 0 ? '?' : static_cast<char>(code & 0xFF);
    at += character.length;
  }
  return bytes;
}

std::string characters_without_code(std::string_view text) {
  const Tables& table = tables();
  std::string missing;
  std::vector<char32_t> seen;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8_character character = character_at(text, at);
    if (code_of(table, character.code) < 0 && std::find(seen.begin(), seen.end(), character.code) == seen.end()) {
      seen.push_back(character.code);
      append_character(missing, character.code);
    }
    at += character.length;
  }
  return missing;
}

std::size_t length_932(std::string_view text) {
  const Tables& table = tables();
  std::size_t length = 0;
  for (std::size_t at = 0; at < text.size();) {
    const Utf8_character character = character_at(text, at);
    length += code_of(table, character.code) > 0xFF ? 2 : 1;
    at += character.length;
  }
  return length;
}

}  // namespace platform
