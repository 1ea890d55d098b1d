#include "ui/wrap_check.h"

#include <gtest/gtest.h>

#include <QTest>

#include "gui/clipping.h"

namespace {

const char* const long_caption = "偏角補正済みデータ(偏角補正を行わない。)";

}  // namespace

TEST(Wrap_check, GrowsWhereItIsTooNarrowForItsCaption) {
  ui::Wrap_check check;
  check.setText(long_caption);
  const int one_line = check.heightForWidth(1000);
  EXPECT_GE(check.heightForWidth(150), one_line + check.fontMetrics().height());
  EXPECT_LT(check.minimumSizeHint().width(), 150);
  EXPECT_GE(check.sizeHint().width(), check.fontMetrics().horizontalAdvance(long_caption));
}

TEST(Wrap_check, TicksByAClickAnywhereOnItsCaption) {
  ui::Wrap_check check;
  check.setText(long_caption);
  check.resize(150, check.heightForWidth(150));
  check.show();
  QTest::mouseClick(&check, Qt::LeftButton, {}, QPoint(120, check.height() - 3));
  EXPECT_TRUE(check.isChecked());
  QTest::keyClick(&check, Qt::Key_Space);
  EXPECT_FALSE(check.isChecked());
}

TEST(Wrap_check, PaintsEveryLineOfItsCaption) {
  ui::Wrap_check check;
  check.setText(long_caption);
  check.resize(150, check.heightForWidth(150));
  check.show();
  const QImage image = check.grab().toImage();
  const auto has_ink = [&](int top, int bottom) {
    for (int y = top; y < bottom; ++y)
      for (int x = 30; x < image.width(); ++x)
        if (image.pixelColor(x, y).lightness() < 100) return true;
    return false;
  };
  EXPECT_TRUE(has_ink(0, image.height() / 2));
  EXPECT_TRUE(has_ink(image.height() / 2, image.height()));
  EXPECT_TRUE(support::fits(&check));
}
