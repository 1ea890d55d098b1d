#include "ui/wrap_button.h"

#include <QStyleOptionButton>
#include <QStylePainter>

namespace ui {

namespace {

constexpr int margin_x = 12;
constexpr int margin_y = 6;
constexpr int least_width = 96;  // logical pixels
constexpr int text_flags = Qt::AlignCenter | Qt::TextWordWrap | Qt::TextShowMnemonic;

}  // namespace

Wrap_button::Wrap_button(QWidget* parent) : QPushButton(parent) {
  QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Minimum);
  policy.setHeightForWidth(true);
  setSizePolicy(policy);
}

QSize Wrap_button::text_size(int width) const {
  return fontMetrics().boundingRect(0, 0, width, 10'000, text_flags, text()).size();
}

QSize Wrap_button::sizeHint() const {
  const QSize size = text_size(10'000);
  return {size.width() + 2 * margin_x, size.height() + 2 * margin_y};
}

QSize Wrap_button::minimumSizeHint() const {
  return {least_width, text_size(least_width).height() / 2 + 2 * margin_y};
}

int Wrap_button::heightForWidth(int width) const {
  return text_size(width - 2 * margin_x).height() + 2 * margin_y;
}

void Wrap_button::paintEvent(QPaintEvent*) {
  QStylePainter painter(this);
  QStyleOptionButton option;
  initStyleOption(&option);
  option.text.clear();
  painter.drawControl(QStyle::CE_PushButton, option);
  painter.drawItemText(rect().adjusted(margin_x / 2, 0, -margin_x / 2, 0), text_flags, palette(), isEnabled(), text(),
                       QPalette::ButtonText);
}

}  // namespace ui
