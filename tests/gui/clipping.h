// Whether the texts of a window fit their widgets.
#pragma once

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QGroupBox>
#include <QLabel>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QWidget>

namespace support {

inline bool fits(const QWidget* widget) {
  if (const auto* label = qobject_cast<const QLabel*>(widget)) {
    if (label->wordWrap()) return label->height() >= label->heightForWidth(label->width());
    return label->width() >= label->sizeHint().width() && label->height() >= label->sizeHint().height();
  }
  if (const auto* frame = qobject_cast<const QGroupBox*>(widget))
    return frame->width() >= frame->fontMetrics().horizontalAdvance(frame->title()) + 16;
  if (qobject_cast<const QAbstractButton*>(widget) && widget->hasHeightForWidth())
    return widget->height() >= widget->heightForWidth(widget->width());
  if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
    return button->text().isEmpty() || (widget->width() >= widget->minimumSizeHint().width() &&
                                        widget->height() >= widget->minimumSizeHint().height());
  return true;
}

// Fails naming the shown widgets below `window` whose text is cut, and scroll areas that need a horizontal bar.
inline testing::AssertionResult nothing_clipped(const QWidget* window) {
  QStringList cut;
  for (const auto* widget : window->findChildren<QWidget*>()) {
    if (!widget->isVisible()) continue;
    if (!fits(widget)) cut << widget->objectName() + " (" + widget->metaObject()->className() + ")";
    const auto* area = qobject_cast<const QScrollArea*>(widget);
    if (area && area->horizontalScrollBar()->maximum() > 0) cut << "a page is wider than its window";
  }
  if (cut.isEmpty()) return testing::AssertionSuccess();
  return testing::AssertionFailure() << "clipped: " << cut.join(", ").toStdString();
}

}  // namespace support
