#include "platform/rows.h"

#include <gtest/gtest.h>

#include <string>

using platform::Rows;
using platform::Subscript_failure;

namespace {

TEST(Rows, AreCountedFromOneToTheCapacity) {
  Rows<std::string, 3> rows;
  rows[1] = "first";
  rows[3] = "last";
  EXPECT_EQ(rows[1], "first");
  EXPECT_EQ(rows[2], "");
  EXPECT_EQ(rows[3], "last");
}

TEST(Rows, RefuseEveryOtherIndex) {
  Rows<int, 3> rows;
  const Rows<int, 3>& untouched = rows;
  for (const int row : {0, 4, -1, 1000000}) {
    EXPECT_THROW(rows[row] = 1, Subscript_failure) << row;
    EXPECT_THROW(static_cast<void>(untouched[row]), Subscript_failure) << row;
  }
  EXPECT_EQ(untouched[3], 0);
}

TEST(Rows, KeepTheirPlaceInMemory) {
  Rows<int, 100> rows;
  const int* first = &rows[1];
  for (int i = 1; i <= 100; ++i) rows[i] = i;
  EXPECT_EQ(&rows[1], first);
  EXPECT_EQ(&rows[100], first + 99);
}

}  // namespace
