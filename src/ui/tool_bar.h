// A tool bar that has room for all its tools: where their captions don't fit they show their pictures alone, and the
// tool tips tell the captions.
#pragma once

#include <QToolBar>

namespace ui {

class Tool_bar : public QToolBar {
 public:
  // Goes after every change of the captions.
  void captions_changed();

 protected:
  void resizeEvent(QResizeEvent* event) override;

 private:
  void use_style(Qt::ToolButtonStyle style);

  int width_with_captions_ = 0;
};

}  // namespace ui
