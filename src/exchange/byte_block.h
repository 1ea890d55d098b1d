// Fields of binary files. A block is the content of a file; a field is put at its offset from 0, the block grows to
// hold the field's whole width with zeros, and bytes that no field covers stay as they are.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>

namespace exchange {

void put_big_32(std::string& block, std::size_t offset, std::uint32_t value);
void put_little_32(std::string& block, std::size_t offset, std::uint32_t value);
void put_little_16(std::string& block, std::size_t offset, std::uint16_t value);
// A 16-bit value in the place of a 32-bit one: the lower two bytes are set, the upper two stay.
void put_big_low_16(std::string& block, std::size_t offset, std::uint16_t value);
void put_little_low_16(std::string& block, std::size_t offset, std::uint16_t value);
void put_double(std::string& block, std::size_t offset, double value);  // IEEE 754, little-endian
void put_byte(std::string& block, std::size_t offset, std::uint8_t value);
void put_text(std::string& block, std::size_t offset, std::string_view bytes);
void put_zeros(std::string& block, std::size_t offset, std::size_t count);

}  // namespace exchange
