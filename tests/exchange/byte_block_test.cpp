#include "exchange/byte_block.h"

#include <gtest/gtest.h>

using namespace std::string_literals;

TEST(Byte_block, PutsEachFieldInItsByteOrder) {
  std::string block;
  exchange::put_big_32(block, 0, 0x01020304);
  exchange::put_little_32(block, 4, 0x01020304);
  exchange::put_little_16(block, 8, 0x0506);
  exchange::put_double(block, 10, 1.0);
  EXPECT_EQ(block, "\x01\x02\x03\x04\x04\x03\x02\x01\x06\x05\0\0\0\0\0\0\xf0\x3f"s);
}

TEST(Byte_block, LeavesTheUpperHalfOfAFieldThatA16BitValueGoesInto) {
  std::string block = "\xff\xff\xff\xff\xff\xff\xff\xff"s;
  exchange::put_big_low_16(block, 0, 0x0102);
  exchange::put_little_low_16(block, 4, 0x0304);
  EXPECT_EQ(block, "\xff\xff\x01\x02\x04\x03\xff\xff"s);
}

TEST(Byte_block, GrowsWithZerosToTheWholeFieldAndNeverShrinks) {
  std::string block;
  exchange::put_little_low_16(block, 2, 1);
  EXPECT_EQ(block, "\0\0\1\0\0\0"s);
  exchange::put_byte(block, 0, 7);
  exchange::put_text(block, 4, "ab");
  exchange::put_zeros(block, 2, 1);
  EXPECT_EQ(block, "\7\0\0\0ab"s);
}
