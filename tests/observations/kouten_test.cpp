#include "observations/kouten.h"

#include <gtest/gtest.h>

namespace {

using observations::Crossing;
using observations::crossing_inside;
using observations::KOUTEN;

TEST(Kouten, FindsWhereTwoDiagonalsCross) {
  const Crossing crossing = KOUTEN({0, 0}, {4, 4}, {0, 4}, {4, 0});
  EXPECT_TRUE(crossing.found);
  EXPECT_EQ(crossing.at.x, 2);
  EXPECT_EQ(crossing.at.y, 2);
}

TEST(Kouten, FindsSegmentsThatMeetAtAnEnd) {
  const Crossing crossing = KOUTEN({0, 0}, {0.1, 0.2}, {0.1, 0.2}, {7, -3});
  EXPECT_TRUE(crossing.found);
  EXPECT_EQ(crossing.at.x, 0.1);
  EXPECT_EQ(crossing.at.y, 0.2);
  EXPECT_FALSE(crossing_inside({0, 0}, {0.1, 0.2}, {0.1, 0.2}, {7, -3}).found);
}

TEST(Kouten, GivesThePointOfLinesThatCrossOutsideTheSegments) {
  const Crossing crossing = KOUTEN({0, 0}, {1, 1}, {0, 4}, {4, 0});
  EXPECT_FALSE(crossing.found);
  EXPECT_EQ(crossing.at.x, 2);
  EXPECT_EQ(crossing.at.y, 2);
}

TEST(Kouten, HasNoResultForParallelsAndSegmentsOfNoLength) {
  for (const Crossing& crossing : {KOUTEN({0, 0}, {1, 1}, {0, 1}, {1, 2}), KOUTEN({0, 0}, {1, 1}, {0, 0}, {2, 2}),
                                   KOUTEN({1, 1}, {1, 1}, {0, 4}, {4, 0}), KOUTEN({0, 4}, {4, 0}, {1, 1}, {1, 1})}) {
    EXPECT_FALSE(crossing.found);
    EXPECT_EQ(crossing.at.x, -9999);
    EXPECT_EQ(crossing.at.y, -9999);
  }
}

TEST(Kouten, RoundsToElevenDecimals) {
  // y = x / 3 meets y = 1 - x at x = 3/4, y = 1 - 2x the axis at 1/2, and y = 1 - 3x at 1/3.
  EXPECT_EQ(KOUTEN({0, 0}, {3, 1}, {0, 1}, {1, 0}).at.x, 0.75);
  EXPECT_EQ(KOUTEN({0, 0}, {1, 0}, {0, 1}, {1, -1}).at.x, 0.5);
  EXPECT_EQ(KOUTEN({0, 0}, {1, 0}, {0, 1}, {1, -2}).at.x, 0.33333333333);
}

TEST(Kouten, FindsLevelAndUprightSegmentsDespiteNoise) {
  const Crossing crossing = KOUTEN({0.1, 0.3}, {0.7, 0.3}, {0.4, 0.1}, {0.4, 0.9});
  EXPECT_TRUE(crossing.found);
  EXPECT_EQ(crossing.at.x, 0.4);
  EXPECT_EQ(crossing.at.y, 0.3);
}

TEST(Kouten, WorksAmongGeographicUnits) {
  const Crossing crossing = KOUTEN({13886200, 3578100}, {13886300, 3578200}, {13886200, 3578200}, {13886300, 3578100});
  EXPECT_TRUE(crossing.found);
  EXPECT_EQ(crossing.at.x, 13886250);
  EXPECT_EQ(crossing.at.y, 3578150);
}

TEST(Kouten, HasNoResultBeyondTheRangeOfADouble) {
  EXPECT_FALSE(KOUTEN({0, 0}, {1e308, 1e308}, {0, 1e308}, {1e308, 0}).found);
}

}  // namespace
