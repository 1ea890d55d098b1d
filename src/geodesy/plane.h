// Small plane and calendar tests that the drawing and the grids share.
#pragma once

namespace geodesy {

struct Point {
  double x = 0;
  double y = 0;
};

// With a = A - P and b = B - P turning from a to b: 1 when counter-clockwise (b.x * a.y < b.y * a.x), -1 when
// clockwise. In one line: 2 when B lies on A's side of P and no further away than A (B equal to P too), otherwise 0.
// Division_failure where the products overflow.
int point_side(Point p, Point a, Point b);

// True for a point inside the triangle (of either turning), on an edge or on a vertex; false on the prolongation of an
// edge. Each edge is tested with its start as the point and `p` in the place of its far end.
bool point_in_triangle(Point p, Point a, Point b, Point c);

// Whole days from the first date to the second, negative when the second is earlier; Gregorian calendar. A month or day
// beyond its range runs on into the next or the previous ones (month 13 is January of the next year). Division_failure
// for a year that the calendar does not hold (-32,767 to 32,767).
int days_between(int year1, int month1, int day1, int year2, int month2, int day2);

}  // namespace geodesy
