#include "ui/tool_bar.h"

#include <QResizeEvent>
#include <QToolButton>

namespace ui {

void Tool_bar::captions_changed() {
  use_style(Qt::ToolButtonTextBesideIcon);
  width_with_captions_ = sizeHint().width();
  if (width() < width_with_captions_) use_style(Qt::ToolButtonIconOnly);
}

void Tool_bar::resizeEvent(QResizeEvent* event) {
  use_style(event->size().width() < width_with_captions_ ? Qt::ToolButtonIconOnly : Qt::ToolButtonTextBesideIcon);
  QToolBar::resizeEvent(event);
}

// The toolkit's own button for what doesn't fit is no tool.
void Tool_bar::use_style(Qt::ToolButtonStyle style) {
  for (QToolButton* tool : findChildren<QToolButton*>())
    if (!tool->objectName().startsWith("qt_")) tool->setToolButtonStyle(style);
}

}  // namespace ui
