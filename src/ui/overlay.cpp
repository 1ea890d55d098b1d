#include "ui/overlay.h"

#include <QFontMetrics>
#include <algorithm>

#include "maps/scale_bar.h"
#include "observations/marks.h"
#include "ui/canvas_view.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

// The section line's labels stand this far above its ends, in twips.
constexpr double label_rise = 50;
constexpr int widest_scale_bar = 160;
constexpr int edge = 14;
constexpr double highlight_radius = 13, marker_radius = 9;
const QColor highlight_colour(0x00, 0x7a, 0xcc);
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

// Where a position of the records stands, in logical pixels. Far-off places stay within what a painter can take.
QPointF pixels_of(maps::Canvas& canvas, geodesy::Point position) {
  constexpr double far = 1e5;
  const maps::Canvas_point at = maps::henkan_px(canvas, position.x, position.y);
  return {std::clamp(at.x / 2.0, -far, far), std::clamp(at.y / 2.0, -far, far)};
}

QPolygonF pixels_of(maps::Canvas& canvas, const std::vector<geodesy::Point>& vertices) {
  QPolygonF polygon;
  for (const geodesy::Point& vertex : vertices) polygon << pixels_of(canvas, vertex);
  return polygon;
}

// Light below, colour above, so that it is seen on any map.
void paint_ring(QPainter& painter, QPointF at, double radius, const QColor& colour) {
  painter.setBrush(Qt::NoBrush);
  for (const QPen& pen : {QPen(paper, 5), QPen(colour, 2.5)}) {
    painter.setPen(pen);
    painter.drawEllipse(at, radius, radius);
  }
}

void paint_highlight(QPainter& painter, maps::Canvas& canvas, const session::Session& session) {
  if (session.highlighted < 1 || session.highlighted > session.registry.N || session.entry.open) return;
  const observations::Record& record = session.registry.rows[session.highlighted];
  paint_ring(painter, pixels_of(canvas, {record.X, record.Y}), highlight_radius, highlight_colour);
}

// The marker Shape of the record in the panel: a ring with a cross, its middle free.
void paint_marker(QPainter& painter, maps::Canvas& canvas, const session::Session& session) {
  if (!session.entry.open) return;
  const QPointF at = pixels_of(canvas, observations::position_of(session.entry.boxes));
  paint_ring(painter, at, marker_radius, Qt::red);
  painter.setPen(QPen(Qt::red, 1.5));
  for (const QPointF& towards : {QPointF(1, 0), QPointF(-1, 0), QPointF(0, 1), QPointF(0, -1)})
    painter.drawLine(at + towards * (marker_radius - 5), at + towards * (marker_radius + 5));
}

void paint_vertices(QPainter& painter, const QPolygonF& places) {
  painter.setPen(QPen(Qt::red, 1.5));
  painter.drawPolyline(places);
  painter.setBrush(Qt::white);
  for (const QPointF& place : places) painter.drawRect(QRectF(place - QPointF(2.5, 2.5), QSizeF(5, 5)));
  painter.setBrush(Qt::NoBrush);
}

// The line that is being drawn, its free end at the mouse; else the line of the record in the panel.
void paint_line_input(QPainter& painter, maps::Canvas& canvas, const session::Session& session) {
  if (session.flags.line_mode > 0) {
    const QPolygonF places = pixels_of(canvas, session.line.vertices);
    paint_vertices(painter, places);
    if (places.isEmpty()) return;
    painter.setPen(QPen(Qt::red, 1.5, session.line_end_fixed ? Qt::SolidLine : Qt::DashLine));
    painter.drawLine(places.back(), pixels_of(canvas, session.line_end));
    return;
  }
  const observations::Entry& entry = session.entry;
  if (!entry.open || entry.touroku < 1 || entry.touroku > session.registry.N) return;
  if (!observations::is_area(entry.boxes.Combo1) && !observations::is_line(entry.boxes.Combo1)) return;
  paint_vertices(painter, pixels_of(canvas, session.registry.rows[entry.touroku].vertices));
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
  maps::Canvas map = session.canvas;
  paint_highlight(painter, map, session);
  paint_line_input(painter, map, session);
  paint_marker(painter, map, session);
  paint_line(painter, session.section_rubber);
  paint_box(painter, session.zoom_rubber);
  paint_box(painter, session.model_rubber);
}

void paint_invitation(QPainter& painter, const QRect& canvas, const QString& text) {
  painter.setPen(QColor(0x60, 0x68, 0x70));
  painter.drawText(canvas.adjusted(40, 0, -40, 0), Qt::AlignCenter | Qt::TextWordWrap, text);
}

}  // namespace ui
