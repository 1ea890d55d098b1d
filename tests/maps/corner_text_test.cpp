#include "maps/corner_text.h"

#include <gtest/gtest.h>

namespace {

TEST(Corner_text, FillsDegreesAndMinutesAndKeepsThreeDecimals) {
  EXPECT_EQ(maps::latitude_text("N", 35, 5, 7.25), "N350507.25");
  EXPECT_EQ(maps::latitude_text("S", 5, 0, 0), "S050000.0");
  EXPECT_EQ(maps::longitude_text("E", 139, 30, 0), "E1393000.0");
  EXPECT_EQ(maps::longitude_text("W", 9, 3, 59.1239), "W0090359.124");
}

TEST(Corner_text, ReadsAnglesByPosition) {
  EXPECT_DOUBLE_EQ(maps::latitude_seconds("N353015.5"), 35 * 3600 + 30 * 60 + 15.5);
  EXPECT_DOUBLE_EQ(maps::longitude_seconds("E1393015.5"), 139 * 3600 + 30 * 60 + 15.5);
  EXPECT_DOUBLE_EQ(maps::latitude_seconds("S353015.5"), -127815.5);
  EXPECT_DOUBLE_EQ(maps::longitude_seconds("w0010001.0"), -3601);
}

TEST(Corner_text, GivesNothingForEmptyShortAndWrongTexts) {
  for (const char* text : {"", "N", "E", "Nxxyyzz", "N0000nan"}) {
    EXPECT_EQ(maps::latitude_seconds(text), 0) << text;
    EXPECT_EQ(maps::longitude_seconds(text), 0) << text;
  }
  EXPECT_EQ(maps::latitude_seconds("N35"), 126'000);
  EXPECT_EQ(maps::latitude_seconds("N00009e99"), 0);
}

TEST(Corner_text, SplitsSecondCounts) {
  const maps::Corner_texts texts = maps::corner_texts_of_seconds(130'200, 499'950, 129'900, 500'400);
  EXPECT_EQ(texts, (maps::Corner_texts{"N361000.0", "E1385230.0", "N360500.0", "E1390000.0"}));
}

}  // namespace
