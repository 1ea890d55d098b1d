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

// The painter holds the same memory; what it was told before stands in it already, since it draws at once.
drawing::Raster raster_of(QImage& image) {
  return {reinterpret_cast<std::uint32_t*>(image.bits()), image.width(), image.height(),
          static_cast<int>(image.bytesPerLine() / 4)};
}

// Whether what is inside a shape has the pen's own colour, or nothing has.
bool is_plain(const drawing::Pen& pen, const drawing::Fill& fill) {
  if (pen.style != drawing::Line_style::solid) return false;
  return fill.style == drawing::Fill_style::none ||
         (fill.style == drawing::Fill_style::solid && fill.colour == pen.colour);
}

}  // namespace

Painter_surface::Painter_surface(QImage& image, double device_ratio, QPointF shift, QRect clip, Text_masks* kept_masks)
    : image_(image),
      unit_(device_ratio / 2),
      device_ratio_(device_ratio),
      shift_(shift),
      clip_(clip & image.rect()),
      masks_(kept_masks ? *kept_masks : own_masks_),
      painter_(&image) {
  painter_.setClipRect(clip_);
  painter_.setRenderHint(QPainter::Antialiasing);
  small_.raster = raster_of(image);
  small_.clip = {clip_.left(), clip_.top(), clip_.right() + 1, clip_.bottom() + 1};
}

drawing::Rect Painter_surface::touched_part() const {
  return {(clip_.left() - shift_.x()) / unit_, (clip_.top() - shift_.y()) / unit_, clip_.width() / unit_,
          clip_.height() / unit_};
}

QPointF Painter_surface::to_device(drawing::Point point) const {
  return QPointF(point.x * unit_, point.y * unit_) + shift_;
}

drawing::Point Painter_surface::to_pixels(drawing::Point point) const {
  return {point.x * unit_ + shift_.x(), point.y * unit_ + shift_.y()};
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
  if (pen.style == drawing::Line_style::solid &&
      drawing::small_line(small_, to_pixels(from), to_pixels(to), pen.width * device_ratio_, pen.colour))
    return;
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
  corners_.clear();
  for (const drawing::Point point : points) corners_.push_back(to_pixels(point));
  if (is_plain(pen, fill) && drawing::small_polygon(small_, corners_, pen.width * device_ratio_, pen.colour,
                                                    fill.style == drawing::Fill_style::solid))
    return;
  QPolygonF polygon;
  polygon.reserve(static_cast<qsizetype>(points.size()));
  for (const drawing::Point point : points) polygon.append(to_device(point));
  painter_.setPen(to_pen(pen));
  painter_.setBrush(to_brush(fill));
  painter_.drawPolygon(polygon);
}

void Painter_surface::circle(drawing::Point centre, double radius, const drawing::Pen& pen, const drawing::Fill& fill) {
  if (is_plain(pen, fill) && drawing::small_circle(small_, to_pixels(centre), radius * unit_, pen.width * device_ratio_,
                                                   pen.colour, fill.style == drawing::Fill_style::solid))
    return;
  painter_.setPen(to_pen(pen));
  painter_.setBrush(to_brush(fill));
  painter_.drawEllipse(to_device(centre), radius * unit_, radius * unit_);
}

void Painter_surface::text(drawing::Point at, const std::string& text, const drawing::Font& font,
                           drawing::Colour colour, int tenths) {
  const int pixels = std::max(1, qRound(font.height * unit_));
  if (tenths == 0 && pixels <= mask_height_limit && text.size() <= mask_text_limit) {
    text_out(masks_of(masks_, font, pixels), to_device(at), text, colour, small_.raster, small_.clip);
    return;
  }
  const QFont used = map_font(font, pixels);
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
  const drawing::Raster& raster = small_.raster;
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
