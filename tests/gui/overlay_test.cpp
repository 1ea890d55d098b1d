#include "ui/overlay.h"

#include <gtest/gtest.h>

#include <QImage>

namespace {

constexpr QRgb ink = qRgb(0x20, 0x20, 0x20);

// A canvas of 400 x 300 pixels over a grey map, half a unit to the metre.
struct Overlay : ::testing::Test {
  session::Session session;
  QImage image{400, 300, QImage::Format_RGB32};

  void SetUp() override { session.canvas.canvas_scale = 0.5; }
  void paint() {
    image.fill(qRgb(0x80, 0x80, 0x80));
    QPainter painter(&image);
    ui::paint_fixed_controls(painter, image.rect(), session);
  }
  bool is_near(int x, int y, QRgb colour) const {
    const QRgb at = image.pixel(x, y);
    return std::abs(qRed(at) - qRed(colour)) < 24 && std::abs(qGreen(at) - qGreen(colour)) < 24 &&
           std::abs(qBlue(at) - qBlue(colour)) < 24;
  }
};

}  // namespace

// 160 pixels are 320 units, 640 m: the bar is 500 m, 125 pixels, its first half black. It begins 14 + 10 pixels from
// the left and ends 14 + 5 above the lower edge.
TEST_F(Overlay, TheScaleBarIsAsLongAsItSays) {
  paint();
  for (const int x : {25, 50, 85}) EXPECT_TRUE(is_near(x, 278, ink)) << x;
  for (const int x : {89, 120, 147}) EXPECT_TRUE(is_near(x, 278, qRgb(255, 255, 255))) << x;
  EXPECT_FALSE(is_near(154, 278, ink));
  session.canvas.canvas_scale = 0.6;  // 533 m: 500 m are 150 pixels
  paint();
  EXPECT_TRUE(is_near(97, 278, ink));
  EXPECT_TRUE(is_near(172, 278, qRgb(255, 255, 255)));
}

TEST_F(Overlay, ThereIsNoBarWithoutAScale) {
  session.canvas.canvas_scale = 0;
  paint();
  EXPECT_EQ(image.pixel(50, 278), qRgb(0x80, 0x80, 0x80));
}

// The arrow's middle stands 32 pixels from the right (the last pixel is 399) and 40 from the top; its black half has
// its broad end below the middle where north is up.
TEST_F(Overlay, TheArrowPointsToTheMapsNorth) {
  paint();
  EXPECT_TRUE(is_near(367 - 4, 40 + 5, ink));
  EXPECT_FALSE(is_near(367 - 4, 40 - 5, ink));
  session.canvas.y_mode = 1;
  paint();
  EXPECT_FALSE(is_near(367 - 4, 40 + 5, ink));
  EXPECT_TRUE(is_near(367 - 4, 40 - 5, ink));
}

// The letter "A" has no part below its base: its lowest row is 50 twips, 3.3 pixels, above the end.
TEST_F(Overlay, TheLettersOfTheSectionLineStand50TwipsAboveItsEnds) {
  session.section_controls = {true, 100 * 15, 100 * 15, 200 * 15, 100 * 15};
  paint();
  int lowest = 0, highest = 300;
  for (int y = 0; y < 300; ++y)
    for (int x = 90; x < 110; ++x)
      if (is_near(x, y, qRgb(0xb0, 0, 0))) lowest = std::max(lowest, y), highest = std::min(highest, y);
  EXPECT_NEAR(lowest, 95, 1);
  EXPECT_LT(highest, 92);
  EXPECT_TRUE(is_near(150, 100, qRgb(255, 0, 0)));
}

TEST_F(Overlay, ASectionLineThatIsNotThereIsNotDrawn) {
  session.section_controls = {false, 100 * 15, 100 * 15, 200 * 15, 100 * 15};
  paint();
  EXPECT_EQ(image.pixel(150, 100), qRgb(0x80, 0x80, 0x80));
}
