#include "platform/pictures.h"

#include <gtest/gtest.h>

#include <climits>
#include <cstring>

using platform::make_picture;
using platform::Picture;
using platform::pixel;

namespace {

TEST(Pictures, HaveRowsOfAMultipleOfFourBytes) {
  EXPECT_EQ(make_picture(1, 1, 1).stride, 4);
  EXPECT_EQ(make_picture(32, 1, 1).stride, 4);
  EXPECT_EQ(make_picture(33, 1, 1).stride, 8);
  EXPECT_EQ(make_picture(4, 1, 8).stride, 4);
  EXPECT_EQ(make_picture(5, 1, 8).stride, 8);
  EXPECT_EQ(make_picture(3, 1, 32).stride, 12);
  EXPECT_EQ(make_picture(5, 7, 8).bits.size(), 56U);
}

TEST(Pictures, OfAnImpossibleMeasureAreEmpty) {
  EXPECT_TRUE(make_picture(0, 5, 8).empty());
  EXPECT_TRUE(make_picture(5, -1, 8).empty());
  EXPECT_TRUE(make_picture(5, 5, 24).empty());
  EXPECT_TRUE(make_picture(INT_MAX, INT_MAX, 32).empty());
  EXPECT_TRUE(make_picture(INT_MAX, 1, 32).empty());
  EXPECT_TRUE(make_picture(40000, 40000, 8).empty());
}

TEST(Pictures, TellAPixelOfEachDepth) {
  Picture bits = make_picture(10, 2, 1);
  bits.palette = {0x102030, 0xFFFFFF};
  bits.row(1)[0] = 0x80;  // the leftmost pixel of row 1
  bits.row(1)[1] = 0x40;  // and the tenth
  EXPECT_EQ(pixel(bits, 0, 1), 0xFFFFFFU);
  EXPECT_EQ(pixel(bits, 1, 1), 0x102030U);
  EXPECT_EQ(pixel(bits, 9, 1), 0xFFFFFFU);
  EXPECT_EQ(pixel(bits, 0, 0), 0x102030U);

  Picture indexed = make_picture(3, 1, 8);
  indexed.palette = {0x000001, 0xFF00FF00};
  indexed.row(0)[1] = 1;
  indexed.row(0)[2] = 2;  // beyond the palette
  EXPECT_EQ(pixel(indexed, 0, 0), 0x000001U);
  EXPECT_EQ(pixel(indexed, 1, 0), 0x00FF00U);
  EXPECT_EQ(pixel(indexed, 2, 0), 0U);

  Picture direct = make_picture(2, 1, 32);
  const std::uint32_t word = 0xFF123456;
  std::memcpy(direct.row(0) + 4, &word, 4);
  EXPECT_EQ(pixel(direct, 1, 0), 0x123456U);
  EXPECT_EQ(pixel(direct, 0, 0), 0U);
}

TEST(Pictures, AreBlackOutside) {
  Picture picture = make_picture(1, 1, 8);
  picture.palette = {0xFFFFFF};
  EXPECT_EQ(pixel(picture, 0, 0), 0xFFFFFFU);
  EXPECT_EQ(pixel(picture, -1, 0), 0U);
  EXPECT_EQ(pixel(picture, 1, 0), 0U);
  EXPECT_EQ(pixel(picture, 0, 1), 0U);
  EXPECT_EQ(pixel(Picture{}, 0, 0), 0U);
}

}  // namespace
