#include "ui/canvas_view.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QWheelEvent>
#include <cstdlib>
#include <cstring>

#include "ui/painter_surface.h"

namespace ui {

namespace {

constexpr double focus_ring = 2;    // logical pixels
constexpr double wheel_step = 120;  // what the toolkit reports for one notch

struct Arrow {
  Qt::Key key;
  int right, down;
};
constexpr Arrow arrows[] = {{Qt::Key_Left, -1, 0}, {Qt::Key_Right, 1, 0}, {Qt::Key_Up, 0, -1}, {Qt::Key_Down, 0, 1}};

int button_number(Qt::MouseButton button) {
  return button == Qt::RightButton ? 2 : 1;
}

QPoint rounded(QPointF point) {
  return {qRound(point.x()), qRound(point.y())};
}

}  // namespace

Canvas_view::Canvas_view(QWidget* parent) : QWidget(parent) {
  setObjectName("Picture1");
  setAttribute(Qt::WA_OpaquePaintEvent);
  setMouseTracking(true);
  setFocusPolicy(Qt::StrongFocus);
  setMinimumSize(240, 180);
}

void Canvas_view::connect_map(Paint_map paint_map, Paint_overlay paint_overlay, View_offset view_offset) {
  paint_map_ = std::move(paint_map);
  paint_overlay_ = std::move(paint_overlay);
  view_offset_ = std::move(view_offset);
  map_changed();
}

void Canvas_view::map_changed() {
  map_is_painted_ = false;
  update();
}

void Canvas_view::view_moved() {
  update();
}

QPointF Canvas_view::offset_in_device_pixels() const {
  return view_offset_ ? view_offset_() / twips_per_pixel * devicePixelRatioF() : QPointF();
}

// The map is painted at the whole device pixel next to its offset, so that a painted part can be moved and still fits
// what is painted beside it.
void Canvas_view::bring_up_to_date() {
  const QSize wanted = (QSizeF(size()) * devicePixelRatioF()).toSize();
  if (painted_.size() != wanted) {
    painted_ = QImage(wanted, QImage::Format_RGB32);
    painted_.fill(Qt::white);
    map_is_painted_ = false;
  }
  if (!paint_map_ || painted_.isNull()) return;
  const QPointF offset = offset_in_device_pixels();
  const QPoint whole = rounded(offset);
  const QPointF shift = QPointF(whole) - offset;
  const QPoint by = whole - painted_offset_;
  painted_offset_ = whole;
  if (!map_is_painted_ || std::abs(by.x()) >= wanted.width() || std::abs(by.y()) >= wanted.height()) {
    paint_part(painted_.rect(), shift);
  } else if (!by.isNull()) {
    move_painted(by);
    const int left = by.x() > 0 ? 0 : wanted.width() + by.x();
    const int top = by.y() > 0 ? 0 : wanted.height() + by.y();
    if (by.x() != 0) paint_part(QRect(left, 0, std::abs(by.x()), wanted.height()), shift);
    if (by.y() != 0) paint_part(QRect(0, top, wanted.width(), std::abs(by.y())), shift);
  }
  map_is_painted_ = true;
}

void Canvas_view::paint_part(QRect part, QPointF shift) {
  Painter_surface surface(painted_, devicePixelRatioF(), shift, part, &text_masks_);
  paint_map_(surface);
}

void Canvas_view::move_painted(QPoint by) {
  const int width = painted_.width() - std::abs(by.x());
  const int height = painted_.height() - std::abs(by.y());
  const int from_x = std::max(0, -by.x());
  const int to_x = std::max(0, by.x());
  const auto move_row = [&](int row) {
    const int from_row = row + std::max(0, -by.y());
    const int to_row = row + std::max(0, by.y());
    std::memmove(painted_.scanLine(to_row) + 4 * to_x, painted_.constScanLine(from_row) + 4 * from_x,
                 static_cast<std::size_t>(width) * 4);
  };
  if (by.y() > 0) {
    for (int row = height - 1; row >= 0; --row) move_row(row);
  } else {
    for (int row = 0; row < height; ++row) move_row(row);
  }
}

QImage Canvas_view::map_image() {
  bring_up_to_date();
  return painted_.copy();
}

void Canvas_view::use_tool_cursor(const QCursor& cursor) {
  if (tool_cursor_ == cursor) return;  // at each move of the mouse
  tool_cursor_ = cursor;
  if (!one_to_one_ && !space_held_) setCursor(cursor);
}

void Canvas_view::paintEvent(QPaintEvent*) {
  bring_up_to_date();
  QPainter painter(this);
  painted_.setDevicePixelRatio(devicePixelRatioF());
  painter.drawImage(QPointF(0, 0), painted_);
  painted_.setDevicePixelRatio(1);
  if (paint_overlay_) paint_overlay_(painter);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), focus_ring));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(rect()).adjusted(focus_ring / 2, focus_ring / 2, -focus_ring / 2, -focus_ring / 2));
}

