// What a person without a mouse, and a person who hears the screen, find in a window: names, images, letters of the
// captions, the way of the Tab key. Each check gives the sentences of what it found wrong, none where all is well.
#pragma once

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLayout>
#include <QMainWindow>
#include <QMap>
#include <QMenu>
#include <QMenuBar>
#include <QRadioButton>
#include <QScrollArea>
#include <QSet>
#include <QShortcut>
#include <QStringList>
#include <QTabBar>
#include <QTabWidget>
#include <QTest>
#include <QWidget>

#include <functional>

namespace support {

inline QString told_as(const QWidget* widget) {
  const QString name =
      widget->objectName().isEmpty() ? widget->parentWidget()->objectName() + "/" : widget->objectName();
  return name + " (" + widget->metaObject()->className() + ")";
}

// The widgets of a window as a screen reader comes by them: through the accessible children, those of shown pages. Rows
// and cells of lists are no widgets.
inline QList<const QWidget*> heard_widgets(const QWidget* window) {
  QList<const QWidget*> found;
  const std::function<void(QAccessibleInterface*)> walk = [&](QAccessibleInterface* at) {
    if (!at || !at->isValid()) return;
    const auto* widget = qobject_cast<const QWidget*>(at->object());
    if (!widget || (widget != window && !widget->isVisibleTo(window))) return;
    if (widget != window) found.append(widget);
    if (qobject_cast<const QAbstractItemView*>(widget) || qobject_cast<const QComboBox*>(widget)) return;
    for (int i = 0; i < at->childCount(); ++i) walk(at->child(i));
  };
  walk(QAccessible::queryAccessibleInterface(const_cast<QWidget*>(window)));
  return found;
}

// On some systems the toolkit gives the chosen text as the name of a list of choices; its name is told beside it.
inline QString heard(const QWidget* widget, QAccessible::Text part = QAccessible::Name) {
  if (qobject_cast<const QComboBox*>(widget) && part == QAccessible::Name) return widget->accessibleName().trimmed();
  QAccessibleInterface* const at = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
  return at ? at->text(part).trimmed() : QString();
}

inline QAccessible::Role role_of(const QWidget* widget) {
  QAccessibleInterface* const at = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
  return at ? at->role() : QAccessible::NoRole;
}

// A control takes the keyboard, or would if it were enabled. A bar of tabs has the names of its tabs.
inline bool is_control(const QWidget* widget) {
  if (qobject_cast<const QTabBar*>(widget) || qobject_cast<const QTabWidget*>(widget)) return false;
  return widget->focusPolicy() & Qt::TabFocus && !widget->focusProxy();
}

inline QStringList controls_without_name(const QWidget* window) {
  QStringList found;
  for (const QWidget* widget : heard_widgets(window))
    if (is_control(widget) && heard(widget).isEmpty()) found.append("no name: " + told_as(widget));
  return found;
}

inline QStringList controls_without_role(const QWidget* window) {
  QStringList found;
  for (const QWidget* widget : heard_widgets(window)) {
    const QAccessible::Role role = role_of(widget);
    if (is_control(widget) && (role == QAccessible::NoRole || role == QAccessible::Client))
      found.append("no role: " + told_as(widget));
  }
  return found;
}

// Kana, kanji and full-width letters.
inline bool has_japanese(const QString& text) {
  return std::any_of(text.begin(), text.end(), [](QChar c) { return c.unicode() >= 0x3000; });
}

// `told` are the names that stand in the other language's letters, or that have none of their own.
inline QStringList names_of_another_language(const QWidget* window, bool japanese, const QStringList& told) {
  QStringList found;
  for (const QWidget* widget : heard_widgets(window)) {
    const QString name = heard(widget);
    if (!is_control(widget) || name.isEmpty() || told.contains(name)) continue;
    if (has_japanese(name) != japanese) found.append("other language: \"" + name + "\" " + told_as(widget));
  }
  return found;
}

inline QStringList buttons_of_one_name(const QWidget* window) {
  QStringList found;
  QMap<QString, QString> seen;
  for (const QWidget* widget : heard_widgets(window)) {
    const auto* button = qobject_cast<const QAbstractButton*>(widget);
    if (!button || !is_control(button)) continue;
    const QString name = heard(button);
    if (seen.contains(name)) found.append("one name: \"" + name + "\" " + seen[name] + ", " + told_as(button));
    seen[name] = told_as(button);
  }
  return found;
}

// A picture must be told in words. What only stands beside a text that tells the same is told by its tool tip.
inline QStringList images_without_words(const QWidget* window, const QStringList& painted) {
  QStringList found;
  for (const QWidget* widget : heard_widgets(window)) {
    const auto* label = qobject_cast<const QLabel*>(widget);
    const bool picture = label && !label->pixmap().isNull();
    if (!picture && !painted.contains(widget->metaObject()->className())) continue;
    if (heard(widget).isEmpty() && heard(widget, QAccessible::Description).isEmpty())
      found.append("no words: " + told_as(widget));
  }
  return found;
}

// The letters that Alt brings up, of all that stands on the screen at once.
inline QStringList letters_used_twice(const QWidget* window) {
  QStringList found;
  QMap<QString, QString> seen;
  const auto take = [&](const QKeySequence& keys, const QString& by) {
    if (keys.isEmpty()) return;
    const QString letter = keys.toString();
    if (seen.contains(letter)) found.append(letter + ": " + seen[letter] + ", " + by);
    seen[letter] = by;
  };
  for (const QWidget* widget : window->findChildren<QWidget*>()) {
    if (!widget->isVisibleTo(window) || widget->window() != window) continue;
    if (const auto* label = qobject_cast<const QLabel*>(widget); label && label->buddy())
      take(QKeySequence::mnemonic(label->text()), told_as(label));
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget))
      take(QKeySequence::mnemonic(button->text()), told_as(button));
    if (const auto* group = qobject_cast<const QGroupBox*>(widget))
      take(QKeySequence::mnemonic(group->title()), told_as(group));
    if (const auto* bar = qobject_cast<const QTabBar*>(widget))
      for (int i = 0; i < bar->count(); ++i) take(QKeySequence::mnemonic(bar->tabText(i)), told_as(bar));
  }
  for (const QShortcut* shortcut : window->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly))
    if (shortcut->key().toString().startsWith("Alt+")) take(shortcut->key(), "a key of the window");
  return found;
}

