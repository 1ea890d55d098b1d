#include "maps/scale_bar.h"

#include <gtest/gtest.h>

#include <limits>

namespace {

maps::Scale_bar bar_at(double canvas_scale, double widest) {
  maps::Canvas canvas;
  canvas.canvas_scale = canvas_scale;
  return maps::scale_bar(canvas, widest);
}

struct Row {
  double canvas_scale, widest;
  double metres, units;
  const char* text;
};

// A widest bar of 320 units at a tenth of a unit to the metre has room for 3,200 m.
TEST(Scale_bar, IsTheLongestOfOneTwoAndFiveThatFits) {
  for (const Row& row :
       {Row{0.1, 320, 2000, 200, "2 km"}, Row{0.064, 320, 5000, 320, "5 km"}, Row{0.065, 320, 2000, 130, "2 km"},
        Row{0.32, 320, 1000, 320, "1 km"}, Row{0.5, 320, 500, 250, "500 m"}, Row{40, 320, 5, 200, "5 m"},
        Row{640, 320, 0.5, 320, "0.5 m"}, Row{0.0001, 320, 2e6, 200, "2000 km"}}) {
    const maps::Scale_bar bar = bar_at(row.canvas_scale, row.widest);
    EXPECT_NEAR(bar.metres, row.metres, row.metres * 1e-12) << row.text;
    EXPECT_NEAR(bar.units, row.units, 1e-9) << row.text;
    EXPECT_EQ(bar.text, row.text);
  }
}

TEST(Scale_bar, HasNoLengthWithoutAScaleOrRoom) {
  for (const double scale : {0.0, -1.0, std::numeric_limits<double>::quiet_NaN()}) {
    EXPECT_EQ(bar_at(scale, 320).units, 0) << scale;
    EXPECT_EQ(bar_at(scale, 320).text, "") << scale;
  }
  EXPECT_EQ(bar_at(0.1, 0).units, 0);
  EXPECT_EQ(bar_at(1e-300, 1e300).units, 0);
}

}  // namespace
