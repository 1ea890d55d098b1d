// Code page 932, exact in both directions. The tables are data (code_page_932_table.inc), made by
// tools/make_code_page_932.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace platform {

// A byte that maps to nothing: where its U+FFFD stands in the decoded text (offset in bytes), and the byte itself.
struct Unmapped_byte {
  std::size_t offset = 0;
  std::uint8_t byte = 0;
};

// Bytes to UTF-8. A byte that maps to nothing (a lone lead byte too) becomes U+FFFD and is noted in `unmapped`.
std::string decode_932(std::string_view bytes, std::vector<Unmapped_byte>* unmapped = nullptr);

// UTF-8 to bytes. A character without a code becomes "?"; with `unmapped` from the decoding of the same text each
// U+FFFD gets its byte back.
std::string encode_932(std::string_view text, const std::vector<Unmapped_byte>* unmapped = nullptr);

// The characters of a text that have no code, each once, in the order of the text; empty when all have one. An entry
// box asks this before a save and names them.
std::string characters_without_code(std::string_view text);

// Length of the encoded text in bytes.
std::size_t length_932(std::string_view text);

}  // namespace platform