// The keys of the actions of a window, each of which must bring one action only.
inline QStringList keys_used_twice(const QWidget* window) {
  QStringList found;
  QMap<QString, QString> seen;
  const auto take = [&](const QKeySequence& keys, const QString& by) {
    const QString told = keys.toString();
    if (seen.contains(told)) found.append(told + ": " + seen[told] + ", " + by);
    seen[told] = by;
  };
  for (const QAction* action : window->findChildren<QAction*>())
    for (const QKeySequence& keys : action->shortcuts()) take(keys, action->objectName());
  for (const QShortcut* shortcut : window->findChildren<QShortcut*>(Qt::FindDirectChildrenOnly))
    take(shortcut->key(), "a key of the window");
  return found;
}

// Of the options of one frame the Tab key comes to the one that is chosen.
inline bool tab_comes_to(const QWidget* widget, const QWidget* window) {
  if (!widget->isEnabled() || !widget->isVisibleTo(window) || widget->window() != window) return false;
  if (!(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy()) return false;
  const auto* option = qobject_cast<const QRadioButton*>(widget);
  if (!option || option->isChecked()) return true;
  for (const auto* other : option->parentWidget()->findChildren<QRadioButton*>(Qt::FindDirectChildrenOnly))
    if (other->isChecked()) return false;
  return true;
}

// The way of the Tab key around the window, from the widget that has the keyboard to where it comes by it again.
inline QList<const QWidget*> way_of_tab(const QWidget* window) {
  QList<const QWidget*> way;
  constexpr int more_than_any_window = 200;
  for (int i = 0; i < more_than_any_window; ++i) {
    QWidget* const at = QApplication::focusWidget();
    if (!at || at->window() != window) return way;
    if (way.contains(at)) return way;
    way.append(at);
    QTest::keyClick(at, Qt::Key_Tab);
  }
  return way;
}

inline QStringList controls_off_the_way(const QWidget* window) {
  QStringList found;
  const QList<const QWidget*> way = way_of_tab(window);
  if (way.isEmpty()) found.append("nothing has the keyboard");
  for (const QWidget* widget : window->findChildren<QWidget*>())
    if (tab_comes_to(widget, window) && !way.contains(widget)) found.append("not on the way: " + told_as(widget));
  if (!found.isEmpty()) {
    QStringList names;
    for (const QWidget* widget : way) names.append(widget->objectName());
    found.append("the way: " + names.join(" "));
  }
  // A stop that shows nothing: the keyboard would seem lost there.
  for (const QWidget* widget : way) {
    const bool bare = qstrcmp(widget->metaObject()->className(), "QWidget") == 0;
    if (bare || qobject_cast<const QScrollArea*>(widget)) found.append("a stop that shows nothing: " + told_as(widget));
  }
  return found;
}

// Steps of the Tab key from a box of a form to one that stands above it in the same form.
inline QStringList steps_up_a_form(const QWidget* window) {
  QStringList found;
  const QList<const QWidget*> way = way_of_tab(window);
  for (qsizetype i = 1; i < way.size(); ++i) {
    const QWidget *const from = way[i - 1], *const to = way[i];
    const QWidget* const form = from->parentWidget();
    if (form != to->parentWidget() || !form->layout() || !form->layout()->inherits("QFormLayout")) continue;
    if (to->y() < from->y()) found.append("up: " + told_as(from) + " to " + told_as(to));
  }
  return found;
}

}  // namespace support
