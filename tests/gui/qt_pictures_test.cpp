#include "platform/qt/qt_pictures.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QImage>
#include <array>
#include <cstdint>
#include <random>
#include <string>

using platform::Decoded_picture;
using platform::Picture_fault;
using platform::pixel;

namespace {

std::string little(std::uint32_t value, int bytes) {
  std::string text;
  for (int i = 0; i < bytes; ++i) text += static_cast<char>(i < 4 ? value >> (8 * i) & 0xFF : 0);
  return text;
}

std::string big(std::uint32_t value, int bytes) {
  std::string text = little(value, bytes);
  return {text.rbegin(), text.rend()};
}

struct Bmp {
  int width = 0, height = 0;  // a negative height: rows from the top
  int bits = 8;
  std::uint32_t compression = 0;  // 0 none, 1 RLE of 8 bits, 2 RLE of 4 bits
  std::string palette;            // blue, green, red, 0 for each colour
  std::string pixels;             // rows as they stand in the file
};

// BITMAPFILEHEADER (14 bytes), BITMAPINFOHEADER (40 bytes), palette, rows.
std::string file_of(const Bmp& bmp) {
  const auto pixels_at = static_cast<std::uint32_t>(54 + bmp.palette.size());
  return "BM" + little(static_cast<std::uint32_t>(pixels_at + bmp.pixels.size()), 4) + little(0, 4) +
         little(pixels_at, 4) + little(40, 4) + little(static_cast<std::uint32_t>(bmp.width), 4) +
         little(static_cast<std::uint32_t>(bmp.height), 4) + little(1, 2) +
         little(static_cast<std::uint32_t>(bmp.bits), 2) + little(bmp.compression, 4) +
         little(static_cast<std::uint32_t>(bmp.pixels.size()), 4) + little(0, 8) +
         little(static_cast<std::uint32_t>(bmp.palette.size() / 4), 4) + little(0, 4) + bmp.palette + bmp.pixels;
}

const std::string red_and_blue = std::string("\x00\x00\xFF\x00", 4) + std::string("\xFF\x00\x00\x00", 4);
constexpr platform::Colour red = 0xFF0000, blue = 0x0000FF, black = 0;

// 2 x 2 of 8 bits: above red, blue; below blue, red.
Bmp chequers() {
  return {2, 2, 8, 0, red_and_blue, std::string("\x01\x00\x00\x00", 4) + std::string("\x00\x01\x00\x00", 4)};
}

std::string encoded(const char* format) {
  QImage image(64, 48, QImage::Format_RGB32);
  std::mt19937 random(5);
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) image.setPixel(x, y, 0xff000000u | (random() & 0xFFFFFF));
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&buffer, format));
  return bytes.toStdString();
}

struct Qt_pictures : ::testing::Test {
  platform::Qt_pictures pictures;
  Decoded_picture decode(const std::string& bytes) { return pictures.decode(bytes); }
  Picture_fault fault(const std::string& bytes) { return pictures.decode(bytes).fault; }

  // Every shorter file is refused, and no picture comes with the refusal.
  void expect_no_part_is_a_picture(const std::string& whole) {
    ASSERT_EQ(fault(whole), Picture_fault::none);
    const std::size_t step = std::max<std::size_t>(1, whole.size() / 400);
    for (std::size_t length = 0; length < whole.size(); length += step) {
      const Decoded_picture part = decode(whole.substr(0, length));
      EXPECT_EQ(part.fault, Picture_fault::unreadable) << length << " of " << whole.size();
      EXPECT_TRUE(part.picture.empty()) << length;
    }
  }
};

}  // namespace

TEST_F(Qt_pictures, ReadsABitmapOf8BitsAtItsDepth) {
  const Decoded_picture read = decode(file_of(chequers()));
  ASSERT_EQ(read.fault, Picture_fault::none);
  EXPECT_EQ(read.picture.depth, 8);
  EXPECT_EQ(pixel(read.picture, 0, 0), red);
  EXPECT_EQ(pixel(read.picture, 1, 0), blue);
  EXPECT_EQ(pixel(read.picture, 0, 1), blue);
  EXPECT_EQ(pixel(read.picture, 1, 1), red);
}

TEST_F(Qt_pictures, ReadsABitmapWhoseRowsRunFromTheTop) {
  Bmp bmp = chequers();
  bmp.height = -2;
  const Decoded_picture read = decode(file_of(bmp));
  ASSERT_EQ(read.fault, Picture_fault::none);
  EXPECT_EQ(read.picture.height, 2);
  EXPECT_EQ(pixel(read.picture, 0, 0), blue);
  EXPECT_EQ(pixel(read.picture, 0, 1), red);
}

TEST_F(Qt_pictures, ReadsABitmapOf1Bit) {
  // The left pixel has index 1.
  const Decoded_picture read = decode(file_of({2, 1, 1, 0, red_and_blue, std::string("\x80\x00\x00\x00", 4)}));
  ASSERT_EQ(read.fault, Picture_fault::none);
  EXPECT_EQ(read.picture.depth, 1);
  EXPECT_EQ(pixel(read.picture, 0, 0), blue);
  EXPECT_EQ(pixel(read.picture, 1, 0), red);
}

