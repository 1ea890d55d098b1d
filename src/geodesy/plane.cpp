#include "geodesy/plane.h"

#include <chrono>

#include "geodesy/arithmetic.h"

namespace geodesy {
namespace {

// Days since 1970-01-01.
long long day_number(int year, int month, int day) {
  const long long months = year * 12LL + month - 1;
  const long long whole_years = (months >= 0 ? months : months - 11) / 12;
  if (whole_years < -32767 || whole_years > 32767) throw platform::Division_failure("a year beyond the calendar");
  const std::chrono::year calendar_year(static_cast<int>(whole_years));
  const std::chrono::month calendar_month(static_cast<unsigned>(months - whole_years * 12 + 1));
  const std::chrono::sys_days first = calendar_year / calendar_month / 1;
  return first.time_since_epoch().count() + day - 1LL;
}

}  // namespace

int point_side(Point p, Point a, Point b) {
  const double dx1 = p.x - a.x;
  const double dy1 = p.y - a.y;
  const double dx2 = p.x - b.x;
  const double dy2 = p.y - b.y;
  const double left = finite(dx2 * dy1);
  const double right = finite(dy2 * dx1);
  if (left < right) return 1;
  if (left > right) return -1;
  const bool same_way = finite(dx2 * dx1) >= 0 && finite(dy2 * dy1) >= 0;
  return same_way && finite(dx2 * dx2 + dy2 * dy2) <= finite(dx1 * dx1 + dy1 * dy1) ? 2 : 0;
}

bool point_in_triangle(Point p, Point a, Point b, Point c) {
  const int ab = point_side(a, b, p);
  const int bc = point_side(b, c, p);
  const int ca = point_side(c, a, p);
  if (ab == 2 || bc == 2 || ca == 2) return true;
  return ab == bc && bc == ca && ab != 0;
}

int days_between(int year1, int month1, int day1, int year2, int month2, int day2) {
  return whole(static_cast<double>(day_number(year2, month2, day2) - day_number(year1, month1, day1)));
}

}  // namespace geodesy
