// Byte-for-byte comparison with a file of tests/golden; the first difference is shown as hex and text.
#pragma once

#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <string>

#include "support/places.h"

namespace support {

inline std::string bytes_of(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return {std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>()};
}

inline std::string hex_and_text(const std::string& bytes, std::size_t from) {
  std::string hex, text;
  for (std::size_t i = from; i < bytes.size() && i < from + 24; ++i) {
    char pair[4];
    const auto byte = static_cast<unsigned char>(bytes[i]);
    std::snprintf(pair, sizeof pair, "%02x ", byte);
    hex += pair;
    text += byte >= 0x20 && byte < 0x7f ? static_cast<char>(byte) : '.';
  }
  return hex + " |" + text + "|";
}

inline ::testing::AssertionResult same_bytes(const std::string& got, const std::string& want) {
  std::size_t at = 0;
  while (at < got.size() && at < want.size() && got[at] == want[at]) ++at;
  if (at == got.size() && at == want.size()) return ::testing::AssertionSuccess();
  return ::testing::AssertionFailure() << "first difference at byte " << at << " (sizes " << got.size() << ", "
                                       << want.size() << ")\n  got  " << hex_and_text(got, at) << "\n  want "
                                       << hex_and_text(want, at);
}

// `name` is the file below tests/golden. A missing golden file fails.
inline ::testing::AssertionResult same_as_golden(const std::string& got, const std::string& name) {
  const std::string path = golden_file(name);
  std::ifstream in(path, std::ios::binary);
  if (!in) return ::testing::AssertionFailure() << "no golden file " << path;
  return same_bytes(got, bytes_of(path));
}

}  // namespace support
