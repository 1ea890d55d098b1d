#include "ui/wrap_check.h"

#include <QStyleOptionButton>
#include <QStylePainter>
#include <algorithm>

namespace ui {

namespace {

constexpr int margin_y = 2;
constexpr int least_text = 90;  // logical pixels
constexpr int text_flags = Qt::AlignLeft | Qt::AlignVCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

}  // namespace

Wrap_check::Wrap_check(QWidget* parent) : QCheckBox(parent) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

int Wrap_check::text_left() const {
  return style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this) +
         style()->pixelMetric(QStyle::PM_CheckBoxLabelSpacing, nullptr, this);
}

int Wrap_check::heightForWidth(int width) const {
  const QRect room(0, 0, std::max(1, width - text_left()), 10'000);
  const int text_height = fontMetrics().boundingRect(room, text_flags, text()).height();
  return std::max(text_height, style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this)) + 2 * margin_y;
}

QSize Wrap_check::sizeHint() const {
  const int width = text_left() + fontMetrics().horizontalAdvance(text()) + 4;
  return {width, heightForWidth(width)};
}

QSize Wrap_check::minimumSizeHint() const {
  return {std::min(sizeHint().width(), text_left() + least_text), sizeHint().height()};
}

void Wrap_check::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect whole = option.rect;
  const int side = style()->pixelMetric(QStyle::PM_IndicatorHeight, nullptr, this);
  option.rect = QStyle::visualRect(
      layoutDirection(), whole,
      QRect(0, (whole.height() - side) / 2, style()->pixelMetric(QStyle::PM_IndicatorWidth, nullptr, this), side));
  painter.drawPrimitive(QStyle::PE_IndicatorCheckBox, option);
  const QRect room = QStyle::visualRect(layoutDirection(), whole, whole.adjusted(text_left(), 0, 0, 0));
  painter.drawItemText(room, text_flags, palette(), isEnabled(), text(), QPalette::WindowText);
  if (!hasFocus() || !(option.state & QStyle::State_KeyboardFocusChange)) return;
  QStyleOptionFocusRect focus;
  focus.initFrom(this);
  focus.rect = room;
  painter.drawPrimitive(QStyle::PE_FrameFocusRect, focus);
}

}  // namespace ui
