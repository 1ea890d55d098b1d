// Courses, that is lines of points: smoothing, offsetting and measuring them.
#pragma once

#include <vector>

#include "make_sample/streams.h"

namespace sample {

using ground::Point;
using Course = std::vector<Point>;

double distance(Point a, Point b);
// Angle of the way from a to b, radians from east, counter-clockwise.
double angle_of(Point a, Point b);

// Cuts the corners twice (Chaikin 1974); the ends stay.
Course smooth(const Course& course);
// Each point becomes the mean of itself and `window` points on either side, fewer near the ends.
Course even_out(const Course& course, int window);
// A course beside the given one, `metres` to its left.
Course beside(const Course& course, double metres);
double length_of(const Course& course);

struct Nearest {
  Point at;
  double distance = 1e9;
  std::size_t index = 0;  // of the course's point
};
// The nearest point among a course's points.
Nearest nearest_point(const Course& course, Point to);

// A place on a course, and its direction there.
struct Stop {
  Point at;
  double angle = 0;
};
// Places along a course, every `spacing` metres, the first after half of it.
std::vector<Stop> stops(const Course& course, double spacing);

}  // namespace sample
