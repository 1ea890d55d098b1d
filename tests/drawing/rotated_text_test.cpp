#include "drawing/rotated_text.h"

#include <gtest/gtest.h>

#include "support/recorder.h"

namespace {

TEST(LK, WritesATextWithItsFontColourAndAngle) {
  support::Recorder surface;
  drawing::LK(surface, "走向 N30E", {12.5, 7}, 0x00FF00, {"MS Gothic", 20, true}, 450);
  ASSERT_EQ(surface.calls.size(), 1U);
  const support::Drawn& call = surface.calls[0];
  EXPECT_EQ(call.what, "text");
  EXPECT_EQ(call.text, "走向 N30E");
  EXPECT_EQ(call.points, (std::vector<drawing::Point>{{12.5, 7}}));
  EXPECT_EQ(call.font, (drawing::Font{"MS Gothic", 20, true}));
  EXPECT_EQ(call.colour, 0x00FF00U);
  EXPECT_EQ(call.tenths, 450);
}

TEST(LK, TakesAnyAngleAsPartOfAFullTurn) {
  support::Recorder surface;
  for (const int tenths : {-900, 3600, 7201}) drawing::LK(surface, "a", {}, 0, {}, tenths);
  EXPECT_EQ(surface.calls[0].tenths, 2700);
  EXPECT_EQ(surface.calls[1].tenths, 0);
  EXPECT_EQ(surface.calls[2].tenths, 1);
}

TEST(LK, DrawsNothingForAnEmptyTextOrAFontOfNoHeight) {
  support::Recorder surface;
  drawing::LK(surface, "", {}, 0, {}, 0);
  drawing::LK(surface, "a", {}, 0, {"MS Gothic", 0, false}, 0);
  EXPECT_TRUE(surface.calls.empty());
}

}  // namespace
