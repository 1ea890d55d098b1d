// The names of marks and measured objects. A record holds the name that was shown when it was made, so both languages'
// names are recognised wherever a record is tested.
#pragma once

#include <string_view>

namespace observations {

enum Mark { mark_area = 10, mark_line = 11, mark_word = 12 };
inline constexpr int unknown_name = -1;

// Place of a mark in the list of the panel, 0 to 12; unknown_name for any other text.
int mark_index(std::string_view mark);
// Place of a measured object in its list, 0 to 5 (線構造 / Lineation is 2); unknown_name for any other text.
int taishou_index(std::string_view taishou);

bool is_area(std::string_view mark);  // "範囲", "Area"
bool is_line(std::string_view mark);  // "線", "Line"
bool is_word(std::string_view mark);  // "文字", "Word"
// Marks whose record stands at its first vertex when it is read: lines, and the "囲み" of old files.
bool stands_at_first_vertex(std::string_view mark);

}  // namespace observations
