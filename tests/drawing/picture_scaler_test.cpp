#include "drawing/picture_scaler.h"

#include <gtest/gtest.h>

#include <cstring>
#include <vector>

using drawing::Raster;

namespace {

constexpr std::uint32_t untouched = 0x12345678;

struct Target {
  int width, height;
  std::vector<std::uint32_t> pixels;
  Target(int w, int h) : width(w), height(h), pixels(static_cast<std::size_t>(w * h), untouched) {}
  Raster raster() { return {pixels.data(), width, height, width}; }
  std::uint32_t at(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }
};

platform::Picture indexed(int width, int height, std::vector<std::uint8_t> indices,
                          std::vector<platform::Colour> palette) {
  platform::Picture picture = platform::make_picture(width, height, 8);
  picture.palette = std::move(palette);
  for (int y = 0; y < height; ++y)
    std::memcpy(picture.row(y), indices.data() + static_cast<std::size_t>(y * width), static_cast<std::size_t>(width));
  return picture;
}

}  // namespace

TEST(Picture_scaler, AtItsOwnSizeAPictureComesOutUnchanged) {
  const platform::Picture picture = indexed(2, 2, {0, 1, 2, 3}, {0x000000, 0xff0000, 0x00ff00, 0x0000ff});
  Target target(4, 4);
  drawing::paint_scaled(picture, {1, 1, 2, 2}, target.raster(), {0, 0, 4, 4});
  EXPECT_EQ(target.at(1, 1), 0xff000000);
  EXPECT_EQ(target.at(2, 1), 0xffff0000);
  EXPECT_EQ(target.at(1, 2), 0xff00ff00);
  EXPECT_EQ(target.at(2, 2), 0xff0000ff);
  EXPECT_EQ(target.at(0, 1), untouched);
  EXPECT_EQ(target.at(3, 2), untouched);
}

// Two columns of 0 and 200 stretched to four: centres at source -0.25 (held at 0), 0.25, 0.75 and 1.25 (held at 1).
TEST(Picture_scaler, BetweenTwoPixelsTheirMeanIsWeighedByTheDistance) {
  const platform::Picture picture = indexed(2, 1, {0, 1}, {0x000000, 0xc8c8c8});
  Target target(4, 1);
  drawing::paint_scaled(picture, {0, 0, 4, 1}, target.raster(), {0, 0, 4, 1});
  EXPECT_EQ(target.at(0, 0), 0xff000000);
  EXPECT_EQ(target.at(1, 0), 0xff323232);  // 200 / 4 = 50
  EXPECT_EQ(target.at(2, 0), 0xff969696);  // 200 x 3 / 4 = 150
  EXPECT_EQ(target.at(3, 0), 0xffc8c8c8);
}

TEST(Picture_scaler, PicturesThatMeetLeaveNoGapAndDoNotOverlap) {
  const platform::Picture left = indexed(1, 1, {0}, {0x111111});
  const platform::Picture right = indexed(1, 1, {0}, {0x222222});
  for (const double edge : {2.0, 2.3, 2.5, 2.7, 3.0}) {
    Target target(6, 1);
    drawing::paint_scaled(left, {0, 0, edge, 1}, target.raster(), {0, 0, 6, 1});
    drawing::paint_scaled(right, {edge, 0, 6 - edge, 1}, target.raster(), {0, 0, 6, 1});
    for (int x = 0; x < 6; ++x)
      EXPECT_EQ(target.at(x, 0), x + 0.5 < edge ? 0xff111111 : 0xff222222) << edge << " " << x;
  }
}

TEST(Picture_scaler, OnlyTheClipIsWritten) {
  const platform::Picture picture = indexed(1, 1, {0}, {0xffffff});
  Target target(5, 5);
  drawing::paint_scaled(picture, {-10, -10, 100, 100}, target.raster(), {1, 2, 3, 4});
  int written = 0;
  for (const std::uint32_t pixel : target.pixels) written += pixel == 0xffffffff;
  EXPECT_EQ(written, 4);
  EXPECT_EQ(target.at(1, 2), 0xffffffff);
  EXPECT_EQ(target.at(3, 2), untouched);
}

// A part painted by itself must equal the same part of the whole: a pan paints strips.
TEST(Picture_scaler, AStripEqualsTheSameStripOfTheWhole) {
  platform::Picture picture = indexed(7, 5, std::vector<std::uint8_t>(35), {});
  for (unsigned i = 0; i < 256; ++i) picture.palette.push_back(i * 0x010203u & 0xffffffu);
  for (int i = 0; i < 35; ++i) picture.row(i / 7)[i % 7] = static_cast<std::uint8_t>(i * 37);
  Target whole(40, 30), strips(40, 30);
  const drawing::Rect place{-3.3, 2.7, 51.4, 22.9};
  drawing::paint_scaled(picture, place, whole.raster(), {0, 0, 40, 30});
  for (int x = 0; x < 40; x += 7) drawing::paint_scaled(picture, place, strips.raster(), {x, 0, x + 7, 30});
  EXPECT_EQ(whole.pixels, strips.pixels);
}

TEST(Picture_scaler, AnIndexBeyondThePaletteIsBlack) {
  const platform::Picture picture = indexed(1, 1, {9}, {0xffffff});
  Target target(1, 1);
  drawing::paint_scaled(picture, {0, 0, 1, 1}, target.raster(), {0, 0, 1, 1});
  EXPECT_EQ(target.at(0, 0), 0xff000000);
}

TEST(Picture_scaler, OneBitAnd32BitPicturesArePaintedToo) {
  platform::Picture one = platform::make_picture(2, 1, 1);
  one.palette = {0x000000, 0x00ff00};
  one.row(0)[0] = 0x40;  // the second pixel
  Target target(2, 1);
  drawing::paint_scaled(one, {0, 0, 2, 1}, target.raster(), {0, 0, 2, 1});
  EXPECT_EQ(target.at(0, 0), 0xff000000);
  EXPECT_EQ(target.at(1, 0), 0xff00ff00);
  platform::Picture full = platform::make_picture(1, 1, 32);
  const std::uint32_t colour = 0xff102030;
  std::memcpy(full.row(0), &colour, 4);
  drawing::paint_scaled(full, {0, 0, 2, 1}, target.raster(), {0, 0, 2, 1});
  EXPECT_EQ(target.at(1, 0), 0xff102030);
}

TEST(Picture_scaler, ATargetWithoutAMeasureOrFarAwayPaintsNothing) {
  const platform::Picture picture = indexed(1, 1, {0}, {0xffffff});
  Target target(2, 2);
  for (const drawing::Rect& place : {drawing::Rect{0, 0, 0, 2}, drawing::Rect{0, 0, 2, -1},
                                     drawing::Rect{1e300, 0, 1e300, 2}, drawing::Rect{-1e300, 0, 1, 1}})
    drawing::paint_scaled(picture, place, target.raster(), {0, 0, 2, 2});
  EXPECT_EQ(target.at(0, 0), untouched);
}
