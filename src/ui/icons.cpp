#include "ui/icons.h"

#include <QGuiApplication>
#include <QPainter>
#include <QPainterPath>
#include <QPalette>
#include <QPixmap>

namespace ui {

namespace {

// All icons are drawn on a field of 24 x 24.
constexpr double field = 24;
const QColor accent(0x2b, 0x6c, 0xb0);
const QColor line_red(0xd0, 0x30, 0x30);

void draw_lens(QPainter& painter) {
  painter.drawEllipse(QPointF(10, 10), 6.5, 6.5);
  painter.drawLine(QPointF(15, 15), QPointF(20.5, 20.5));
}

void draw_zoom(QPainter& painter, bool in) {
  draw_lens(painter);
  painter.drawLine(QPointF(7, 10), QPointF(13, 10));
  if (in) painter.drawLine(QPointF(10, 7), QPointF(10, 13));
}

void draw_reset(QPainter& painter) {
  painter.drawRect(QRectF(4, 5, 16, 14));
  painter.drawLine(QPointF(8, 12), QPointF(16, 12));
  painter.drawLine(QPointF(12, 9), QPointF(12, 15));
}

void draw_zoom_box(QPainter& painter) {
  QPen dashed = painter.pen();
  const QPen solid = dashed;
  dashed.setDashPattern({2, 1.6});
  painter.setPen(dashed);
  painter.drawRect(QRectF(3, 4, 14, 11));
  painter.setPen(solid);
  painter.drawEllipse(QPointF(15, 14), 4.2, 4.2);
  painter.drawLine(QPointF(18.2, 17.2), QPointF(21.5, 20.5));
}

void draw_section(QPainter& painter) {
  painter.setPen(QPen(line_red, 2));
  painter.drawLine(QPointF(4, 18), QPointF(20, 7));
  painter.setBrush(line_red);
  painter.drawEllipse(QPointF(4, 18), 1.8, 1.8);
  painter.drawEllipse(QPointF(20, 7), 1.8, 1.8);
}

void draw_save(QPainter& painter) {
  painter.drawRect(QRectF(3.5, 4.5, 17, 12));
  painter.drawPolyline(QPolygonF({QPointF(4, 14), QPointF(9, 9), QPointF(13, 13), QPointF(16, 10), QPointF(20, 14)}));
  painter.drawLine(QPointF(12, 17), QPointF(12, 22));
  painter.drawPolyline(QPolygonF({QPointF(9.5, 19.5), QPointF(12, 22), QPointF(14.5, 19.5)}));
}

// A dip symbol over strata: the program's own mark.
void draw_program(QPainter& painter) {
  painter.setPen(Qt::NoPen);
  painter.setBrush(QColor(0xf4, 0xee, 0xdc));
  painter.drawRoundedRect(QRectF(1, 1, 22, 22), 4, 4);
  const QColor strata[] = {{0xd9, 0xb3, 0x78}, {0x9d, 0xb6, 0x7c}, {0x7c, 0x9a, 0xb5}};
  for (int i = 0; i < 3; ++i) {
    QPainterPath band(QPointF(1, 12 + 3.4 * i));
    band.cubicTo(8, 8 + 3.4 * i, 15, 18 + 3.4 * i, 23, 12.5 + 3.4 * i);
    band.lineTo(23, 16 + 3.4 * i);
    band.cubicTo(15, 21.5 + 3.4 * i, 8, 11.5 + 3.4 * i, 1, 15.4 + 3.4 * i);
    band.closeSubpath();
    painter.setClipRect(QRectF(1, 1, 22, 21));
    painter.fillPath(band, strata[i]);
  }
  painter.setClipping(false);
  painter.setPen(QPen(QColor(0x22, 0x33, 0x55), 2, Qt::SolidLine, Qt::RoundCap));
  painter.drawLine(QPointF(5, 8.5), QPointF(19, 5));
  painter.drawLine(QPointF(12, 6.8), QPointF(13.2, 11.4));
}

// The receiver's mark on the map: cross lines and a circle.
void draw_gps(QPainter& painter) {
  painter.drawEllipse(QPointF(12, 12), 5.5, 5.5);
  for (const QLineF& line :
       {QLineF(12, 2, 12, 6.5), QLineF(12, 17.5, 12, 22), QLineF(2, 12, 6.5, 12), QLineF(17.5, 12, 22, 12)})
    painter.drawLine(line);
  painter.setBrush(painter.pen().color());
  painter.drawEllipse(QPointF(12, 12), 1.6, 1.6);
}

QPixmap drawn(Icon icon, int size, const QColor& colour) {
  QPixmap pixmap(size, size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / field, size / field);
  painter.setPen(QPen(colour, 1.8, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  switch (icon) {
    case Icon::program:
      draw_program(painter);
      break;
    case Icon::zoom_in:
    case Icon::zoom_out:
      draw_zoom(painter, icon == Icon::zoom_in);
      break;
    case Icon::zoom_reset:
      draw_reset(painter);
      break;
    case Icon::zoom_box:
      draw_zoom_box(painter);
      break;
    case Icon::section:
      draw_section(painter);
      break;
    case Icon::save_range:
      draw_save(painter);
      break;
    case Icon::gps:
      draw_gps(painter);
      break;
  }
  return pixmap;
}

}  // namespace

QIcon make_icon(Icon icon) {
  const QColor grey = QGuiApplication::palette().color(QPalette::Disabled, QPalette::WindowText);
  QIcon result;
  for (const int size : {24, 32, 48, 64, 128}) {
    result.addPixmap(drawn(icon, size, accent));
    result.addPixmap(drawn(icon, size, grey), QIcon::Disabled);
  }
  return result;
}

}  // namespace ui
