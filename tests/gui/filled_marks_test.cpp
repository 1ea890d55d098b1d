// The filled marks beside the nested outlines that they stand for: each outline again with a half size that falls from
// the mark's own by one to none.
#include <gtest/gtest.h>

#include <QImage>

#include <cmath>
#include <functional>
#include <string>

#include "observations/mark_out.h"
#include "ui/painter_surface.h"

namespace {

using drawing::Point;

constexpr Point centre{80, 80};
constexpr double pen = 2;

// From corner to corner and back to the first.
void outline(drawing::Surface& surface, std::initializer_list<Point> offsets) {
  const Point* before = offsets.end() - 1;
  for (const Point& offset : offsets) {
    observations::ld(surface, {centre.x + before->x, centre.y + before->y}, {centre.x + offset.x, centre.y + offset.y},
                     drawing::black, pen);
    before = &offset;
  }
}

void nested(drawing::Surface& surface, const std::string& mark, double h) {
  const auto line = [&](double x1, double y1, double x2, double y2) {
    observations::ld(surface, {centre.x + x1, centre.y + y1}, {centre.x + x2, centre.y + y2}, drawing::black, pen);
  };
  for (double v = h; v >= 0; v -= 1) {
    if (mark == "●") observations::lc(surface, centre, std::max(v, 2.0), drawing::black, pen);
    if (mark == "▲") outline(surface, {{0, -v}, {v, v}, {-v, v}});
    if (mark == "■") outline(surface, {{-v, -v}, {v, -v}, {v, v}, {-v, v}});
    if (mark == "◆") outline(surface, {{0, -v}, {v, 0}, {0, v}, {-v, 0}});
    if (mark == "▼") {
      line(-v, -v, 0, v);
      line(0, std::floor(h + 0.5), v, -v);
      line(v, -v, -v, -v);
    }
  }
}

QImage page_with(double ratio, const std::function<void(drawing::Surface&)>& draw) {
  const int side = static_cast<int>(80 * ratio);
  QImage page(side, side, QImage::Format_RGB32);
  page.fill(Qt::white);
  ui::Painter_surface surface(page, ratio, {}, page.rect());
  draw(surface);
  return page;
}

double ink(const QImage& page) {
  double sum = 0;
  for (int y = 0; y < page.height(); ++y)
    for (int x = 0; x < page.width(); ++x) sum += (255 - qGreen(page.pixel(x, y))) / 255.0;
  return sum;
}

double difference(const QImage& a, const QImage& b) {
  double sum = 0;
  for (int y = 0; y < a.height(); ++y)
    for (int x = 0; x < a.width(); ++x) sum += std::abs(qGreen(a.pixel(x, y)) - qGreen(b.pixel(x, y))) / 255.0;
  return sum;
}

}  // namespace

// What may differ are the edges, by less than half a pixel's width around a mark: four lines of so many pixels each.
TEST(Filled_marks, LookLikeTheirNestedOutlines) {
  for (const double ratio : {1.0, 2.0})
    for (const char* mark : {"●", "▲", "■", "◆", "▼"})
      for (int size = 1; size <= 10; ++size) {
        SCOPED_TRACE(mark + std::to_string(size) + " at " + std::to_string(ratio));
        const double h = observations::mark_half(size);
        const QImage filled = page_with(ratio, [&](drawing::Surface& surface) {
          observations::mark_out(surface, centre, drawing::black, size, mark);
        });
        const QImage outlines = page_with(ratio, [&](drawing::Surface& surface) { nested(surface, mark, h); });
        const double edge = 4 * 2 * h * ratio / 2;  // pixels around a square of this half size
        EXPECT_LT(difference(filled, outlines), 0.5 * edge + 8);
        EXPECT_NEAR(ink(filled), ink(outlines), 0.5 * edge + 8);
        EXPECT_GT(ink(filled), 0.4 * std::pow(h * ratio, 2) / 2);
      }
}

// No hole: the middle of each mark is black, and so is each place well within it.
TEST(Filled_marks, HaveNoHole) {
  for (const char* mark : {"●", "▲", "■", "◆", "▼"})
    for (int size = 1; size <= 10; ++size) {
      const QImage page = page_with(
          2, [&](drawing::Surface& surface) { observations::mark_out(surface, centre, drawing::black, size, mark); });
      const int within = static_cast<int>(observations::mark_half(size) / 3);
      for (int y = -within; y <= within; ++y)
        for (int x = -within; x <= within; ++x)
          EXPECT_EQ(qGreen(page.pixel(80 + x, 80 + y)), 0) << mark << size << " at " << x << " " << y;
    }
}
