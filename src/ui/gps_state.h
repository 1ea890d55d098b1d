// The receiver's state in the status bar: a light, the status text, and in words what the light means.
#pragma once

#include <QWidget>

#include "instruments/gps_tick.h"

class QLabel;

namespace ui {

class Gps_state : public QWidget {
  Q_OBJECT

 public:
  explicit Gps_state(QWidget* parent = nullptr);
  void use_language(bool japanese);
  void show(const instruments::Gps& gps);
  using QWidget::show;

 private:
  void tell();

  bool japanese_ = true;
  instruments::Gps_light shown_ = instruments::Gps_light::closed;
  QString position_;
  QLabel* light_;
  QLabel* Label7_;
  QLabel* meaning_;
};

// What a state is called.
QString light_text(instruments::Gps_light light, bool japanese);

}  // namespace ui
