#include "ui/colour_button.h"

#include <QColorDialog>
#include <QHBoxLayout>
#include <QPainter>
#include <QPushButton>

namespace ui {

namespace {

constexpr int swatch_width = 28, swatch_height = 18;  // logical pixels

}  // namespace

Swatch::Swatch(QWidget* parent) : QFrame(parent) {
  setFrameStyle(QFrame::Panel | QFrame::Sunken);
  setFixedSize(swatch_width, swatch_height);
}

void Swatch::set_colour(const QColor& colour) {
  colour_ = colour;
  update();
}

void Swatch::paintEvent(QPaintEvent* event) {
  QPainter(this).fillRect(contentsRect(), isEnabled() ? colour_ : palette().color(QPalette::Window));
  QFrame::paintEvent(event);
}

Colour_button::Colour_button(const QString& button, const QString& swatch, QWidget* parent)
    : QWidget(parent), button_(new QPushButton), swatch_(new Swatch) {
  button_->setObjectName(button);
  button_->setAutoDefault(false);
  swatch_->setObjectName(swatch);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->addWidget(button_, 1);
  row->addWidget(swatch_);
  setFocusProxy(button_);
  connect(button_, &QPushButton::clicked, this, &Colour_button::pick);
}

void Colour_button::set_captions(const QString& text, const QString& hint) {
  button_->setText(text);
  button_->setToolTip(hint);
  button_->setAccessibleName(hint);
  swatch_->setToolTip(hint);
  swatch_->setAccessibleName(hint);
}

void Colour_button::pick() {
  const QColor colour = QColorDialog::getColor(swatch_->colour(), this, button_->toolTip());
  if (!colour.isValid() || colour == swatch_->colour()) return;
  swatch_->set_colour(colour);
  emit chosen(colour);
}

}  // namespace ui
