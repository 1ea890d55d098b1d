// What tells one content of a file from another: whether there is a file, its length and a hash of 128 bits. Good
// against accident, not against forgery.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace platform {

// MurmurHash3_x64_128 (A. Appleby, published in the public domain), the same on every machine.
std::array<std::uint64_t, 2> hash_128(std::string_view bytes, std::uint32_t seed = 0);

// A file's bytes, or none where there is no file.
using Contents = std::optional<std::string>;

struct Content_stamp {
  bool exists = false;
  std::uint64_t length = 0;
  std::array<std::uint64_t, 2> hash{};

  bool operator==(const Content_stamp&) const = default;
};

Content_stamp stamp_of(std::string_view bytes);
// No file: all zero.
Content_stamp stamp_of(const Contents& contents);

}  // namespace platform
