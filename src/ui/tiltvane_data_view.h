// The tab "TiltvaneDataShow".
#pragma once

#include <QWidget>

#include "core/session/session.h"
#include "instruments/tiltvane_boxes.h"

namespace ui {

class Tiltvane_data_view : public QWidget {
  Q_OBJECT

 public:
  Tiltvane_data_view(session::Session&, session::Ports&, instruments::Tiltvane_boxes&, QWidget* parent)
      : QWidget(parent) {}
  void show_memory() {}
  void files_fill() {}

 signals:
  void registry_written();
};

}  // namespace ui
