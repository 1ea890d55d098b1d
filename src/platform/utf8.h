// The characters of a UTF-8 text, one by one; bytes that are no UTF-8 do no harm.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>

namespace platform {

// Stands for a byte that is no part of a well-formed character.
inline constexpr char32_t replacement_character = 0xFFFD;

struct Utf8_character {
  char32_t code = replacement_character;
  std::size_t length = 1;  // in bytes; a byte that is no UTF-8 is one U+FFFD of length 1
};

// The character that begins at byte `at`, which lies inside the text. Overlong forms, halves of surrogate pairs and
// what lies beyond U+10FFFF are no UTF-8.
Utf8_character character_at(std::string_view text, std::size_t at);

// The number of characters of a text.
std::size_t character_count(std::string_view text);

// `count` characters (or as many as there are) from character `from` on, counted from 1.
std::string_view cut_characters(std::string_view text, std::size_t from, std::size_t count = std::string_view::npos);

// `code` is one that character_at can give.
void append_character(std::string& text, char32_t code);

}  // namespace platform
