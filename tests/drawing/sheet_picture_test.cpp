#include "drawing/sheet_picture.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <cstring>

namespace {

using drawing::Sheet_picture;
using platform::Colour;
using platform::Picture;

Picture indexed(int width, int height, std::vector<Colour> palette) {
  Picture picture = platform::make_picture(width, height, 8);
  picture.palette = std::move(palette);
  return picture;
}

void put_word(Picture& picture, int x, int y, Colour colour) {
  std::memcpy(picture.row(y) + 4 * x, &colour, sizeof colour);
}

std::size_t bytes_of(const Sheet_picture& sheet) {
  std::size_t bytes = 0;
  for (const Picture& level : sheet.levels) bytes += level.bits.size() + level.palette.size() * sizeof(Colour);
  return bytes;
}

int widest_difference(Colour a, Colour b) {
  int widest = 0;
  for (const int shift : {16, 8, 0})
    widest = std::max(widest, std::abs(static_cast<int>(a >> shift & 0xFF) - static_cast<int>(b >> shift & 0xFF)));
  return widest;
}

TEST(Make_sheet_picture, HalvesDownToSixtyFourPixels) {
  const Sheet_picture sheet = drawing::make_sheet_picture(indexed(501, 333, {0}));
  std::vector<std::pair<int, int>> sizes;
  for (const Picture& level : sheet.levels) sizes.emplace_back(level.width, level.height);
  EXPECT_EQ(sizes, (std::vector<std::pair<int, int>>{{501, 333}, {251, 167}, {126, 84}, {63, 42}}));
  EXPECT_EQ(sheet.levels[1].depth, 8);
  EXPECT_EQ(sheet.levels[2].depth, 8);
  EXPECT_EQ(sheet.levels[3].depth, 32);
}

TEST(Make_sheet_picture, KeepsThePictureAsItWas) {
  Picture picture = indexed(70, 1, {0x123456, 0xFFFFFF});
  picture.row(0)[69] = 1;
  const Sheet_picture sheet = drawing::make_sheet_picture(picture);
  EXPECT_EQ(sheet.levels[0].bits, picture.bits);
  EXPECT_EQ(sheet.levels[0].palette, picture.palette);
  EXPECT_EQ(sheet.width(), 70);
  EXPECT_EQ(sheet.height(), 1);
}

TEST(Make_sheet_picture, HasNoLevelsForAnEmptyPicture) {
  EXPECT_TRUE(drawing::make_sheet_picture({}).empty());
  EXPECT_EQ(drawing::make_sheet_picture(indexed(1, 1, {})).levels.size(), 1U);
}

TEST(Make_sheet_picture, GivesEachPixelTheMeanOfItsFour) {
  // Blocks of the pattern 10, 20 over 30, 41: mean 25.25.
  Picture picture = indexed(100, 100, {0x0A0000, 0x140000, 0x1E0000, 0x290000});
  for (int y = 0; y < 100; ++y)
    for (int x = 0; x < 100; ++x) picture.row(y)[x] = static_cast<std::uint8_t>(x % 2 + y % 2 * 2);
  const Sheet_picture sheet = drawing::make_sheet_picture(picture);
  for (const int x : {0, 17, 49}) EXPECT_EQ(platform::pixel(sheet.levels[1], x, 49 - x), 0x190000U);
}

TEST(Make_sheet_picture, KeepsWhiteWhiteAndAThinLineVisible) {
  Picture picture = indexed(400, 400, {0xFFFFFF, 0x8B4513});
  for (int y = 0; y < 400; ++y) picture.row(y)[201] = 1;
  const Sheet_picture sheet = drawing::make_sheet_picture(picture);
  EXPECT_EQ(platform::pixel(sheet.levels[1], 5, 5), 0xFFFFFFU);
  EXPECT_EQ(platform::pixel(sheet.levels[2], 5, 5), 0xFFFFFFU);
  EXPECT_EQ(platform::pixel(sheet.levels[3], 5, 5), 0xFFFFFFU);
  // Half brown, then a quarter, then an eighth.
  EXPECT_LE(widest_difference(platform::pixel(sheet.levels[1], 100, 50), 0xC5A289), 2);
  EXPECT_LE(widest_difference(platform::pixel(sheet.levels[2], 50, 50), 0xE2D1C4), 3);
  EXPECT_LE(widest_difference(platform::pixel(sheet.levels[3], 25, 25), 0xF1E8E2), 4);
}

TEST(Make_sheet_picture, CountsTheLastColumnAndRowOfAnOddSizeTwice) {
  Picture picture = indexed(65, 65, {0x000000, 0xFFFFFF});
  for (int i = 0; i < 65; ++i) picture.row(i)[64] = picture.row(64)[i] = 1;
  const Sheet_picture sheet = drawing::make_sheet_picture(picture);
  EXPECT_EQ(platform::pixel(sheet.levels[1], 32, 5), 0xFFFFFFU);
  EXPECT_EQ(platform::pixel(sheet.levels[1], 5, 32), 0xFFFFFFU);
  EXPECT_EQ(platform::pixel(sheet.levels[1], 31, 31), 0x000000U);
}

TEST(Make_sheet_picture, StaysNearTheMeanWithMoreColoursThanAPaletteHolds) {
  std::vector<Colour> palette;
  for (unsigned i = 0; i < 256; ++i) palette.push_back(i * 7919 * 131 & 0xFFFFFF);
  Picture picture = indexed(512, 512, palette);
  unsigned seed = 1;
  for (int y = 0; y < 512; ++y)
    for (int x = 0; x < 512; ++x)
      picture.row(y)[x] = static_cast<std::uint8_t>((seed = seed * 1664525 + 1013904223) >> 24);
  const Sheet_picture sheet = drawing::make_sheet_picture(picture);
  EXPECT_LE(sheet.levels[1].palette.size(), 256U);
  double sum = 0;
  for (int y = 0; y < 256; ++y)
    for (int x = 0; x < 256; ++x) {
      const auto red = [&](int dx, int dy) {
        return static_cast<int>(platform::pixel(picture, 2 * x + dx, 2 * y + dy) >> 16);
      };
      const int mean = (red(0, 0) + red(1, 0) + red(0, 1) + red(1, 1) + 2) / 4;
      sum += std::abs(mean - static_cast<int>(platform::pixel(sheet.levels[1], x, y) >> 16));
    }
  EXPECT_LT(sum / (256 * 256), 12);  // 256 entries for a cloud of 32,768 bins: about a twentieth of the range
}

TEST(Make_sheet_picture, TakesAnIndexBeyondThePaletteAsBlack) {
  Picture picture = indexed(66, 66, {0xFFFFFF});
  std::memset(picture.bits.data(), 200, picture.bits.size());
  EXPECT_EQ(platform::pixel(drawing::make_sheet_picture(picture).levels[1], 3, 3), 0U);
}

TEST(Make_sheet_picture, AveragesFullColours) {
  Picture picture = platform::make_picture(66, 66, 32);
  for (int y = 0; y < 66; ++y)
    for (int x = 0; x < 66; ++x) put_word(picture, x, y, x % 2 == 0 ? 0xFFFF0003 : 0xFF00FF00);
  const Sheet_picture sheet = drawing::make_sheet_picture(picture);
  EXPECT_EQ(sheet.levels[1].depth, 32);
  EXPECT_EQ(platform::pixel(sheet.levels[1], 7, 9), 0x808002U);  // 127.5 and 1.5 rounded up
  EXPECT_EQ(sheet.levels[1].row(0)[3], 0xFF);                    // opaque
}

TEST(Make_sheet_picture, TurnsABlackAndWhitePictureToGreyByQuarters) {
  Picture picture = platform::make_picture(102, 90, 1);
  picture.palette = {0x000000, 0xFFFFFF};
  picture.row(0)[0] = 0b1100'0000;    // two white pixels of the first 4 x 4
  picture.row(89)[12] = 0b0000'1100;  // pixels 100 and 101 of the last row: half of a block of 2 x 2
  const Sheet_picture sheet = drawing::make_sheet_picture(picture);
  EXPECT_EQ(sheet.levels[1].width, 26);
  EXPECT_EQ(sheet.levels[1].height, 23);
  EXPECT_EQ(sheet.levels[1].depth, 8);
  EXPECT_EQ(platform::pixel(sheet.levels[1], 0, 0), 0x202020U);    // 2 of 16: 31.9
  EXPECT_EQ(platform::pixel(sheet.levels[1], 25, 22), 0x808080U);  // 2 of 4: 127.5
  EXPECT_EQ(platform::pixel(sheet.levels[1], 1, 0), 0U);
}

TEST(Make_sheet_picture, KeepsToItsBoundOfMemory) {
  Picture picture = indexed(1600, 1200, {0x000000, 0xFFFFFF});
  const std::size_t own = picture.bits.size();
  EXPECT_LT(static_cast<double>(bytes_of(drawing::make_sheet_picture(std::move(picture)))),
            1.45 * static_cast<double>(own));
}

TEST(Level_for, IsTheSmallestThatIsNotNarrowerThanTheTarget) {
  const Sheet_picture sheet = drawing::make_sheet_picture(indexed(400, 300, {0}));  // 400, 200, 100, 50
  EXPECT_EQ(drawing::level_for(sheet, 1000), 0);
  EXPECT_EQ(drawing::level_for(sheet, 400), 0);
  EXPECT_EQ(drawing::level_for(sheet, 200.5), 0);
  EXPECT_EQ(drawing::level_for(sheet, 200), 1);
  EXPECT_EQ(drawing::level_for(sheet, 51), 2);
  EXPECT_EQ(drawing::level_for(sheet, 1), 3);
  EXPECT_EQ(drawing::level_for({}, 10), 0);
}

}  // namespace
