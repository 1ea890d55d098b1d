#include "ui/map_bar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>

namespace {

// The places along a bar of 200 pixels whose middle has the slider's colour, from first to last.
std::pair<int, int> slider_of(const QImage& picture, bool across) {
  const int middle = 8;
  const auto at = [&](int place) { return across ? picture.pixel(place, middle) : picture.pixel(middle, place); };
  const QRgb groove = QApplication::palette().color(QPalette::Window).darker(106).rgb();
  const int length = across ? picture.width() : picture.height();
  int first = 0, last = 0;
  for (int place = 24; place < length - 24; ++place) {  // behind the arrows
    if (at(place) == groove) continue;
    if (first == 0) first = place;
    last = place;
  }
  return {first, last};
}

std::pair<int, int> slider_at(Qt::Orientation orientation, int value) {
  ui::Map_bar bar(orientation);
  const bool across = orientation == Qt::Horizontal;
  bar.resize(across ? QSize(240, 16) : QSize(16, 240));
  bar.setRange(0, 100);
  bar.setPageStep(20);
  bar.setValue(value);
  return slider_of(bar.grab().toImage().convertToFormat(QImage::Format_RGB32), across);
}

}  // namespace

TEST(Map_bar, ShowsItsSliderWhereItsValueStands) {
  for (const auto orientation : {Qt::Horizontal, Qt::Vertical}) {
    const auto low = slider_at(orientation, 10), high = slider_at(orientation, 90);
    EXPECT_GT(low.second, low.first);
    EXPECT_GT(high.second, high.first);
    EXPECT_LT(low.second, 120);
    EXPECT_GT(high.first, 120);
  }
}

TEST(Map_bar, ShowsNoSliderWhereThereIsNothingToMove) {
  ui::Map_bar bar(Qt::Horizontal);
  bar.resize(240, 16);
  bar.setRange(0, 0);
  EXPECT_EQ(slider_of(bar.grab().toImage().convertToFormat(QImage::Format_RGB32), true), (std::pair<int, int>{0, 0}));
}
