#include "ui/map_bar.h"

#include <QPainter>
#include <QStyleOptionSlider>

namespace ui {

namespace {

constexpr int slider_margin = 2;

// The colours of a slider that is pressed, pointed at, and at rest; the palette's, so that a dark one stays dark.
QColor slider_colour(const QStyleOptionSlider& option) {
  const QColor colour = option.palette.color(QPalette::Button).darker(115);
  if (!(option.state & QStyle::State_Enabled)) return option.palette.color(QPalette::Button);
  if (option.state & QStyle::State_Sunken) return colour.darker(120);
  return option.state & QStyle::State_MouseOver ? colour.darker(108) : colour;
}

}  // namespace

void Map_bar::paintEvent(QPaintEvent*) {
  QStyleOptionSlider option;
  initStyleOption(&option);
  const auto part = [&](QStyle::SubControl which) {
    return style()->subControlRect(QStyle::CC_ScrollBar, &option, which, this);
  };
  QPainter painter(this);
  painter.fillRect(rect(), option.palette.color(QPalette::Window).darker(106));
  const bool across = orientation() == Qt::Horizontal;
  const QRect slider = part(QStyle::SC_ScrollBarSlider);
  if (maximum() > minimum()) {
    const QRect shown = across ? slider.adjusted(0, slider_margin, 0, -slider_margin)
                               : slider.adjusted(slider_margin, 0, -slider_margin, 0);
    painter.fillRect(shown, slider_colour(option).darker(130));
    painter.fillRect(shown.adjusted(1, 1, -1, -1), slider_colour(option));
  }
  const auto arrow = [&](QStyle::SubControl which, QStyle::PrimitiveElement look) {
    QStyleOption mark;
    mark.initFrom(this);
    const QRect place = part(which);
    const int side = qMin(place.width(), place.height()) * 2 / 3;
    mark.rect = QStyle::alignedRect(Qt::LeftToRight, Qt::AlignCenter, {side, side}, place);
    style()->drawPrimitive(look, &mark, &painter, this);
  };
  arrow(QStyle::SC_ScrollBarSubLine, across ? QStyle::PE_IndicatorArrowLeft : QStyle::PE_IndicatorArrowUp);
  arrow(QStyle::SC_ScrollBarAddLine, across ? QStyle::PE_IndicatorArrowRight : QStyle::PE_IndicatorArrowDown);
}

}  // namespace ui
