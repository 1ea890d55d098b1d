// The map canvas Picture1: a painted picture kept in memory, and what follows the mouse drawn over it.
#pragma once

#include <QImage>
#include <QWidget>

#include <functional>

#include "drawing/surface.h"
#include "ui/text_masks.h"

namespace ui {

// Twips to the logical pixel, in which the map tools count.
inline constexpr double twips_per_pixel = 15;

class Canvas_view : public QWidget {
  Q_OBJECT

 public:
  // Draws the map from memory. Called with the offsets of `view_offset` in force.
  using Paint_map = std::function<void(drawing::Surface&)>;
  // Draws over the painted picture, in logical pixels.
  using Paint_overlay = std::function<void(QPainter&)>;
  // The view's offset in twips.
  using View_offset = std::function<QPointF()>;

  explicit Canvas_view(QWidget* parent = nullptr);
  void connect_map(Paint_map paint_map, Paint_overlay paint_overlay, View_offset view_offset);

  // The map must be drawn anew.
  void map_changed();
  // Only the view's offset changed: what is painted moves, and the strips that come into view are painted.
  void view_moved();
  // Only what lies over the map changed.
  void overlay_changed() { update(); }
  // The map as it is painted, without what lies over it.
  QImage map_image();
  // The cursor of the tool in force; the view's own hand shows while it is dragged.
  void use_tool_cursor(const QCursor& cursor);

 signals:
  // Positions in twips. The button is 1 for left and 2 for right.
  void map_pressed(int button, double x, double y);
  void map_moved(double x, double y);
  void map_released(int button, double x, double y);
  // A drag with the middle button, or with the space bar held: by so many twips since the last signal.
  void dragged_one_to_one(double dx, double dy);
  void wheel_turned(double steps, double x, double y);
  void arrow_pressed(int right, int down);  // -1, 0 or 1
  void mouse_left();
  void measure_changed();

 protected:
  void paintEvent(QPaintEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void wheelEvent(QWheelEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void leaveEvent(QEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  QPointF offset_in_device_pixels() const;
  void bring_up_to_date();
  void paint_part(QRect part, QPointF shift);
  void move_painted(QPoint by);

  Paint_map paint_map_;
  Paint_overlay paint_overlay_;
  View_offset view_offset_;
  Text_masks text_masks_;  // of the map's texts, kept from one repaint to the next
  QImage painted_;         // device pixels
  QPoint painted_offset_;  // the whole device pixels of the offset at which painted_ was painted
  QCursor tool_cursor_;
  bool map_is_painted_ = false;
  bool space_held_ = false;
  bool one_to_one_ = false;
  QPointF last_position_;
  double wheel_rest_ = 0;
};

}  // namespace ui
