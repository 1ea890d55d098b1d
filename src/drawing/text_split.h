// Splitting of record lines and cuts by bytes of the system's code page.
#pragma once

#include <span>
#include <string>
#include <string_view>

namespace drawing {

// The fields that the callers keep when they split a line of a settings file or table.
inline constexpr int settings_fields = 50;

// Splits at every comma; a quote is no more than a character. `fields` is the caller's fixed array: field 1 goes to
// fields[0]; what doesn't fit is dropped, what is left over is emptied. Returns the number of pieces of the line, which
// can be larger than the array. An empty text is one empty field.
int split_csv(std::string_view line, std::span<std::string> fields);
// The same at every blank; blanks in a row give empty fields.
int split_blank(std::string_view line, std::span<std::string> fields);

// Length of a text in bytes of code page 932.
int len_bytes(std::string_view text);
// Cut by bytes of code page 932: `start` counts from 1; a double-byte character that a cut would halve comes out as
// the platform decodes its half.
std::string mid_bytes(std::string_view text, int start, int length);

// The text between "<tag>" and "</tag>", sought from byte `start` (0-based) of the text; empty when either is missing.
// `end` receives the offset behind the closing tag.
std::string xml_tag(std::string_view text, std::string_view tag, std::size_t start, std::size_t* end = nullptr);

}  // namespace drawing