TEST_F(Qt_pictures, ReadsABitmapOf4BitsWithABytePerPixel) {
  const Decoded_picture read = decode(file_of({3, 1, 4, 0, red_and_blue, std::string("\x01\x10\x00\x00", 4)}));
  ASSERT_EQ(read.fault, Picture_fault::none);
  EXPECT_EQ(read.picture.depth, 8);
  EXPECT_EQ(pixel(read.picture, 0, 0), red);
  EXPECT_EQ(pixel(read.picture, 1, 0), blue);
  EXPECT_EQ(pixel(read.picture, 2, 0), blue);
}

TEST_F(Qt_pictures, ReadsABitmapOf24Bits) {
  const std::string pixels("\xFF\x00\x00\x00\x00\xFF\x00\x00", 8);
  const Decoded_picture read = decode(file_of({2, 1, 24, 0, "", pixels}));
  ASSERT_EQ(read.fault, Picture_fault::none);
  EXPECT_EQ(read.picture.depth, 32);
  EXPECT_EQ(pixel(read.picture, 0, 0), blue);
  EXPECT_EQ(pixel(read.picture, 1, 0), red);
}

// Runs "count, index"; 0 0 ends a row and 0 1 the picture.
TEST_F(Qt_pictures, ReadsRunLengthsOf8Bits) {
  const std::string runs("\x03\x01\x00\x00\x02\x00\x01\x01\x00\x01", 10);
  const Decoded_picture read = decode(file_of({3, 2, 8, 1, red_and_blue, runs}));
  ASSERT_EQ(read.fault, Picture_fault::none);
  for (int x = 0; x < 3; ++x) EXPECT_EQ(pixel(read.picture, x, 1), blue);
  EXPECT_EQ(pixel(read.picture, 1, 0), red);
  EXPECT_EQ(pixel(read.picture, 2, 0), blue);
}

// A count of 0 and three or more: so many indices as they stand, filled up to two bytes.
TEST_F(Qt_pictures, ReadsRunLengthsOf4Bits) {
  const std::string runs("\x00\x05\x01\x01\x10\x00\x00\x01", 8);
  const Decoded_picture read = decode(file_of({5, 1, 4, 2, red_and_blue, runs}));
  ASSERT_EQ(read.fault, Picture_fault::none);
  const std::array<platform::Colour, 5> row{red, blue, red, blue, blue};
  for (int x = 0; x < 5; ++x) EXPECT_EQ(pixel(read.picture, x, 0), row[static_cast<std::size_t>(x)]) << x;
}

TEST_F(Qt_pictures, WhatRunLengthsLeaveOutHasTheFirstColour) {
  const Decoded_picture read = decode(file_of({300, 200, 8, 1, red_and_blue, std::string("\x00\x01", 2)}));
  ASSERT_EQ(read.fault, Picture_fault::none);
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 300; ++x) ASSERT_EQ(pixel(read.picture, x, y), red) << x << " " << y;
}

TEST_F(Qt_pictures, APixelBeyondThePaletteIsBlack) {
  Bmp bmp = chequers();
  bmp.pixels[4] = '\xC8';
  const Decoded_picture read = decode(file_of(bmp));
  ASSERT_EQ(read.fault, Picture_fault::none);
  EXPECT_EQ(pixel(read.picture, 0, 0), black);
  EXPECT_EQ(pixel(read.picture, 1, 0), blue);
  EXPECT_EQ(pixel(pictures.scale(read.picture, 2, 2), 0, 0), black);
}

TEST_F(Qt_pictures, NoPartOfABitmapIsAPicture) {
  expect_no_part_is_a_picture(file_of(chequers()));
  expect_no_part_is_a_picture(file_of({3, 2, 1, 0, red_and_blue, std::string(8, '\0')}));
  expect_no_part_is_a_picture(file_of({9, 4, 4, 0, red_and_blue, std::string(32, '\0')}));
  expect_no_part_is_a_picture(file_of({5, 7, 24, 0, "", std::string(112, '\x55')}));
  // Without the mark of its end, which nobody misses behind the last row.
  expect_no_part_is_a_picture(file_of({3, 2, 8, 1, red_and_blue, std::string("\x03\x01\x00\x00\x03\x00", 6)}));
}

TEST_F(Qt_pictures, NoPartOfAJpegIsAPicture) {
  expect_no_part_is_a_picture(encoded("jpeg"));
}

TEST_F(Qt_pictures, NoPartOfAPngIsAPicture) {
  expect_no_part_is_a_picture(encoded("png"));
}

