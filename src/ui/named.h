// The object name of a widget where it is made; styles, tests and the language tables find it by that.
#pragma once

#include <QString>

namespace ui {

template <typename Widget>
Widget* named(Widget* widget, const QString& name) {
  widget->setObjectName(name);
  return widget;
}

}  // namespace ui
