#include "ui/gps_mark.h"

namespace ui {

namespace {

constexpr double radius = 5;  // logical pixels
constexpr double arm = 16;

void paint_cross(QPainter& painter, QPointF at) {
  painter.drawEllipse(at, radius, radius);
  painter.drawLine(at - QPointF(arm, 0), at + QPointF(arm, 0));
  painter.drawLine(at - QPointF(0, arm), at + QPointF(0, arm));
}

}  // namespace

void paint_gps_mark(QPainter& painter, const QRect& canvas, maps::Canvas& map, const instruments::Gps_mark& mark) {
  if (!mark.visible) return;
  const maps::Canvas_point place = instruments::gps_mark_at(map, mark);
  const QPointF at = QPointF(place.x, place.y) / 2;  // a canvas unit is half a logical pixel
  if (!QRectF(canvas).adjusted(-arm, -arm, arm, arm).contains(at)) return;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(QColor(255, 255, 255, 200), 4));
  paint_cross(painter, at);
  painter.setPen(QPen(Qt::black, 1.5));
  paint_cross(painter, at);
  painter.restore();
}

}  // namespace ui
