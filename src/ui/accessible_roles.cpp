#include "ui/accessible_roles.h"

#include <QAccessible>
#include <QAccessibleWidget>

namespace ui {

namespace {

struct Painted {
  const char* widget;
  QAccessible::Role role;
};
constexpr Painted painted_widgets[] = {
    {"ui::Canvas_view", QAccessible::Canvas},   {"ui::Sheet_grid", QAccessible::Canvas},
    {"ui::Picture_view", QAccessible::Graphic}, {"ui::Mark_preview", QAccessible::Graphic},
    {"ui::Swatch", QAccessible::Graphic},       {"ui::Stereonet_view", QAccessible::Graphic},
};

// The toolkit asks for each class of a widget, from its own up to QObject.
QAccessibleInterface* painted_interface(const QString& name, QObject* object) {
  for (const Painted& painted : painted_widgets)
    if (name == painted.widget && object && object->isWidgetType())
      return new QAccessibleWidget(static_cast<QWidget*>(object), painted.role);
  return nullptr;
}

}  // namespace

void use_accessible_roles() {
  QAccessible::installFactory(painted_interface);  // one that is installed already stays once
}

}  // namespace ui
