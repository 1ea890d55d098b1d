#include "ui/picture_view.h"

#include <QPainter>

namespace ui {

namespace {

constexpr int margin = 8;

}  // namespace

Picture_view::Picture_view(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
}

void Picture_view::show_picture(const QImage& picture) {
  picture_ = picture;
  word_.clear();
  update();
}

void Picture_view::show_word(const QString& word) {
  picture_ = QImage();
  word_ = word;
  update();
}

void Picture_view::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(palette().color(QPalette::Base));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  const QRect room = rect().adjusted(margin, margin, -margin, -margin);
  if (picture_.isNull()) {
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(room, Qt::AlignCenter | Qt::TextWordWrap, word_);
    return;
  }
  // A small picture isn't blown up.
  QSize size = picture_.size();
  if (size.width() > room.width() || size.height() > room.height()) size.scale(room.size(), Qt::KeepAspectRatio);
  QRect place(QPoint(), size);
  place.moveCenter(room.center());
  painter.setRenderHint(QPainter::SmoothPixmapTransform);
  painter.drawImage(place, picture_);
}

}  // namespace ui
