#include "exchange/shape_box.h"

#include <algorithm>

namespace exchange {

Shape_box shape_box(const std::vector<drawing::Point>& points) {
  if (points.empty()) return {};
  Shape_box box{points.front(), points.front()};
  for (const drawing::Point& point : points) {
    box.least = {std::min(box.least.x, point.x), std::min(box.least.y, point.y)};
    box.most = {std::max(box.most.x, point.x), std::max(box.most.y, point.y)};
  }
  return box;
}

}  // namespace exchange
