#include "ui/painter_surface.h"

#include <algorithm>
#include <future>

#include "drawing/picture_scaler.h"
#include "drawing/sheet_picture.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

// Past this many device pixels a picture is painted in two halves at once.
constexpr int pixels_worth_two_threads = 100'000;

QColor to_colour(drawing::Colour colour) {
  return QColor::fromRgb(colour);
}

QBrush to_brush(const drawing::Fill& fill) {
  QColor colour = to_colour(fill.colour);
  switch (fill.style) {
    case drawing::Fill_style::none:
      return Qt::NoBrush;
    case drawing::Fill_style::solid:
      return colour;
    case drawing::Fill_style::see_through:
      colour.setAlpha(96);
      return colour;
    case drawing::Fill_style::hatched:
      return QBrush(colour, Qt::BDiagPattern);
  }
  return Qt::NoBrush;
}

}  // namespace

Painter_surface::Painter_surface(QImage& image, double device_ratio, QPointF shift, QRect clip)
    : image_(image),
      unit_(device_ratio / 2),
      device_ratio_(device_ratio),
      shift_(shift),
      clip_(clip & image.rect()),
      painter_(&image) {
  painter_.setClipRect(clip_);
  painter_.setRenderHint(QPainter::Antialiasing);
}

QPointF Painter_surface::to_device(drawing::Point point) const {
  return QPointF(point.x * unit_, point.y * unit_) + shift_;
}

QPen Painter_surface::to_pen(const drawing::Pen& pen) const {
  if (pen.style == drawing::Line_style::none) return Qt::NoPen;
  QPen result(to_colour(pen.colour), pen.width * device_ratio_);
  if (pen.style == drawing::Line_style::dashed) result.setStyle(Qt::DashLine);
  if (pen.style == drawing::Line_style::dotted) result.setStyle(Qt::DotLine);
  return result;
}

void Painter_surface::clear(drawing::Colour colour) {
  painter_.fillRect(clip_, to_colour(colour));
}

void Painter_surface::line(drawing::Point from, drawing::Point to, const drawing::Pen& pen) {
  painter_.setPen(to_pen(pen));
  painter_.drawLine(to_device(from), to_device(to));
}

void Painter_surface::polyline(std::span<const drawing::Point> points, const drawing::Pen& pen) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const drawing::Point point : points) polygon.append(to_device(point));
  painter_.setPen(to_pen(pen));
  painter_.drawPolyline(polygon);
}

void Painter_surface::polygon(std::span<const drawing::Point> points, const drawing::Pen& pen,
                              const drawing::Fill& fill) {
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const drawing::Point point : points) polygon.append(to_device(point));
  painter_.setPen(to_pen(pen));
  painter_.setBrush(to_brush(fill));
  painter_.drawPolygon(polygon);
}

void Painter_surface::circle(drawing::Point centre, double radius, const drawing::Pen& pen, const drawing::Fill& fill) {
  painter_.setPen(to_pen(pen));
  painter_.setBrush(to_brush(fill));
  painter_.drawEllipse(to_device(centre), radius * unit_, radius * unit_);
}

void Painter_surface::text(drawing::Point at, const std::string& text, const drawing::Font& font,
                           drawing::Colour colour, int tenths) {
  QFont used(to_toolkit(font.name));
  used.setPixelSize(std::max(1, qRound(font.height * unit_)));
  used.setBold(font.bold);
  painter_.setFont(used);
  painter_.setPen(to_colour(colour));
  painter_.save();
  painter_.translate(to_device(at));
  painter_.rotate(-tenths / 10.0);
  painter_.drawText(QPointF(0, QFontMetricsF(used).ascent()), to_toolkit(text));
  painter_.restore();
}

void Painter_surface::picture(const drawing::Sheet_picture& picture, const drawing::Rect& target) {
  if (picture.empty()) return;
  const QRectF device(to_device({target.x, target.y}), QSizeF(target.width * unit_, target.height * unit_));
  const QRect touched = device.toAlignedRect() & clip_;
  if (touched.isEmpty()) return;
  const platform::Picture& level =
      picture.levels[static_cast<std::size_t>(drawing::level_for(picture, device.width()))];
  // The painter holds the same memory; what it was told before stands in it already, since it draws at once.
  const drawing::Raster raster{reinterpret_cast<std::uint32_t*>(image_.bits()), image_.width(), image_.height(),
                               static_cast<int>(image_.bytesPerLine() / 4)};
  const drawing::Rect place{device.x(), device.y(), device.width(), device.height()};
  const auto paint_rows = [&](int top, int bottom) {
    drawing::paint_scaled(level, place, raster, {touched.left(), top, touched.right() + 1, bottom});
  };
  const int middle = touched.top() + touched.height() / 2;
  if (touched.width() * touched.height() < pixels_worth_two_threads) {
    paint_rows(touched.top(), touched.bottom() + 1);
    return;
  }
  auto lower_half = std::async(std::launch::async, paint_rows, middle, touched.bottom() + 1);
  paint_rows(touched.top(), middle);
  lower_half.get();
}

}  // namespace ui
