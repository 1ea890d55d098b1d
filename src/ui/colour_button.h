// A button that asks for a colour with the system's own picker, with a swatch of the colour in force beside it.
#pragma once

#include <QColor>
#include <QFrame>
#include <QWidget>

class QPushButton;

namespace ui {

class Swatch : public QFrame {
  Q_OBJECT

 public:
  explicit Swatch(QWidget* parent = nullptr);
  QColor colour() const { return colour_; }
  void set_colour(const QColor& colour);

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QColor colour_ = Qt::black;
};

class Colour_button : public QWidget {
  Q_OBJECT

 public:
  // The object names of the button and of the swatch.
  Colour_button(const QString& button, const QString& swatch, QWidget* parent = nullptr);

  QColor colour() const { return swatch_->colour(); }
  void set_colour(const QColor& colour) { swatch_->set_colour(colour); }
  // The hint says which colour it is: it is the tool tip, the name for a screen reader and the picker's title.
  void set_captions(const QString& text, const QString& hint);
  QPushButton* button() const { return button_; }

 signals:
  // The person picked a colour; the swatch shows it.
  void chosen(const QColor& colour);

 private:
  void pick();

  QPushButton* button_;
  Swatch* swatch_;
};

}  // namespace ui
