#include "platform/content_stamp.h"

#include <bit>
#include <cstring>

namespace platform {
namespace {

constexpr std::uint64_t factor_1 = 0x87c37b91114253d5;
constexpr std::uint64_t factor_2 = 0x4cf5ad432745937f;

std::uint64_t mixed_1(std::uint64_t word) {
  return std::rotl(word * factor_1, 31) * factor_2;
}

std::uint64_t mixed_2(std::uint64_t word) {
  return std::rotl(word * factor_2, 33) * factor_1;
}

std::uint64_t finished(std::uint64_t word) {
  word = (word ^ (word >> 33)) * 0xff51afd7ed558ccd;
  word = (word ^ (word >> 33)) * 0xc4ceb9fe1a85ec53;
  return word ^ (word >> 33);
}

// Up to eight bytes as a number, the first one lowest.
std::uint64_t little_word(const char* bytes, std::size_t count) {
  if constexpr (std::endian::native == std::endian::little) {
    std::uint64_t word = 0;
    std::memcpy(&word, bytes, count);
    return word;
  }
  std::uint64_t word = 0;
  for (std::size_t i = 0; i < count; ++i)
    word |= static_cast<std::uint64_t>(static_cast<unsigned char>(bytes[i])) << (8 * i);
  return word;
}

}  // namespace

std::array<std::uint64_t, 2> hash_128(std::string_view bytes, std::uint32_t seed) {
  std::uint64_t first = seed, second = seed;
  const char* at = bytes.data();
  std::size_t left = bytes.size();
  for (; left >= 16; at += 16, left -= 16) {
    first = (std::rotl(first ^ mixed_1(little_word(at, 8)), 27) + second) * 5 + 0x52dce729;
    second = (std::rotl(second ^ mixed_2(little_word(at + 8, 8)), 31) + first) * 5 + 0x38495ab5;
  }
  if (left > 8) second ^= mixed_2(little_word(at + 8, left - 8));
  if (left > 0) first ^= mixed_1(little_word(at, left < 8 ? left : 8));
  first ^= bytes.size();
  second ^= bytes.size();
  first += second;
  second += first;
  first = finished(first);
  second = finished(second);
  first += second;
  second += first;
  return {first, second};
}

Content_stamp stamp_of(std::string_view bytes) {
  return {true, bytes.size(), hash_128(bytes)};
}

Content_stamp stamp_of(const Contents& contents) {
  return contents ? stamp_of(std::string_view(*contents)) : Content_stamp{};
}

}  // namespace platform