void Canvas_view::resizeEvent(QResizeEvent* event) {
  QWidget::resizeEvent(event);
  emit measure_changed();
}

void Canvas_view::mousePressEvent(QMouseEvent* event) {
  const bool left = event->button() == Qt::LeftButton;
  if (event->button() == Qt::MiddleButton || (left && space_held_)) {
    one_to_one_ = true;
    last_position_ = event->position();
    setCursor(Qt::ClosedHandCursor);
    return;
  }
  if (!left && event->button() != Qt::RightButton) return;
  const QPointF at = event->position() * twips_per_pixel;
  emit map_pressed(button_number(event->button()), at.x(), at.y());
}

void Canvas_view::mouseMoveEvent(QMouseEvent* event) {
  if (one_to_one_) {
    const QPointF by = (event->position() - last_position_) * twips_per_pixel;
    last_position_ = event->position();
    emit dragged_one_to_one(by.x(), by.y());
  }
  const QPointF at = event->position() * twips_per_pixel;
  emit map_moved(at.x(), at.y());
}

void Canvas_view::mouseReleaseEvent(QMouseEvent* event) {
  if (one_to_one_) {
    one_to_one_ = false;
    setCursor(space_held_ ? QCursor(Qt::OpenHandCursor) : tool_cursor_);
    return;
  }
  if (event->button() != Qt::LeftButton && event->button() != Qt::RightButton) return;
  const QPointF at = event->position() * twips_per_pixel;
  emit map_released(button_number(event->button()), at.x(), at.y());
}

void Canvas_view::wheelEvent(QWheelEvent* event) {
  // A touch pad reports parts of a notch: they add up to whole steps.
  wheel_rest_ += event->angleDelta().y();
  const int steps = static_cast<int>(wheel_rest_ / wheel_step);
  wheel_rest_ -= steps * wheel_step;
  const QPointF at = event->position() * twips_per_pixel;
  if (steps != 0) emit wheel_turned(steps, at.x(), at.y());
  event->accept();
}

void Canvas_view::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space) {
    space_held_ = true;
    if (!event->isAutoRepeat()) setCursor(Qt::OpenHandCursor);
    return;
  }
  if (event->modifiers() == Qt::NoModifier || event->modifiers() == Qt::KeypadModifier)
    for (const Arrow& arrow : arrows)
      if (event->key() == arrow.key) return emit arrow_pressed(arrow.right, arrow.down);
  QWidget::keyPressEvent(event);
}

void Canvas_view::keyReleaseEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Space && !event->isAutoRepeat()) {
    space_held_ = false;
    if (!one_to_one_) setCursor(tool_cursor_);
    return;
  }
  QWidget::keyReleaseEvent(event);
}

void Canvas_view::leaveEvent(QEvent* event) {
  QWidget::leaveEvent(event);
  emit mouse_left();
}

void Canvas_view::focusOutEvent(QFocusEvent* event) {
  space_held_ = false;
  if (!one_to_one_) setCursor(tool_cursor_);
  QWidget::focusOutEvent(event);
}

}  // namespace ui