TEST_F(Qt_pictures, ASizeBeyondMemoryIsTooLarge) {
  Bmp bmp = chequers();
  bmp.width = bmp.height = 100'000;
  EXPECT_EQ(fault(file_of(bmp)), Picture_fault::too_large);
  bmp.height = -100'000;
  EXPECT_EQ(fault(file_of(bmp)), Picture_fault::too_large);
  bmp.bits = 1;
  EXPECT_EQ(fault(file_of(bmp)), Picture_fault::too_large);
}

// 2^31 - 1 each way: four times as many bits as a 64-bit number counts.
TEST_F(Qt_pictures, ASizeBeyondAnyNumberIsTooLarge) {
  Bmp bmp = chequers();
  bmp.width = bmp.height = 0x7FFFFFFF;
  EXPECT_EQ(fault(file_of(bmp)), Picture_fault::too_large);
}

// Byte 16 of a PNG: width, height, 8 bits, red green blue, and the CRC-32 (by zlib) of "IHDR" and these.
TEST_F(Qt_pictures, APngThatClaims100000EachWayIsTooLarge) {
  std::string bytes = encoded("png");
  bytes.replace(16, 17, big(100'000, 4) + big(100'000, 4) + big(0x0802, 2) + big(0, 3) + big(0x27309C9F, 4));
  EXPECT_EQ(fault(bytes), Picture_fault::too_large);
}

// The height and width lie behind the frame marker FF C0, its length and the sample depth.
TEST_F(Qt_pictures, AJpegThatClaims65500EachWayIsTooLarge) {
  std::string bytes = encoded("jpeg");
  const std::size_t frame = bytes.find("\xFF\xC0");
  ASSERT_NE(frame, std::string::npos);
  bytes.replace(frame + 5, 4, big(65'500, 2) + big(65'500, 2));
  EXPECT_EQ(fault(bytes), Picture_fault::too_large);
}

TEST_F(Qt_pictures, AHeaderThatLiesIsUnreadable) {
  for (const auto& [width, height] : {std::pair{0, 5}, {5, 0}, {-5, 5}, {2, 5000}, {15'000, 15'000}}) {
    Bmp bmp = chequers();
    bmp.width = width;
    bmp.height = height;
    EXPECT_EQ(fault(file_of(bmp)), Picture_fault::unreadable) << width << " x " << height;
  }
  std::string far = file_of(chequers());
  far.replace(10, 4, little(0x7FFFFFFF, 4));  // the rows lie behind the file's end
  EXPECT_EQ(fault(far), Picture_fault::unreadable);
  for (const int bits : {0, 2, 3, 7, 48, 64, 0xFFFF}) {
    Bmp bmp = chequers();
    bmp.bits = bits;
    EXPECT_EQ(fault(file_of(bmp)), Picture_fault::unreadable) << bits;
  }
}

TEST_F(Qt_pictures, EmptyAndForeignContentIsUnreadable) {
  for (const std::string& bytes : {std::string(), std::string("B"), std::string("BM"), std::string(5000, '\0'),
                                   std::string("GIF89a\x01\x00\x01\x00", 10), std::string("\xFF\xD8\xFF", 3),
                                   std::string("\x89PNG\r\n\x1A\n", 8), std::string("P6 1 1 255 abc")})
    EXPECT_EQ(fault(bytes), Picture_fault::unreadable) << bytes.substr(0, 10);
}

// Bytes changed at random: a picture or a refusal, never a crash. Run under the sanitizers too.
TEST_F(Qt_pictures, ChangedBytesGiveAPictureOrARefusal) {
  std::mt19937 random(1);
  for (const std::string& whole :
       {file_of(chequers()), file_of({3, 2, 8, 1, red_and_blue, std::string("\x03\x01\x00\x00\x03\x00\x00\x01", 8)}),
        file_of({9, 4, 4, 2, red_and_blue, std::string(32, '\x09')}), encoded("jpeg"), encoded("png")})
    for (int run = 0; run < 300; ++run) {
      std::string bytes = whole;
      for (int i = 0; i < 4; ++i)
        bytes[random() % std::min<std::size_t>(bytes.size(), 400)] = static_cast<char>(random());
      const Decoded_picture read = decode(bytes);
      EXPECT_EQ(read.picture.empty(), read.fault != Picture_fault::none);
      if (read.picture.depth == 1 || read.picture.depth == 8) {
        EXPECT_EQ(read.picture.palette.size(), std::size_t{1} << read.picture.depth);
      }
    }
}

TEST_F(Qt_pictures, WhatIsEncodedIsReadBack) {
  const platform::Picture picture = decode(file_of(chequers())).picture;
  for (const auto format : {platform::Picture_format::bmp, platform::Picture_format::png}) {
    const Decoded_picture read = decode(pictures.encode(picture, format, 75));
    ASSERT_EQ(read.fault, Picture_fault::none);
    for (int y = 0; y < 2; ++y)
      for (int x = 0; x < 2; ++x) EXPECT_EQ(pixel(read.picture, x, y), pixel(picture, x, y));
  }
  EXPECT_EQ(pictures.encode({}, platform::Picture_format::png, 75), "");
}
