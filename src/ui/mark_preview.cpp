#include "ui/mark_preview.h"

#include <QImage>
#include <QPainter>

#include <array>

#include "observations/mark_out.h"
#include "observations/marks.h"
#include "platform/numbers.h"
#include "ui/painter_surface.h"

namespace ui {

namespace {

using drawing::Point;

constexpr double line_pen = 2;      // as the map draws lines and enclosures
constexpr double word_height = 22;  // canvas units: 11 pixels

drawing::Colour colour_of(const observations::Colour& colour) {
  return observations::colour_of(colour.red, colour.green, colour.blue);
}

void line_sample_out(drawing::Surface& surface, Point at, drawing::Colour colour) {
  const std::array<Point, 4> bends{{{-40, 20}, {-12, -18}, {10, 14}, {40, -22}}};
  for (std::size_t i = 1; i < bends.size(); ++i)
    observations::ld(surface, {at.x + bends[i - 1].x, at.y + bends[i - 1].y}, {at.x + bends[i].x, at.y + bends[i].y},
                     colour, line_pen);
}

void area_sample_out(drawing::Surface& surface, Point at, drawing::Colour colour) {
  const std::array<Point, 5> corners{{{at.x - 40, at.y + 4},
                                      {at.x - 16, at.y - 30},
                                      {at.x + 34, at.y - 22},
                                      {at.x + 40, at.y + 18},
                                      {at.x - 10, at.y + 32}}};
  surface.polygon(corners, {colour, line_pen}, {});
}

}  // namespace

void mark_sample_out(drawing::Surface& surface, Point at, const observations::Entry_boxes& boxes) {
  const std::string& mark = boxes.Combo1;
  if (observations::is_line(mark)) return line_sample_out(surface, at, colour_of(boxes.Shape4));
  if (observations::is_area(mark)) area_sample_out(surface, at, colour_of(boxes.Shape4));
  if (observations::is_word(mark)) {
    const Point place{at.x - 50, at.y - word_height / 2};
    surface.text(place, boxes.Text14[observations::box_soukou], {.height = word_height}, colour_of(boxes.Shape1), 0);
    return;
  }
  observations::mark_out(surface, at, colour_of(boxes.Shape1), platform::val(boxes.Combo3), mark);
}

Mark_preview::Mark_preview(int side, QWidget* parent) : QWidget(parent) {
  setFixedSize(side, side);
}

void Mark_preview::show_painted(Paint paint) {
  paint_ = std::move(paint);
  update();
}

void Mark_preview::paintEvent(QPaintEvent*) {
  const double ratio = devicePixelRatioF();
  QImage image((QSizeF(size()) * ratio).toSize(), QImage::Format_RGB32);
  image.fill(Qt::white);
  if (paint_ && isEnabled()) {
    Painter_surface surface(image, ratio, {}, image.rect());
    paint_(surface, {double(width()), double(height())});  // a canvas unit is half a pixel
  }
  image.setDevicePixelRatio(ratio);
  QPainter painter(this);
  painter.drawImage(QPointF(0, 0), image);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

}  // namespace ui
