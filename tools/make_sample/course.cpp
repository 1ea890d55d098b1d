#include "make_sample/course.h"

#include <algorithm>
#include <cmath>

namespace sample {

double distance(Point a, Point b) {
  return std::hypot(a.x - b.x, a.y - b.y);
}

double angle_of(Point a, Point b) {
  return std::atan2(b.y - a.y, b.x - a.x);
}

namespace {

Course cut_corners(const Course& course) {
  Course cut{course.front()};
  for (std::size_t i = 1; i < course.size(); ++i) {
    const Point a = course[i - 1], b = course[i];
    cut.push_back({0.75 * a.x + 0.25 * b.x, 0.75 * a.y + 0.25 * b.y});
    cut.push_back({0.25 * a.x + 0.75 * b.x, 0.25 * a.y + 0.75 * b.y});
  }
  cut.push_back(course.back());
  return cut;
}

}  // namespace

Course smooth(const Course& course) {
  if (course.size() < 3) return course;
  return cut_corners(cut_corners(course));
}

Course even_out(const Course& course, int window) {
  Course even;
  const int count = static_cast<int>(course.size());
  for (int i = 0; i < count; ++i) {
    const int reach = std::min({window, i, count - 1 - i});
    Point sum;
    for (int k = i - reach; k <= i + reach; ++k) {
      sum.x += course[static_cast<std::size_t>(k)].x;
      sum.y += course[static_cast<std::size_t>(k)].y;
    }
    even.push_back({sum.x / (2 * reach + 1), sum.y / (2 * reach + 1)});
  }
  return even;
}

Course beside(const Course& course, double metres) {
  Course moved;
  for (std::size_t i = 0; i < course.size(); ++i) {
    const double angle = angle_of(course[i > 0 ? i - 1 : 0], course[std::min(i + 1, course.size() - 1)]);
    moved.push_back({course[i].x - metres * std::sin(angle), course[i].y + metres * std::cos(angle)});
  }
  return moved;
}

double length_of(const Course& course) {
  double length = 0;
  for (std::size_t i = 1; i < course.size(); ++i) length += distance(course[i - 1], course[i]);
  return length;
}

Nearest nearest_point(const Course& course, Point to) {
  Nearest nearest;
  for (std::size_t i = 0; i < course.size(); ++i) {
    const double away = distance(course[i], to);
    if (away < nearest.distance) nearest = {course[i], away, i};
  }
  return nearest;
}

std::vector<Stop> stops(const Course& course, double spacing) {
  std::vector<Stop> places;
  double left = spacing / 2;
  for (std::size_t i = 1; i < course.size(); ++i) {
    const double length = distance(course[i - 1], course[i]);
    double gone = left;
    for (; gone <= length; gone += spacing) {
      const double t = gone / length;
      places.push_back({{course[i - 1].x + t * (course[i].x - course[i - 1].x),
                         course[i - 1].y + t * (course[i].y - course[i - 1].y)},
                        angle_of(course[i - 1], course[i])});
    }
    left = gone - length;
  }
  return places;
}

}  // namespace sample
