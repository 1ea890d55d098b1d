#include "platform/text_case.h"

#include <array>

#include "platform/utf8.h"

namespace platform {
namespace {

// A run of capital letters, and how far behind each its small letter stands. Both letters of a pair take the same
// number of bytes, so names of different lengths are never the same.
struct Case_run {
  char32_t first;
  char32_t last;
  char32_t distance;
};

constexpr std::array<Case_run, 6> case_runs{{
    {0x0391, 0x03A9, 0x20},  // Greek; 03A2 is no letter, see below
    {0x0401, 0x0401, 0x50},  // Cyrillic Yo
    {0x0410, 0x042F, 0x20},  // Cyrillic
    {0x2160, 0x2169, 0x10},  // Roman numerals one to ten
    {0xFF21, 0xFF3A, 0x20},  // full-width Latin
    {0x0041, 0x005A, 0x20},  // ASCII
}};

// 03C2 is the small sigma at the end of a word; no code has its capital.
constexpr char32_t no_letter = 0x03A2;

char32_t small(char32_t c) {
  for (const Case_run& run : case_runs)
    if (c >= run.first && c <= run.last && c != no_letter) return c + run.distance;
  return c;
}

char32_t capital(char32_t c) {
  for (const Case_run& run : case_runs) {
    const char32_t upper = c - run.distance;
    if (c > run.distance && upper >= run.first && upper <= run.last && upper != no_letter) return upper;
  }
  return c;
}

// Bytes that are no UTF-8 stay as they are.
template <typename Change>
std::string changed(std::string_view text, Change change) {
  std::string result;
  result.reserve(text.size());
  for (std::size_t at = 0; at < text.size();) {
    const Utf8_character character = character_at(text, at);
    if (character.code == replacement_character)
      result += text.substr(at, character.length);
    else
      append_character(result, change(character.code));
    at += character.length;
  }
  return result;
}

}  // namespace

std::string fold_case(std::string_view text) {
  return changed(text, small);
}
std::string upper_case(std::string_view text) {
  return changed(text, capital);
}

bool same_name(std::string_view a, std::string_view b) {
  return a.size() == b.size() && (a == b || fold_case(a) == fold_case(b));
}

}  // namespace platform
