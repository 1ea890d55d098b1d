#include "geodesy/plane.h"

#include <gtest/gtest.h>

#include "platform/failures.h"

namespace {

using namespace geodesy;

TEST(Point_side, OneOrMinusOneByTheTurn) {
  EXPECT_EQ(point_side({0, 0}, {1, 0}, {0, 1}), 1);
  EXPECT_EQ(point_side({0, 0}, {0, 1}, {1, 0}), -1);
  EXPECT_EQ(point_side({10, 10}, {11, 10}, {11, 10.001}), 1);
}

TEST(Point_side, InOneLine) {
  EXPECT_EQ(point_side({0, 0}, {4, 2}, {2, 1}), 2);    // B between P and A
  EXPECT_EQ(point_side({0, 0}, {4, 2}, {4, 2}), 2);    // no further than A
  EXPECT_EQ(point_side({0, 0}, {4, 2}, {0, 0}), 2);    // B at P
  EXPECT_EQ(point_side({0, 0}, {4, 2}, {6, 3}), 0);    // beyond A
  EXPECT_EQ(point_side({0, 0}, {4, 2}, {-2, -1}), 0);  // on the other side of P
}

TEST(Point_side, OverflowIsAFailure) {
  EXPECT_THROW(point_side({0, 0}, {1e200, 0}, {0, 1e200}), platform::Division_failure);
  // In one line the comparison of the distances overflows, not the turn.
  EXPECT_THROW(point_side({0, 0}, {1e200, 0}, {1e200, 0}), platform::Division_failure);
  EXPECT_THROW(point_side({0, 0}, {0, 1}, {0, 1e200}), platform::Division_failure);
}

constexpr Point a{0, 0}, b{10, 0}, c{0, 10};

bool inside(Point p) {
  const bool turned_left = point_in_triangle(p, a, b, c);
  EXPECT_EQ(turned_left, point_in_triangle(p, a, c, b)) << p.x << " " << p.y;
  EXPECT_EQ(turned_left, point_in_triangle(p, b, c, a)) << p.x << " " << p.y;
  return turned_left;
}

TEST(Point_in_triangle, TheInnerPointsAreInside) {
  EXPECT_TRUE(inside({3, 3}));
  EXPECT_TRUE(inside({0.001, 0.001}));
}

TEST(Point_in_triangle, APointBeyondAnEdgeIsOutside) {
  for (const Point p : {Point{6, 6}, {-1, 5}, {5, -1}, {-1, -1}, {30, 1}}) EXPECT_FALSE(inside(p));
}

TEST(Point_in_triangle, EveryVertexIsInside) {
  for (const Point p : {a, b, c}) EXPECT_TRUE(inside(p));
}

TEST(Point_in_triangle, EveryEdgeIsInsideAndItsProlongationIsNot) {
  for (const Point p : {Point{5, 0}, {0, 5}, {5, 5}}) EXPECT_TRUE(inside(p));
  for (const Point p : {Point{11, 0}, {-1, 0}, {0, 11}, {0, -1}, {11, -1}, {-1, 11}}) EXPECT_FALSE(inside(p));
}

TEST(Point_in_triangle, OfNoAreaHoldsItsEdgesOnly) {
  EXPECT_TRUE(point_in_triangle({2, 2}, {0, 0}, {5, 5}, {10, 10}));
  EXPECT_FALSE(point_in_triangle({11, 11}, {0, 0}, {5, 5}, {10, 10}));
  EXPECT_FALSE(point_in_triangle({2, 3}, {0, 0}, {5, 5}, {10, 10}));
}

TEST(Days_between, CountsOverMonthsAndLeapYears) {
  EXPECT_EQ(days_between(2005, 1, 1, 2005, 1, 1), 0);
  EXPECT_EQ(days_between(2005, 1, 1, 2005, 12, 31), 364);
  EXPECT_EQ(days_between(2000, 2, 28, 2000, 3, 1), 2);
  EXPECT_EQ(days_between(1900, 2, 28, 1900, 3, 1), 1);
  EXPECT_EQ(days_between(1970, 1, 1, 2000, 1, 1), 10957);
  EXPECT_EQ(days_between(2008, 6, 5, 2005, 1, 1), -1251);  // 365 + 365 + 365 + 156
}

TEST(Days_between, RunsOnOverAMonthOrDayBeyondItsRange) {
  EXPECT_EQ(days_between(2005, 1, 1, 2004, 13, 1), 0);
  EXPECT_EQ(days_between(2005, 1, 1, 2005, 0, 1), -31);
  EXPECT_EQ(days_between(2005, 1, 1, 2005, 2, 31), 61);
  EXPECT_EQ(days_between(2005, 1, 1, 2005, -12, 1), -397);  // December 2003: 31 + 366
}

TEST(Days_between, AYearBeyondTheCalendarIsAFailure) {
  EXPECT_THROW(days_between(2005, 1, 1, 40000, 1, 1), platform::Division_failure);
  EXPECT_THROW(days_between(-2147483647 - 1, 1, 1, 2005, 1, 1), platform::Division_failure);
  EXPECT_THROW(days_between(2005, 1, 2147483647, 2005, 1, -2147483647), platform::Division_failure);
}

}  // namespace
