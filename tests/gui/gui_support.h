// What the window tests look for in any window.
#pragma once

#include <QAbstractButton>
#include <QStringList>
#include <QTabBar>
#include <QWidget>

namespace support {

inline QString told(const QWidget& widget) {
  return widget.objectName() + " " + QString::number(widget.width()) + "x" + QString::number(widget.height());
}

// Enabled widgets that take the keyboard but tell a screen reader nothing.
inline QStringList nameless_widgets(const QWidget& window) {
  QStringList found;
  for (const QWidget* widget : window.findChildren<QWidget*>()) {
    if (!widget->isEnabled() || !(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy()) continue;
    if (qobject_cast<const QTabBar*>(widget) || widget->inherits("QScrollArea") || widget->inherits("QTabWidget"))
      continue;
    if (widget->objectName().startsWith("qt_") || widget->inherits("QSplitterHandle") ||
        widget->inherits("QComboBoxListView"))
      continue;
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (button && !button->text().isEmpty()) continue;
    if (widget->accessibleName().isEmpty()) found.append(told(*widget) + " " + widget->metaObject()->className());
  }
  return found;
}

}  // namespace support
