#include "observations/marks.h"

#include <gtest/gtest.h>

namespace {

using namespace observations;

TEST(Marks, AreKnownByBothNames) {
  const char* names[][2] = {{"○", "circle"},
                            {"●", "filled circle"},
                            {"□", "square"},
                            {"■", "filled square"},
                            {"△", "triangle"},
                            {"▲", "filled triangle"},
                            {"▽", "inverted triangle"},
                            {"▼", "triangle inverted triangle"},
                            {"◇", "rhombic"},
                            {"◆", "filled rhombic"},
                            {"範囲", "Area"},
                            {"線", "Line"},
                            {"文字", "Word"}};
  for (int i = 0; i < 13; ++i) {
    EXPECT_EQ(mark_index(names[i][0]), i);
    EXPECT_EQ(mark_index(names[i][1]), i);
  }
  for (const char* name : {"", "囲み", "line", "◎"}) EXPECT_EQ(mark_index(name), unknown_name) << name;
}

TEST(Marks, TellAreasLinesAndWordsApart) {
  EXPECT_TRUE(is_area("範囲") && is_area("Area") && !is_area("線") && !is_area("囲み"));
  EXPECT_TRUE(is_line("線") && is_line("Line") && !is_line("範囲") && !is_line("囲み"));
  EXPECT_TRUE(is_word("文字") && is_word("Word") && !is_word("線"));
  EXPECT_TRUE(stands_at_first_vertex("囲み") && stands_at_first_vertex("Line") && !stands_at_first_vertex("範囲"));
}

TEST(Marks, KnowMeasuredObjectsByBothNames) {
  EXPECT_EQ(taishou_index("線構造"), 2);
  EXPECT_EQ(taishou_index("Lineation"), 2);
  EXPECT_EQ(taishou_index("etc"), 5);
  EXPECT_EQ(taishou_index("露頭"), unknown_name);
}

}  // namespace
