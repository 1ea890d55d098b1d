// The drawing surface on the toolkit's painter.
#pragma once

#include <QImage>
#include <QPainter>
#include <vector>

#include "drawing/small_shapes.h"
#include "drawing/surface.h"
#include "ui/text_masks.h"

namespace ui {

// Draws canvas units into an image that counts device pixels: one unit is half a logical pixel. Drawing is moved by
// (shift_x, shift_y) device pixels, by which the owner makes the view's offset whole. Only `clip` (device pixels) is
// touched. What there are thousands of on a map, small marks, lines and numbers, goes straight into the image's memory;
// the rest through the toolkit's painter. Who paints often keeps the masks of the texts from one surface to the next.
class Painter_surface : public drawing::Surface {
 public:
  Painter_surface(QImage& image, double device_ratio, QPointF shift, QRect clip, Text_masks* kept_masks = nullptr);

  drawing::Rect touched_part() const override;

  void clear(drawing::Colour colour) override;
  void line(drawing::Point from, drawing::Point to, const drawing::Pen& pen) override;
  void polyline(std::span<const drawing::Point> points, const drawing::Pen& pen) override;
  void polygon(std::span<const drawing::Point> points, const drawing::Pen& pen, const drawing::Fill& fill) override;
  void circle(drawing::Point centre, double radius, const drawing::Pen& pen, const drawing::Fill& fill) override;
  void text(drawing::Point at, const std::string& text, const drawing::Font& font, drawing::Colour colour,
            int tenths) override;
  void picture(const drawing::Sheet_picture& picture, const drawing::Rect& target) override;

 private:
  QPointF to_device(drawing::Point point) const;
  QPen to_pen(const drawing::Pen& pen) const;
  drawing::Point to_pixels(drawing::Point point) const;

  QImage& image_;
  double unit_;  // device pixels a canvas unit
  double device_ratio_;
  QPointF shift_;
  QRect clip_;
  Text_masks own_masks_;
  Text_masks& masks_;
  drawing::Small_shapes small_;
  std::vector<drawing::Point> corners_;  // of the polygon in hand, device pixels
  QPainter painter_;
};

}  // namespace ui
