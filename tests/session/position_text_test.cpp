#include "core/session/position_text.h"

#include <gtest/gtest.h>

TEST(Position_text, ShowsMetresWithOneOrTwoDecimals) {
  session::Session session;
  session.canvas.canvas_scale = 2;
  session.canvas.map_y1 = 1000;
  // (1000 / 7.5 - 100) / 2 = 16.666..; 1000 - (1500 / 7.5 - 100) / 2 = 950.
  const session::Position_texts texts = session::position_texts(session, 1000, 1500);
  EXPECT_EQ(texts.x, "16.67 m");
  EXPECT_EQ(texts.y, "950.0 m");
  EXPECT_EQ(texts.latitude, "");
}

TEST(Position_text, ShowsAnAngleInDegreesMinutesAndSeconds) {
  EXPECT_EQ(session::angle_text(35.5, 'N', 'S'), "N 35°30'00.00\"");
  EXPECT_EQ(session::angle_text(-0.001, 'E', 'W'), "W 0°00'03.60\"");
}

TEST(Position_text, SixtySecondsCarry) {
  EXPECT_EQ(session::angle_text(35.9999999, 'N', 'S'), "N 36°00'00.00\"");
}

TEST(Position_text, AnAngleThatIsNoneIsEmpty) {
  EXPECT_EQ(session::angle_text(1e300, 'N', 'S'), "");
}
