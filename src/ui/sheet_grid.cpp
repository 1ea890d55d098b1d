#include "ui/sheet_grid.h"

#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <cmath>

#include "ui/painter_surface.h"
#include "ui/toolkit_text.h"

namespace ui {

namespace {

constexpr double units_per_pixel = 2;
constexpr double focus_ring = 2;  // logical pixels

}  // namespace

Sheet_grid::Sheet_grid(const maps::Sheet_index& index, QWidget* parent) : QAbstractScrollArea(parent), index_(index) {
  setObjectName("Picture1");
  setFocusPolicy(Qt::StrongFocus);
  viewport()->setMouseTracking(true);
  viewport()->setCursor(Qt::PointingHandCursor);
}

void Sheet_grid::measure() {
  const drawing::Rect whole = maps::index_rectangle(index_);
  const QSize shown = viewport()->size();
  horizontalScrollBar()->setRange(0, std::max(0, qRound(whole.width / units_per_pixel) - shown.width()));
  verticalScrollBar()->setRange(0, std::max(0, qRound(whole.height / units_per_pixel) - shown.height()));
  horizontalScrollBar()->setPageStep(shown.width());
  verticalScrollBar()->setPageStep(shown.height());
  horizontalScrollBar()->setSingleStep(30);
  verticalScrollBar()->setSingleStep(30);
  viewport()->update();
}

QString Sheet_grid::told(int row) const {
  return to_toolkit(index_.sheets[row].name + "  " + index_.sheets[row].stem);
}

int Sheet_grid::marked_row() const {
  for (int row = 1; row <= index_.sheet_count; ++row)
    if (index_.sheets[row].stem == marked_) return row;
  return 0;
}

void Sheet_grid::mark(const std::string& stem) {
  marked_ = stem;
  const int row = marked_row();
  setAccessibleDescription(row > 0 ? told(row) : QString());
  if (row > 0) {
    const drawing::Rect cell = maps::cell_rectangle(index_, index_.sheets[row]);
    const auto bring = [](QScrollBar* bar, double from, double to, int room) {
      if (from < bar->value()) bar->setValue(static_cast<int>(from) - 10);
      if (to > bar->value() + room) bar->setValue(static_cast<int>(to) - room + 10);
    };
    bring(horizontalScrollBar(), cell.x / units_per_pixel, (cell.x + cell.width) / units_per_pixel,
          viewport()->width());
    bring(verticalScrollBar(), cell.y / units_per_pixel, (cell.y + cell.height) / units_per_pixel,
          viewport()->height());
  }
  viewport()->update();
}

void Sheet_grid::paintEvent(QPaintEvent*) {
  const double ratio = devicePixelRatioF();
  QImage image((QSizeF(viewport()->size()) * ratio).toSize(), QImage::Format_RGB32);
  {
    Painter_surface surface(image, ratio, {}, image.rect());
    surface.clear(drawing::white);
    maps::chizu_out(surface, index_, marked_,
                    {horizontalScrollBar()->value() * units_per_pixel, verticalScrollBar()->value() * units_per_pixel});
  }
  image.setDevicePixelRatio(ratio);
  QPainter painter(viewport());
  painter.drawImage(QPointF(0, 0), image);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), focus_ring));
  painter.drawRect(
      QRectF(viewport()->rect()).adjusted(focus_ring / 2, focus_ring / 2, -focus_ring / 2, -focus_ring / 2));
}

void Sheet_grid::focusInEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusInEvent(event);
  viewport()->update();
}

void Sheet_grid::focusOutEvent(QFocusEvent* event) {
  QAbstractScrollArea::focusOutEvent(event);
  viewport()->update();
}

void Sheet_grid::resizeEvent(QResizeEvent* event) {
  QAbstractScrollArea::resizeEvent(event);
  measure();
}

int Sheet_grid::row_at(QPointF position) const {
  return maps::sheet_index_hit(index_, {(position.x() + horizontalScrollBar()->value()) * units_per_pixel,
                                        (position.y() + verticalScrollBar()->value()) * units_per_pixel});
}

void Sheet_grid::mouseMoveEvent(QMouseEvent* event) {
  emit sheet_hovered(row_at(event->position()));
}

void Sheet_grid::mouseReleaseEvent(QMouseEvent* event) {
  const int row = row_at(event->position());
  if (event->button() == Qt::LeftButton && row > 0) emit sheet_chosen(row);
}

// The nearest sheet in the direction of the arrow key takes the mark.
void Sheet_grid::move_mark(int rows, int columns) {
  if (index_.sheet_count == 0) return;
  const int from = std::max(1, marked_row());
  const maps::Index_sheet& here = index_.sheets[from];
  int best = from;
  double best_way = 1e9;
  for (int row = 1; row <= index_.sheet_count; ++row) {
    const double up = index_.sheets[row].row - here.row;
    const double right = index_.sheets[row].column - here.column;
    const double ahead = up * rows + right * columns;
    const double aside = std::abs(up * columns) + std::abs(right * rows);
    if (ahead <= 0 || ahead + 3 * aside >= best_way) continue;
    best_way = ahead + 3 * aside;
    best = row;
  }
  mark(index_.sheets[best].stem);
  emit sheet_hovered(best);
}

void Sheet_grid::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
      return move_mark(1, 0);
    case Qt::Key_Down:
      return move_mark(-1, 0);
    case Qt::Key_Left:
      return move_mark(0, -1);
    case Qt::Key_Right:
      return move_mark(0, 1);
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (marked_row() > 0) emit sheet_chosen(marked_row());
      return;
    default:
      QAbstractScrollArea::keyPressEvent(event);
  }
}

}  // namespace ui
