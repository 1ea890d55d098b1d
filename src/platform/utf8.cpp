#include "platform/utf8.h"

namespace platform {
namespace {

// The byte at which so many characters are passed, or the end of the text.
std::size_t behind_characters(std::string_view text, std::size_t count) {
  std::size_t at = 0;
  for (std::size_t passed = 0; passed < count && at < text.size(); ++passed) at += character_at(text, at).length;
  return at;
}

}  // namespace

Utf8_character character_at(std::string_view text, std::size_t at) {
  const auto byte = [&](std::size_t i) -> char32_t {
    return at + i < text.size() ? static_cast<unsigned char>(text[at + i]) : 0U;
  };
  const auto follows = [&](std::size_t i) { return (byte(i) & 0xC0) == 0x80; };
  const char32_t first = byte(0);
  if (first < 0x80) return {first, 1};
  if (first >= 0xC2 && first < 0xE0 && follows(1)) return {(first & 0x1F) << 6 | (byte(1) & 0x3F), 2};
  if (first >= 0xE0 && first < 0xF0 && follows(1) && follows(2)) {
    const char32_t code = (first & 0x0F) << 12 | (byte(1) & 0x3F) << 6 | (byte(2) & 0x3F);
    if (code >= 0x800 && (code < 0xD800 || code > 0xDFFF)) return {code, 3};
  }
  if (first >= 0xF0 && first < 0xF5 && follows(1) && follows(2) && follows(3)) {
    const char32_t code = (first & 0x07) << 18 | (byte(1) & 0x3F) << 12 | (byte(2) & 0x3F) << 6 | (byte(3) & 0x3F);
    if (code >= 0x10000 && code <= 0x10FFFF) return {code, 4};
  }
  return {};
}

std::size_t character_count(std::string_view text) {
  std::size_t count = 0;
  for (std::size_t at = 0; at < text.size(); ++count) at += character_at(text, at).length;
  return count;
}

std::string_view cut_characters(std::string_view text, std::size_t from, std::size_t count) {
  if (from > 1) text.remove_prefix(behind_characters(text, from - 1));
  return text.substr(0, behind_characters(text, count));
}

void append_character(std::string& text, char32_t code) {
  const auto put = [&](char32_t byte) { text += static_cast<char>(byte); };
  const auto follow = [&](int shift) { put(0x80 | (code >> shift & 0x3F)); };
  if (code < 0x80) {
    put(code);
  } else if (code < 0x800) {
    put(0xC0 | code >> 6);
    follow(0);
  } else if (code < 0x10000) {
    put(0xE0 | code >> 12);
    follow(6);
    follow(0);
  } else {
    put(0xF0 | code >> 18);
    follow(12);
    follow(6);
    follow(0);
  }
}

}  // namespace platform
