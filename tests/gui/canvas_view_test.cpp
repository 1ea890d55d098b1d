#include "ui/canvas_view.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QTest>
#include <QWheelEvent>

#include <vector>

namespace {

struct Signal {
  double a = 0, b = 0, c = 0;
  bool operator==(const Signal&) const = default;
};

// The canvas by itself, with what it told.
struct Canvas_view : ::testing::Test {
  ui::Canvas_view view;
  std::vector<Signal> pressed, moved, released, dragged, wheel;
  int left = 0, measured = 0;

  void SetUp() override {
    view.resize(400, 300);
    const auto keep = [](std::vector<Signal>& told) {
      return [&told](auto a, double b, double c) { told.push_back({static_cast<double>(a), b, c}); };
    };
    QObject::connect(&view, &ui::Canvas_view::map_pressed, keep(pressed));
    QObject::connect(&view, &ui::Canvas_view::map_released, keep(released));
    QObject::connect(&view, &ui::Canvas_view::wheel_turned, keep(wheel));
    QObject::connect(&view, &ui::Canvas_view::map_moved, [this](double x, double y) { moved.push_back({x, y}); });
    QObject::connect(&view, &ui::Canvas_view::dragged_one_to_one, [this](double x, double y) {
      dragged.push_back({x, y});
    });
    QObject::connect(&view, &ui::Canvas_view::mouse_left, [this] { ++left; });
    QObject::connect(&view, &ui::Canvas_view::measure_changed, [this] { ++measured; });
    view.show();
    view.setFocus();
    QTest::qWait(10);
  }
  void turn(int eighths, QPointF at = {30, 40}) {
    QWheelEvent event(at, view.mapToGlobal(at), {}, {0, eighths}, Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&view, &event);
  }
};

}  // namespace

TEST_F(Canvas_view, TellsPositionsInTwips) {
  QTest::mousePress(&view, Qt::LeftButton, {}, {10, 20});
  QTest::mouseRelease(&view, Qt::LeftButton, {}, {30, 25});
  QTest::mousePress(&view, Qt::RightButton, {}, {1, 2});
  EXPECT_EQ(pressed, (std::vector<Signal>{{1, 150, 300}, {2, 15, 30}}));
  EXPECT_EQ(released, (std::vector<Signal>{{1, 450, 375}}));
}

TEST_F(Canvas_view, PartsOfANotchAddUpToWholeSteps) {
  turn(120);
  turn(-240, {10, 10});
  EXPECT_EQ(wheel, (std::vector<Signal>{{1, 450, 600}, {-2, 150, 150}}));
  wheel.clear();
  for (int i = 0; i < 5; ++i) turn(50);  // 250: two notches, and 10 kept
  EXPECT_EQ(wheel.size(), 2U);
  turn(110);
  EXPECT_EQ(wheel.size(), 3U);
}

TEST_F(Canvas_view, TheSpaceBarTurnsTheLeftButtonIntoAHand) {
  QTest::keyPress(&view, Qt::Key_Space);
  EXPECT_EQ(view.cursor().shape(), Qt::OpenHandCursor);
  QTest::mousePress(&view, Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(view.cursor().shape(), Qt::ClosedHandCursor);
  QTest::mouseMove(&view, {90, 120});
  QTest::mouseRelease(&view, Qt::LeftButton, {}, {90, 120});
  EXPECT_EQ(dragged, (std::vector<Signal>{{-150, 300}}));
  QTest::keyRelease(&view, Qt::Key_Space);
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
  EXPECT_TRUE(pressed.empty());
  EXPECT_TRUE(released.empty());
}

TEST_F(Canvas_view, TheCursorOfTheToolComesBackBehindTheHand) {
  view.use_tool_cursor(Qt::CrossCursor);
  EXPECT_EQ(view.cursor().shape(), Qt::CrossCursor);
  QTest::mousePress(&view, Qt::MiddleButton, {}, {100, 100});
  EXPECT_EQ(view.cursor().shape(), Qt::ClosedHandCursor);
  view.use_tool_cursor(Qt::ArrowCursor);  // the tool ends meanwhile
  EXPECT_EQ(view.cursor().shape(), Qt::ClosedHandCursor);
  QTest::mouseRelease(&view, Qt::MiddleButton, {}, {100, 100});
  EXPECT_EQ(view.cursor().shape(), Qt::ArrowCursor);
}

TEST_F(Canvas_view, WhoLeavesWithTheSpaceBarDownFindsTheToolAgain) {
  QTest::keyPress(&view, Qt::Key_Space);
  view.clearFocus();
  QTest::mousePress(&view, Qt::LeftButton, {}, {100, 100});
  EXPECT_EQ(pressed.size(), 1U);
}

TEST_F(Canvas_view, TellsThatTheMouseLeftAndThatItsSizeChanged) {
  QEvent leave(QEvent::Leave);
  QApplication::sendEvent(&view, &leave);
  EXPECT_EQ(left, 1);
  const int before = measured;
  view.resize(500, 310);
  QTest::qWait(10);
  EXPECT_GT(measured, before);
}

// A repaint without a change of the map paints nothing anew; a move paints the strip that comes into view.
TEST_F(Canvas_view, PaintsAnewOnlyWhatComesIntoView) {
  QPointF offset;
  std::vector<drawing::Rect> painted;
  view.connect_map([&](drawing::Surface& surface) { painted.push_back(surface.touched_part()); }, {},
                   [&] { return offset; });
  view.map_image();
  ASSERT_EQ(painted.size(), 1U);
  view.repaint();
  EXPECT_EQ(painted.size(), 1U);
  offset = {-15 * 30, 0};  // 30 pixels to the left
  view.view_moved();
  view.map_image();
  ASSERT_EQ(painted.size(), 2U);
  EXPECT_NEAR(painted[1].x, 2 * 370, 10);  // units: the part may reach a little further for thick lines
  view.map_changed();
  view.map_image();
  ASSERT_EQ(painted.size(), 3U);
  EXPECT_NEAR(painted[2].x, 0, 10);
}
