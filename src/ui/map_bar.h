// The bars beside the map. They are painted at each step of a pan; the style's own bars have gradients, which the
// toolkit fills row by row on several threads, dearer than the map's strips themselves.
#pragma once

#include <QScrollBar>

namespace ui {

class Map_bar : public QScrollBar {
 public:
  using QScrollBar::QScrollBar;

 protected:
  void paintEvent(QPaintEvent*) override;
};

}  // namespace ui
