#include "ui/overlay.h"

#include <QFontMetrics>

#include "maps/scale_bar.h"
#include "ui/canvas_view.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

// The section line's labels stand this far above its ends, in twips.
constexpr double label_rise = 50;
constexpr int widest_scale_bar = 160;
constexpr int edge = 14;
const QColor paper(255, 255, 255, 215);
const QColor ink(0x20, 0x20, 0x20);

QPointF to_pixels(double x, double y) {
  return QPointF(x, y) / twips_per_pixel;
}

void paint_line(QPainter& painter, const session::Rubber& rubber) {
  if (!rubber.visible) return;
  painter.setPen(QPen(Qt::red, 1.5));
  painter.drawLine(to_pixels(rubber.x0, rubber.y0), to_pixels(rubber.x1, rubber.y1));
}

void paint_box(QPainter& painter, const session::Rubber& rubber) {
  if (!rubber.visible) return;
  const QRectF box = QRectF(to_pixels(rubber.x0, rubber.y0), to_pixels(rubber.x1, rubber.y1)).normalized();
  painter.setPen(QPen(QColor(0xc0, 0x10, 0x10), 1.5, Qt::DashLine));
  painter.setBrush(QColor(0x2b, 0x6c, 0xb0, 36));
  painter.drawRect(box);
  painter.setBrush(Qt::NoBrush);
}

void paint_label(QPainter& painter, QPointF end, const QString& text) {
  const QFontMetricsF metrics(painter.font());
  const QPointF base = end - QPointF(metrics.horizontalAdvance(text) / 2, label_rise / twips_per_pixel);
  const QRectF box = metrics.boundingRect(text).translated(base).adjusted(-3, -1, 3, 1);
  painter.fillRect(box, paper);
  painter.setPen(QColor(0xb0, 0, 0));
  painter.drawText(base, text);
}

void paint_section(QPainter& painter, const session::Section_controls& controls) {
  if (!controls.visible) return;
  const QPointF first = to_pixels(controls.x0, controls.y0);
  const QPointF second = to_pixels(controls.x1, controls.y1);
  painter.setPen(QPen(Qt::red, 2));
  painter.drawLine(first, second);
  paint_label(painter, first, "A");
  paint_label(painter, second, "A'");
}

void paint_scale(QPainter& painter, const QRect& canvas, const maps::Canvas& map) {
  const maps::Scale_bar bar = maps::scale_bar(map, 2.0 * widest_scale_bar);
  if (bar.units <= 0) return;
  const double width = bar.units / 2;
  const QString text = to_toolkit(bar.text);
  const QFontMetrics metrics(painter.font());
  const QRectF box(edge, canvas.bottom() - edge - metrics.height() - 14,
                   width + 24 + metrics.horizontalAdvance(text) / 2, metrics.height() + 14);
  painter.setPen(Qt::NoPen);
  painter.setBrush(paper);
  painter.drawRoundedRect(box, 4, 4);
  const double left = box.left() + 10;
  const double base = box.bottom() - 5;
  painter.setPen(ink);
  painter.drawText(QPointF(left, base - 7), "0");
  painter.drawText(QPointF(left + width - metrics.horizontalAdvance(text) / 2, base - 7), text);
  painter.setBrush(ink);
  painter.drawRect(QRectF(left, base - 4, width / 2, 4));
  painter.setBrush(Qt::white);
  painter.drawRect(QRectF(left + width / 2, base - 4, width / 2, 4));
  painter.setBrush(Qt::NoBrush);
}

// The arrow points to the map's north: downwards on a sheet whose canvas y grows northwards.
void paint_north(QPainter& painter, const QRect& canvas, const maps::Canvas& map) {
  painter.save();
  painter.translate(canvas.right() - edge - 18, edge + 26);
  painter.setPen(Qt::NoPen);
  painter.setBrush(paper);
  painter.drawEllipse(QPointF(0, 0), 24, 24);
  const double up = map.y_mode == 1 ? 1 : -1;
  painter.setPen(QPen(ink, 1));
  painter.setBrush(ink);
  painter.drawPolygon(QPolygonF({QPointF(0, 15 * up), QPointF(-6, -7 * up), QPointF(0, -3 * up)}));
  painter.setBrush(Qt::white);
  painter.drawPolygon(QPolygonF({QPointF(0, 15 * up), QPointF(6, -7 * up), QPointF(0, -3 * up)}));
  QFont bold = painter.font();
  bold.setBold(true);
  painter.setFont(bold);
  painter.drawText(QRectF(-12, up < 0 ? 5 : -23, 24, 18), Qt::AlignCenter, "N");
  painter.restore();
}

}  // namespace

void paint_fixed_controls(QPainter& painter, const QRect& canvas, const session::Session& session) {
  painter.setRenderHint(QPainter::Antialiasing);
  paint_section(painter, session.section_controls);
  paint_scale(painter, canvas, session.canvas);
  paint_north(painter, canvas, session.canvas);
}

void paint_controls(QPainter& painter, const QRect& canvas, const session::Session& session) {
  paint_fixed_controls(painter, canvas, session);
  paint_line(painter, session.section_rubber);
  paint_box(painter, session.zoom_rubber);
  paint_box(painter, session.model_rubber);
}

void paint_invitation(QPainter& painter, const QRect& canvas, const QString& text) {
  painter.setPen(QColor(0x60, 0x68, 0x70));
  painter.drawText(canvas.adjusted(40, 0, -40, 0), Qt::AlignCenter | Qt::TextWordWrap, text);
}

}  // namespace ui
