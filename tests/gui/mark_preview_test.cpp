#include "ui/mark_preview.h"

#include <gtest/gtest.h>

#include <QImage>

#include "support/recorder.h"

namespace {

using observations::Entry_boxes;

Entry_boxes boxes_with(const std::string& mark, const std::string& size = "2") {
  Entry_boxes boxes;
  boxes.Combo1 = mark;
  boxes.Combo3 = size;
  boxes.Shape1 = {255, 0, 0};
  boxes.Shape4 = {0, 0, 255};
  return boxes;
}

support::Recorder sample(const Entry_boxes& boxes) {
  support::Recorder surface;
  ui::mark_sample_out(surface, {72, 72}, boxes);
  return surface;
}

// What a field of 72 pixels shows.
QImage shown(ui::Mark_preview& preview, const Entry_boxes& boxes) {
  preview.show_painted(
      [boxes](drawing::Surface& surface, drawing::Point at) { ui::mark_sample_out(surface, at, boxes); });
  return preview.grab().toImage();
}

}  // namespace

TEST(Mark_preview, PaintsTheMarkInItsColourAndSize) {
  for (const char* mark : {"●", "filled circle"}) {
    const auto circles = sample(boxes_with(mark, "4")).of("circle");
    ASSERT_EQ(circles.size(), 1u) << mark;
    EXPECT_EQ(circles[0].points[0], (drawing::Point{72, 72}));
    EXPECT_EQ(circles[0].radius, 20);  // half the size, ten units each
    EXPECT_EQ(circles[0].fill.colour, 0xff0000u);
  }
}

TEST(Mark_preview, PaintsLinesAndEnclosuresInTheirOwnColour) {
  for (const char* mark : {"線", "Line"}) {
    ASSERT_FALSE(sample(boxes_with(mark)).of("line").empty()) << mark;
    EXPECT_EQ(sample(boxes_with(mark)).of("line")[0].pen.colour, 0x0000ffu);
  }
  for (const char* mark : {"範囲", "Area"}) {
    ASSERT_EQ(sample(boxes_with(mark)).of("polygon").size(), 1u) << mark;
    EXPECT_EQ(sample(boxes_with(mark)).of("polygon")[0].pen.colour, 0x0000ffu);
  }
}

TEST(Mark_preview, PaintsAWordAsItsText) {
  Entry_boxes boxes = boxes_with("文字");
  boxes.Text14[observations::box_soukou] = "露頭";
  const auto texts = sample(boxes).of("text");
  ASSERT_EQ(texts.size(), 1u);
  EXPECT_EQ(texts[0].text, "露頭");
  EXPECT_EQ(texts[0].colour, 0xff0000u);
}

TEST(Mark_preview, PaintsNothingOfAMarkThatIsNone) {
  EXPECT_TRUE(sample(boxes_with("")).calls.empty());
  EXPECT_TRUE(sample(boxes_with("囲み石")).calls.empty());
}

TEST(Mark_preview, ShowsItAtTheScreensResolution) {
  ui::Mark_preview preview(72);
  const QImage image = shown(preview, boxes_with("■", "4"));  // 20 pixels a side
  EXPECT_EQ(image.pixelColor(36, 36), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(36 - 8, 36 - 8), QColor(Qt::red));
  EXPECT_EQ(image.pixelColor(36 - 14, 36), QColor(Qt::white));
  EXPECT_EQ(shown(preview, boxes_with("■", "10")).pixelColor(36 - 20, 36), QColor(Qt::red));
}

TEST(Mark_preview, IsEmptyWhileItIsOutOfUse) {
  ui::Mark_preview preview(72);
  preview.setEnabled(false);
  EXPECT_EQ(shown(preview, boxes_with("■", "4")).pixelColor(36, 36), QColor(Qt::white));
}
