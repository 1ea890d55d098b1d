#include "exchange/byte_block.h"

#include <algorithm>
#include <bit>

namespace exchange {
namespace {

void grow(std::string& block, std::size_t end) {
  block.resize(std::max(block.size(), end), '\0');
}

void put_little(std::string& block, std::size_t offset, std::uint64_t value, std::size_t count) {
  grow(block, offset + count);
  for (std::size_t i = 0; i < count; ++i, value >>= 8) block[offset + i] = static_cast<char>(value & 0xff);
}

void put_big(std::string& block, std::size_t offset, std::uint32_t value, std::size_t count) {
  grow(block, offset + count);
  for (std::size_t i = count; i > 0; --i, value >>= 8) block[offset + i - 1] = static_cast<char>(value & 0xff);
}

}  // namespace

void put_big_32(std::string& block, std::size_t offset, std::uint32_t value) {
  put_big(block, offset, value, 4);
}

void put_little_32(std::string& block, std::size_t offset, std::uint32_t value) {
  put_little(block, offset, value, 4);
}

void put_little_16(std::string& block, std::size_t offset, std::uint16_t value) {
  put_little(block, offset, value, 2);
}

void put_big_low_16(std::string& block, std::size_t offset, std::uint16_t value) {
  put_big(block, offset + 2, value, 2);
}

void put_little_low_16(std::string& block, std::size_t offset, std::uint16_t value) {
  grow(block, offset + 4);
  put_little(block, offset, value, 2);
}

void put_double(std::string& block, std::size_t offset, double value) {
  put_little(block, offset, std::bit_cast<std::uint64_t>(value), 8);
}

void put_byte(std::string& block, std::size_t offset, std::uint8_t value) {
  put_little(block, offset, value, 1);
}

void put_text(std::string& block, std::size_t offset, std::string_view bytes) {
  grow(block, offset + bytes.size());
  std::copy(bytes.begin(), bytes.end(), block.begin() + static_cast<std::ptrdiff_t>(offset));
}

void put_zeros(std::string& block, std::size_t offset, std::size_t count) {
  put_text(block, offset, std::string(count, '\0'));
}

}  // namespace exchange
